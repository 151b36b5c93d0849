// SPDX-License-Identifier: MPL-2.0
#include "Ecritures.h"

#include <com/sun/star/i18n/ScriptType.hpp>
#include <com/sun/star/i18n/XBreakIterator.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>

#include <algorithm>

using namespace com::sun::star;

namespace extension {

namespace {

uno::Reference<uno::XComponentContext>& Contexte() {
    // Kept to the process's end: the office's objects must not be let go of after it.
    static auto* const contexte = new uno::Reference<uno::XComponentContext>;
    return *contexte;
}

uno::Reference<i18n::XBreakIterator> const& Connaisseur() {
    static auto* const connaisseur = new uno::Reference<i18n::XBreakIterator>(
        Contexte()->getServiceManager()->createInstanceWithContext(
            "com.sun.star.i18n.BreakIterator", Contexte()),
        uno::UNO_QUERY_THROW);
    return *connaisseur;
}

} // namespace

void MetsContexteDesEcritures(uno::Reference<uno::XComponentContext> const& contexte) {
    Contexte() = contexte;
}

uno::Reference<uno::XInterface> ServiceDuBureau(char const* nom) {
    return Contexte()->getServiceManager()->createInstanceWithContext(
        rtl::OUString::createFromAscii(nom), Contexte());
}

bool EstToutLatin(std::u16string_view texte) noexcept {
    return std::none_of(texte.begin(), texte.end(), [](char16_t unite) {
        // Hebrew comes first among the others; then Latin again with signs, up to the radicals.
        return (unite >= 0x0590 && unite < 0x1E00) || unite >= 0x2E80;
    });
}

std::vector<SuiteDEcriture> DonneEcritures(rtl::OUString const& texte) {
    uno::Reference<i18n::XBreakIterator> const& connaisseur = Connaisseur();
    std::vector<SuiteDEcriture> suites;
    std::size_t sans = 0; // letters of no script at the start
    for (sal_Int32 debut = 0; debut < texte.getLength();) {
        sal_Int16 const genre = connaisseur->getScriptType(texte, debut);
        sal_Int32 const fin = std::max(connaisseur->endOfScript(texte, debut, genre), debut + 1);
        auto const arret = static_cast<std::size_t>(fin);
        if (genre == i18n::ScriptType::ASIAN || genre == i18n::ScriptType::COMPLEX ||
            genre == i18n::ScriptType::LATIN) {
            suites.push_back({arret, genre == i18n::ScriptType::ASIAN     ? Ecriture::Asiatique
                                     : genre == i18n::ScriptType::COMPLEX ? Ecriture::Complexe
                                                                          : Ecriture::Latine});
        } else if (suites.empty()) {
            sans = arret;
        } else {
            suites.back().fin = arret;
        }
        debut = fin;
    }
    if (suites.empty() && sans > 0) {
        suites.push_back({sans, Ecriture::Latine});
    }
    return suites;
}

} // namespace extension
