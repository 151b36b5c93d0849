// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include "ChaineTemplateAvecAttributs.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace hote {

/// A word, or the part of one, that the dictionary does not know: [debut, fin) in UTF-16 units of
/// the text that it was found in.
struct Faute {
    int debut;
    int fin;
    QString mot;                                 ///< the units of the range, as they stand
    std::optional<Langue> langue = std::nullopt; ///< that its text says it is in, another than most
};

/// Finds the misspelt words of a text. Stateless but for the dictionaries' own memory; they must
/// outlive it.
class Orthographe {
  public:
    using Plages = std::vector<sdd::PlageAttribut>;
    /// The dictionary of a language other than most of the text is in; null where there is none.
    using AutreLexique = std::function<Lexique*(Langue)>;

    explicit Orthographe(Lexique& lexique, AutreLexique autre = nullptr)
        : principal_(lexique)
        , autre_(std::move(autre)) {}

    /// The mistakes of `texte`, in order. Words that touch a run whose style says "not to be
    /// proofed", or that is in a language without a dictionary, are passed over. Of a word with an
    /// elision or hyphens, only the wrong part is reported where the parts can stand alone.
    std::vector<Faute> Cherche(QString const& texte, Plages const& plages) const;

    /// What may stand in the place of a mistake, best first; with the typographic apostrophe
    /// (U+2019) where `apostropheCourbe`, as its text has it, else with the typewriter's.
    QStringList Suggere(Faute const& faute, bool apostropheCourbe) const;

    /// Does a text use the typographic apostrophe?
    static bool AUneApostropheCourbe(QString const& texte);

  private:
    Lexique* TrouveLexique(std::optional<Langue> langue) const;

    Lexique& principal_;
    AutreLexique autre_;
};

} // namespace hote
