// SPDX-License-Identifier: MPL-2.0
#include "FormatPropre.h"

#include <com/sun/star/beans/PropertyAttribute.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/beans/XPropertyState.hpp>

#include <algorithm>
#include <vector>

using namespace com::sun::star;
using rtl::OUString;

namespace extension {

namespace {

/// The properties that can be set of those that begin so.
uno::Sequence<OUString> NomsDe(uno::Reference<uno::XInterface> const& objet, char const* debut) {
    uno::Reference<beans::XPropertySet> const source(objet, uno::UNO_QUERY_THROW);
    OUString const prefixe = OUString::createFromAscii(debut);
    std::vector<OUString> noms;
    for (beans::Property const& propriete : source->getPropertySetInfo()->getProperties()) {
        if (propriete.Name.startsWith(prefixe) &&
            (propriete.Attributes & beans::PropertyAttribute::READONLY) == 0) {
            noms.push_back(propriete.Name);
        }
    }
    return {noms.data(), static_cast<sal_Int32>(noms.size())};
}

/// Does every paragraph say so? That its numbering does not start anew; and in a comment, from
/// LibreOffice 24.8 on, that it has the style of comments.
bool ADeNaissance(uno::Reference<uno::XInterface> const& objet, OUString const& nom) {
    if (nom == "ParaStyleName") {
        uno::Reference<beans::XPropertySet> const paragraphe(objet, uno::UNO_QUERY_THROW);
        return paragraphe->getPropertyValue(nom) == uno::Any(OUString("Comment"));
    }
    return nom == "ParaIsNumberingRestart";
}

uno::Sequence<beans::PropertyState> EtatsDe(uno::Reference<uno::XInterface> const& objet,
                                            uno::Sequence<OUString> const& noms) {
    return uno::Reference<beans::XPropertyState>(objet, uno::UNO_QUERY_THROW)
        ->getPropertyStates(noms);
}

uno::Sequence<uno::Any> ValeursDe(uno::Reference<text::XTextRange> const& lettres,
                                  uno::Sequence<OUString> const& noms) {
    return uno::Reference<beans::XMultiPropertySet>(lettres, uno::UNO_QUERY_THROW)
        ->getPropertyValues(noms);
}

} // namespace

FormatPropre::FormatPropre(uno::Reference<text::XTextRange> const& lettres)
    : noms_(NomsDe(lettres, "Char"))
    , etats_(EtatsDe(lettres, noms_))
    , valeurs_(ValeursDe(lettres, noms_)) {}

bool FormatPropre::Couvre(FormatPropre const& autre) const {
    for (sal_Int32 i = 0; i < autre.noms_.getLength(); ++i) {
        if (autre.etats_[i] == beans::PropertyState_DIRECT_VALUE &&
            (i >= noms_.getLength() || etats_[i] != beans::PropertyState_DIRECT_VALUE)) {
            return false;
        }
    }
    return true;
}

void FormatPropre::Mets(uno::Reference<text::XTextRange> const& lettres) const {
    if (noms_.getLength() == 0) {
        return;
    }
    uno::Reference<beans::XPropertySet> const proprietes(lettres, uno::UNO_QUERY_THROW);
    uno::Sequence<beans::PropertyState> const etatsLa = EtatsDe(lettres, noms_);
    uno::Sequence<uno::Any> const valeursLa = ValeursDe(lettres, noms_);
    for (sal_Int32 i = 0; i < noms_.getLength(); ++i) {
        bool const propre = etats_[i] == beans::PropertyState_DIRECT_VALUE;
        if (propre && (etatsLa[i] != etats_[i] || valeursLa[i] != valeurs_[i])) {
            proprietes->setPropertyValue(noms_[i], valeurs_[i]);
        }
    }
}

bool AUnFormatPropre(uno::Reference<uno::XInterface> const& objet) {
    for (char const* debut : {"Char", "Para"}) {
        uno::Sequence<OUString> const noms = NomsDe(objet, debut);
        uno::Sequence<beans::PropertyState> const etats = EtatsDe(objet, noms);
        for (sal_Int32 i = 0; i < noms.getLength(); ++i) {
            if (etats[i] == beans::PropertyState_DIRECT_VALUE && !ADeNaissance(objet, noms[i])) {
                return true;
            }
        }
    }
    return false;
}

} // namespace extension
