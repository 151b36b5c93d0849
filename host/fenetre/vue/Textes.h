// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/modele/Revue.h"

#include <QString>

#include <string>

namespace hote {

inline QString EnQt(std::string const& texte) {
    return QString::fromStdString(texte);
}

/// What kind of mistake it is, for the person.
QString DonneNomDuGenre(GenreDeRemarque genre);

/// The sentence of a paragraph around [debut, fin), as it may be shown: fillers and controls stand
/// as signs. The mistake is [debut, fin) of `texte`.
struct PhraseMontree {
    QString texte;
    int debut;
    int fin;
};
PhraseMontree DonnePhrase(QString const& paragraphe, int debut, int fin);

/// A remark on one line: "Spelling, paragraph 3: “mistkae”".
QString DonneLigne(RemarqueMontree const& remarque);

} // namespace hote
