// SPDX-License-Identifier: MPL-2.0
#include "EditionEnCours.h"

#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <cppuhelper/implbase1.hxx>

using namespace com::sun::star;

namespace extension {

namespace {

class EcouteurDEtat : public cppu::WeakImplHelper1<frame::XStatusListener> {
  public:
    void SAL_CALL statusChanged(frame::FeatureStateEvent const& etat) override {
        possible = etat.IsEnabled != sal_False;
    }
    void SAL_CALL disposing(lang::EventObject const& /*source*/) override {}

    bool possible = false;
};

} // namespace

bool EstEnTrainDeTaper(uno::Reference<frame::XController> const& vue, Frappe frappe) {
    uno::Reference<frame::XDispatchProvider> const commandes(
        vue.is() ? vue->getFrame() : uno::Reference<frame::XFrame>(), uno::UNO_QUERY);
    if (!commandes.is()) {
        return false;
    }
    // The office says nowhere that letters are being typed, but does some things only then: raise
    // letters in a cell, put a special one into a shape.
    rtl::OUString const nom =
        frappe == Frappe::DansUneCellule ? rtl::OUString("SuperScript") : "InsertSymbol";
    util::URL adresse;
    adresse.Complete = adresse.Main = ".uno:" + nom;
    adresse.Protocol = ".uno:";
    adresse.Path = nom;
    uno::Reference<frame::XDispatch> const commande =
        commandes->queryDispatch(adresse, rtl::OUString(), 0);
    if (!commande.is()) {
        return false;
    }
    auto* const etat = new EcouteurDEtat;
    uno::Reference<frame::XStatusListener> const ecoute(etat);
    commande->addStatusListener(ecoute, adresse); // tells the state before it returns
    commande->removeStatusListener(ecoute, adresse);
    return etat->possible;
}

} // namespace extension
