// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/echange/Lecture.h"

#include <QSet>

namespace hote {

enum class EtatRemarque {
    AVoir,    ///< nothing decided
    Refusee,  ///< corrected, and the document refused: to be decided on again
    Corrigee, ///< [debut, fin) holds the correction
    Ignoree,
};

/// A remark and what became of it.
struct RemarqueSuivie {
    quint64 id;
    Remarque remarque; ///< its range follows the text
    EtatRemarque etat = EtatRemarque::AVoir;
    QString raison; ///< of a refusal, for the person
    QString avant;  ///< what a correction replaced

    bool EstADecider() const noexcept {
        return etat == EtatRemarque::AVoir || etat == EtatRemarque::Refusee;
    }
};

/// A paragraph with its remarks, which stay where they belong while its text changes.
class ParagrapheSuivi {
  public:
    ParagrapheSuivi(quint64 id, ParagrapheDuDocument lu)
        : id_(id)
        , lu_(std::move(lu)) {}

    quint64 DonneId() const noexcept { return id_; }
    QString const& DonneTexte() const noexcept { return lu_.texte; }
    ParagrapheDuDocument const& DonneLu() const noexcept { return lu_; }
    /// In reading order.
    std::vector<RemarqueSuivie> const& DonneRemarques() const noexcept { return remarques_; }
    RemarqueSuivie* Trouve(quint64 id);

    /// Has an engine said anything of the text as it is now?
    bool EstVu() const noexcept { return vu_; }
    bool EstExamine() const noexcept { return examine_; }
    /// Of the examination that is under way; 0 for none.
    quint64 jeton = 0;
    QString endroit; ///< its name for people; may be empty

    /// Puts another text in its place, which was read. Remarks on what both have in common stay;
    /// the others go.
    void Relis(ParagrapheDuDocument lu);
    /// Replaces [debut, fin). Remarks that touch it go, but for `sauf`, whose range becomes that of
    /// the new text.
    void Remplace(int debut, int fin, QString const& texte, quint64 sauf);
    /// What an engine found takes the place of what it had found before; of one found again, what
    /// was decided stays. `prochainId` numbers the new ones.
    void Recois(QString const& moteur, std::vector<Remarque> const& remarques, quint64& prochainId);
    /// Every engine has told: what none of them found again goes.
    void FinisExamen();
    void RecommenceExamen();

  private:
    void Decale(int debut, int fin, int longueur, quint64 sauf);

    quint64 id_;
    ParagrapheDuDocument lu_;
    std::vector<RemarqueSuivie> remarques_;
    QSet<QString> moteursVus_;
    bool vu_ = false;
    bool examine_ = false;
};

} // namespace hote
