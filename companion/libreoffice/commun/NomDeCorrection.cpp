// SPDX-License-Identifier: MPL-2.0
#include "NomDeCorrection.h"

#include "modele/Frontieres.h"
#include "partage/Messages.h"

#include <algorithm>

namespace extension {

namespace {

/// Long texts would make the undo list unreadable.
std::u16string Abrege(std::u16string texte) {
    constexpr std::size_t kMax = 30;
    std::replace(texte.begin(), texte.end(), u'\n', u' ');
    if (texte.size() <= kMax) {
        return texte;
    }
    std::size_t coupe = kMax;
    while (coupe > 0 && compagnon::CoupeCaractere(texte, coupe)) {
        --coupe;
    }
    return texte.substr(0, coupe) + u"\u2026";
}

} // namespace

std::u16string NomDeCorrection(std::u16string const& avant, std::u16string const& apres) {
    if (compagnon::ParleFrancais()) {
        return u"Correction : \u00ab\u00a0" + Abrege(avant) + u"\u00a0\u00bb en \u00ab\u00a0" +
               Abrege(apres) + u"\u00a0\u00bb";
    }
    return u"Correction: \u201c" + Abrege(avant) + u"\u201d to \u201c" + Abrege(apres) + u"\u201d";
}

std::u16string NomDeSuiteAutomatique() {
    return compagnon::ParleFrancais() ? u"Corrections automatiques" : u"Automatic corrections";
}

} // namespace extension
