// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Dictionnaires.h"
#include "moteurs/Moteur.h"

#include <QHash>
#include <QSet>

namespace hote {

/// Spelling, by the dictionary of each run's language and country. Where a run names no country and
/// there are several, by the one that knows most words of what was examined so far.
///
/// Words that look like names (a capital inside a sentence) are passed over unless a known word is
/// very near; then the remark's rule is `kRegleNom`, and it is hardly sure.
class MoteurHunspell : public Moteur {
  public:
    /// `dossiers`: where dictionaries are, as `DonneDossiersDictionnaires` gives them.
    explicit MoteurHunspell(std::vector<std::string> dossiers);

    QString DonneNom() const override;
    bool Juge(QString const& langue) const override;
    std::vector<Remarque> Examine(ParagrapheAExaminer const& paragraphe,
                                  Arret const& arret) override;

  private:
    struct Inconnu;

    Lexique* TrouveLexique(QString const& langue, QString const& texte,
                           EtendueDeLangue const& etendue);
    bool EstDUneAutreVariante(QString const& forme, Inconnu const& inconnu);
    bool EstConnuAilleurs(QString const& forme, Lexique const& lexique);
    void ApprendsNoms(QString const& texte, std::vector<Inconnu> const& inconnus);
    bool FaisRemarque(ParagrapheAExaminer const& paragraphe, Inconnu const& inconnu,
                      Remarque& remarque);

    mutable Dictionnaires dictionnaires_;
    QHash<Lexique*, int> connus_; ///< words that each of a language's variants knew
    QSet<QString> noms_;          ///< unknown words seen with a capital inside a sentence
};

} // namespace hote
