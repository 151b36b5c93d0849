// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DescriptionMoteur.h"
#include "LignesJson.h"
#include "Processus.h"

namespace hote {

/// An engine that is a program of its own, spoken to as docs/moteurs.md says. It is started with
/// the first paragraph, killed when it keeps us waiting or says what it must not, and started anew
/// with the next; after `kEchecsMax` failures in a row it counts as missing.
class MoteurExterne : public Moteur {
  public:
    explicit MoteurExterne(DescriptionMoteur description)
        : description_(std::move(description)) {}

    QString DonneNom() const override { return description_.nom; }
    bool Juge(QString const& langue) const override { return description_.Juge(langue); }
    std::vector<Remarque> Examine(ParagrapheAExaminer const& paragraphe,
                                  Arret const& arret) override;

    /// Starts the program unless it runs, and gives its first line. Throws ErreurDeMoteur.
    Accueil const& Demarre(Arret const& arret);

    static constexpr int kEchecsMax = 3;

  private:
    void ExamineTexte(TexteNu const& texte, Arret const& arret, std::vector<Remarque>& remarques);
    ReponseDeMoteur Demande(TexteNu const& texte, Arret const& arret);
    [[noreturn]] void Abandonne(std::string const& raison);
    void Controle(Processus::Issue issue);

    DescriptionMoteur description_;
    std::unique_ptr<Processus> processus_;
    bool accueilli_ = false; ///< has the program said its first line?
    Accueil accueil_;
    qint64 dernier_ = 0;
    int echecs_ = 0; ///< since it last answered
};

/// How a person gets an engine that is missing: a sentence, or nothing known.
std::string DonneInstallation(DescriptionMoteur const& description);

} // namespace hote
