// SPDX-License-Identifier: MPL-2.0
#include "EditionEnCours.h"

#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <cppuhelper/implbase1.hxx>

using namespace com::sun::star;

namespace bureau {

namespace {

class Etat : public cppu::WeakImplHelper1<frame::XStatusListener> {
  public:
    void SAL_CALL statusChanged(frame::FeatureStateEvent const& etat) override {
        possible = etat.IsEnabled != sal_False;
    }
    void SAL_CALL disposing(lang::EventObject const& /*source*/) override {}

    bool possible = false;
};

} // namespace

bool EstEnTrainDeTaper(uno::Reference<frame::XController> const& vue) {
    uno::Reference<frame::XDispatchProvider> const commandes(
        vue.is() ? vue->getFrame() : uno::Reference<frame::XFrame>(), uno::UNO_QUERY);
    if (!commandes.is()) {
        return false;
    }
    // The office says nowhere that letters are being typed, but raises letters only then.
    util::URL commande;
    commande.Complete = commande.Main = ".uno:SuperScript";
    commande.Protocol = ".uno:";
    commande.Path = "SuperScript";
    uno::Reference<frame::XDispatch> const exposant =
        commandes->queryDispatch(commande, rtl::OUString(), 0);
    if (!exposant.is()) {
        return false;
    }
    auto* const etat = new Etat;
    uno::Reference<frame::XStatusListener> const ecoute(etat);
    exposant->addStatusListener(ecoute, commande); // tells the state before it returns
    exposant->removeStatusListener(ecoute, commande);
    return etat->possible;
}

} // namespace bureau
