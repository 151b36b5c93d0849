// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Decisions.h"
#include "Liaison.h"
#include "ParagrapheSuivi.h"
#include "Verificateur.h"

#include <QHash>

#include <optional>
#include <vector>

namespace hote {

/// A remark as it is shown.
struct RemarqueMontree {
    quint64 id;
    int paragraphe; ///< its rank
    QString endroit;
    QString texte; ///< the whole paragraph
    Remarque remarque;
    EtatRemarque etat;
    QString raison;

    QString DonneExtrait() const {
        return texte.mid(remarque.debut, remarque.fin - remarque.debut);
    }
};

/// A document gone through remark by remark: which there are, which one the person looks at, and
/// what they decide. Knows neither windows nor processes.
///
/// A correction counts as made at once, so that nobody waits for the document; where that refuses,
/// the remark comes back with the reason. What changes in the document is examined again, that
/// alone. One thread, the one of `liaison` and `verificateur`, which must outlive the object.
class Revue : public QObject {
    Q_OBJECT

  public:
    Revue(Liaison& liaison, Verificateur& verificateur, QObject* parent = nullptr);

    /// The remarks to be decided on, in reading order.
    std::vector<quint64> DonneFile() const;
    std::optional<RemarqueMontree> Donne(quint64 id) const;
    /// The remark that the person looks at; 0 for none.
    quint64 DonneCourante() const noexcept { return courante_; }

    struct Progres {
        int examines;
        int total;
    };
    Progres DonneProgres() const;
    bool EstLue() const noexcept { return lue_; }
    bool EstPerdue() const noexcept { return perdue_; }
    bool EstArretee() const noexcept { return arretee_; }
    bool PeutAnnuler() const noexcept { return !gestes_.empty(); }

    void Montre(quint64 id);
    /// The next remark to be decided on, from the one shown; past the end, from the start.
    void Suivante();
    void Precedente();

    // What a person decides about the remark shown. Nothing happens when there is none.
    void Corrige(QString const& texte);
    /// And every other remark on the same words by the same rule.
    void CorrigeTousPareils(QString const& texte);
    void Ignore();
    /// The same words are right wherever they stand.
    void IgnorePartout();
    /// As `IgnorePartout`, and `MotAjoute` tells that they are right for good.
    void AjouteAuxMots();
    void EteinsRegle();
    /// Takes back what was last decided, and shows it again.
    void Annule();

    /// Stops examining, and takes it up again.
    void Arrete();
    void Reprends();
    /// Has everything examined again: other engines or languages are at work.
    void Reexamine();

  Q_SIGNALS:
    /// The remarks, or their states, are others.
    void Changee();
    void CouranteChangee();
    void ProgresChange();
    /// The document was read, lost, or found again.
    void EtatChange();
    /// The document refused a correction, for this reason (may be empty).
    void Refusee(QString raison);
    void MotAjoute(QString mot, QString langue, bool ajoute);
    void RegleEteinte(QString moteur, QString regle, bool eteinte);

  private:
    /// One thing that was decided, and can be taken back.
    struct Geste {
        enum class Genre { Corrige, Ignore, IgnorePartout, AjouteAuxMots, EteinsRegle };
        Genre genre;
        std::vector<quint64> remarques; ///< in reading order
        Remarque remarque;              ///< the one that was shown
        QString extrait;
        QString langue;
    };
    /// A correction on its way.
    struct Envoi {
        quint64 paragraphe;
        quint64 remarque;
        QString avant;
        QString apres;
        bool estRetour; ///< takes a correction back
    };

    void RecoisLecture(Lecture const& lecture);
    void RecoisIssue(quint64 jeton, IssueDeCorrection issue, QString const& raison);
    void RecoisRemarques(quint64 jeton, QString const& moteur,
                         std::vector<Remarque> const& remarques);
    void RecoisFin(quint64 jeton);
    void RecoisNoms(QStringList const& noms);
    void RecoisPerte();

    std::optional<std::pair<int, int>> Place(quint64 id) const;
    bool EstADecider(ParagrapheSuivi const& paragraphe, RemarqueSuivie const& remarque) const;
    static QString DonneExtrait(ParagrapheSuivi const& paragraphe, RemarqueSuivie const& remarque);
    std::vector<quint64> DonnePareilles(RemarqueMontree const& modele) const;
    quint64 ChercheDepuis(int paragraphe, int debut, bool enAvant) const;
    void ChoisisPremiere();
    ParagrapheSuivi* TrouveParagraphe(quint64 jeton);
    std::vector<ParagrapheSuivi> Reporte(Lecture const& lecture);
    void NoteLieux(ParagrapheSuivi const& paragraphe);
    quint64 ChercheTardive(RemarqueMontree const& montree) const;
    void MetsCourante(quint64 id);
    void Demande(ParagrapheSuivi& paragraphe, int priorite);
    void DemandeTout();
    void Oublie(ParagrapheSuivi& paragraphe);
    void Envoie(int rang, quint64 id, QString const& apres, bool estRetour);
    void Defais(Envoi const& envoi, EtatRemarque etat, QString const& raison);
    void Renvoie(std::vector<Envoi> const& envois);
    void CorrigeToutes(std::vector<quint64> const& ids, QString const& texte);
    void Decide(Geste::Genre genre);
    void MetsDecision(Geste const& geste, bool fait);

    Liaison& liaison_;
    Verificateur& verificateur_;
    std::vector<ParagrapheSuivi> paragraphes_;
    QHash<quint64, quint64> jetons_;                ///< of examinations, to paragraphs
    QHash<quint64, int> rangs_;                     ///< of paragraphs
    mutable QHash<quint64, quint64> lieux_;         ///< of remarks, to paragraphs
    std::vector<std::pair<quint64, Envoi>> envois_; ///< by token, in the order sent
    std::vector<Geste> gestes_;
    Decisions decisions_;
    PlaceDuCurseur depart_;
    quint64 courante_ = 0;
    quint64 prochainId_ = 1;
    quint64 prochainAlors_ = 1; ///< when the remark shown was chosen
    quint64 prochainParagraphe_ = 1;
    quint64 prochainEnvoi_ = 1;
    bool lue_ = false;
    bool perdue_ = false;
    bool arretee_ = false;
};

} // namespace hote
