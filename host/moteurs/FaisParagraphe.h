// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Remarque.h"

#include "ChaineTemplateAvecAttributs.h"

namespace hote {

/// The text of a zone made ready for engines: its style runs say which parts are in another
/// language than `langue` (BCP 47), and which are not to be judged.
ParagrapheAExaminer FaisParagraphe(QString const& texte,
                                   std::vector<sdd::PlageAttribut> const& plages,
                                   QString const& langue);

/// Gives [debut, fin) another language; what stands around keeps its own.
void MetsLangue(ParagrapheAExaminer& paragraphe, int debut, int fin, QString const& langue);

/// The part of a BCP 47 tag before its first "-", in lower case: "fr-CA": "fr".
QString DonneLangueSansPays(QString const& langue);

/// Is all of [debut, fin) in languages of which `juge` is true?
template <class Predicat>
bool EstDansLangues(ParagrapheAExaminer const& paragraphe, int debut, int fin, Predicat juge) {
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        if (etendue.debut < fin && debut < etendue.fin && !juge(etendue.langue)) {
            return false;
        }
    }
    return true;
}

} // namespace hote
