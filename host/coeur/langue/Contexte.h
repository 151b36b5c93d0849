// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// The text around a range, cut where words part.
struct Contexte {
    QString avant;
    QString apres;
    bool coupeAvant; ///< there is more text before
    bool coupeApres; ///< there is more text behind
};

/// At most `largeur` units on each side of [debut, fin), fewer rather than part of a word, of a
/// surrogate pair or of a letter with its marks; a single word longer than that is cut all the same
/// (never inside a pair).
Contexte DonneContexte(QString const& texte, int debut, int fin, int largeur);

/// The text as a terminal may show it: controls (which could move the cursor or worse), fillers and
/// lone surrogates stand as a middle dot. What turns the reading direction or does not show is
/// spelled out ("<U+202E>"), but for joiners where scripts and pictures need them; a soft hyphen is
/// left out.
QString DonnePourTerminal(QString const& texte);

} // namespace hote
