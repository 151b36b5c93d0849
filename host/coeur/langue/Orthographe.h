// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include "ChaineTemplateAvecAttributs.h"

#include <QString>

#include <vector>

namespace hote {

/// A word, or the part of one, that the dictionary does not know: [debut, fin) in UTF-16 units of
/// the text that it was found in.
struct Faute {
    int debut;
    int fin;
    QString mot; ///< the units of the range, as they stand
};

/// Finds the misspelt words of a text with one dictionary. Stateless but for the dictionary's own
/// memory; the dictionary must outlive it.
class Orthographe {
  public:
    using Plages = std::vector<sdd::PlageAttribut>;

    explicit Orthographe(Lexique& lexique)
        : lexique_(lexique) {}

    /// The mistakes of `texte`, in order. Words that touch a run whose style says "not to be
    /// proofed" are passed over. Of a word with an elision or hyphens, only the wrong part is
    /// reported where the parts can stand alone.
    std::vector<Faute> Cherche(QString const& texte, Plages const& plages) const;

    /// What may stand in the place of a mistake, best first; with the typographic apostrophe
    /// (U+2019) where `apostropheCourbe`, as its text has it, else with the typewriter's.
    QStringList Suggere(Faute const& faute, bool apostropheCourbe) const;

    /// Does a text use the typographic apostrophe?
    static bool AUneApostropheCourbe(QString const& texte);

  private:
    void Juge(QString const& texte, int debut, int fin, std::vector<Faute>& fautes) const;
    bool Connait(QString const& texte, int debut, int fin) const;
    int SauteElision(QString const& texte, int debut, int fin) const;
    int OtePossessif(QString const& texte, int debut, int fin) const;

    Lexique& lexique_;
};

} // namespace hote
