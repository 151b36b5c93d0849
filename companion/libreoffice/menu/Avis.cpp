// SPDX-License-Identifier: MPL-2.0
#include "Avis.h"

#include "commun/ChainesUno.h"
#include "menu/lancement/Ecran.h"

#include <com/sun/star/awt/MessageBoxButtons.hpp>
#include <com/sun/star/awt/MessageBoxType.hpp>
#include <com/sun/star/awt/XMessageBox.hpp>
#include <com/sun/star/awt/XMessageBoxFactory.hpp>
#include <com/sun/star/awt/XWindowPeer.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>

#include <algorithm>
#include <cstdio>
#include <string_view>

using namespace com::sun::star;

namespace extension {

namespace {

void Ecris(std::string_view texte) {
    while (!texte.empty()) {
        std::string_view const ligne = texte.substr(0, texte.find('\n'));
        if (!ligne.empty()) {
            std::fprintf(stderr, "vocalyne: %.*s\n", static_cast<int>(ligne.size()), ligne.data());
        }
        texte.remove_prefix(std::min(ligne.size() + 1, texte.size()));
    }
}

} // namespace

void Avise(uno::Reference<uno::XComponentContext> const& contexte,
           uno::Reference<frame::XFrame> const& cadre, std::string const& texte, bool avertit) {
    uno::Reference<awt::XWindowPeer> const dessous(
        cadre.is() ? cadre->getContainerWindow() : nullptr, uno::UNO_QUERY);
    uno::Reference<awt::XMessageBoxFactory> const boites(
        contexte->getServiceManager()->createInstanceWithContext("com.sun.star.awt.Toolkit",
                                                                 contexte),
        uno::UNO_QUERY);
    if (!AUnEcran() || !dessous.is() || !boites.is()) {
        Ecris(texte);
        return;
    }
    uno::Reference<awt::XMessageBox> const boite = boites->createMessageBox(
        dessous, avertit ? awt::MessageBoxType_WARNINGBOX : awt::MessageBoxType_INFOBOX,
        awt::MessageBoxButtons::BUTTONS_OK, "Vocalyne", EnUno(DepuisUtf8(texte.c_str())));
    boite->execute();
    uno::Reference<lang::XComponent> const fin(boite, uno::UNO_QUERY);
    if (fin.is()) {
        fin->dispose();
    }
}

} // namespace extension
