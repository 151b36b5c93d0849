// SPDX-License-Identifier: MPL-2.0
#include "CommandeDuBureau.h"

#include <com/sun/star/beans/PropertyValue.hpp>
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

CommandeDuBureau::CommandeDuBureau(uno::Reference<frame::XController> const& vue, char const* nom) {
    uno::Reference<frame::XDispatchProvider> const commandes(
        vue.is() ? vue->getFrame() : uno::Reference<frame::XFrame>(), uno::UNO_QUERY);
    adresse_.Path = rtl::OUString::createFromAscii(nom);
    adresse_.Protocol = ".uno:";
    adresse_.Complete = adresse_.Main = adresse_.Protocol + adresse_.Path;
    if (commandes.is()) {
        commande_ = commandes->queryDispatch(adresse_, rtl::OUString(), 0);
    }
}

bool CommandeDuBureau::EstPossible() const {
    if (!commande_.is()) {
        return false;
    }
    auto* const etat = new EcouteurDEtat;
    uno::Reference<frame::XStatusListener> const ecoute(etat);
    commande_->addStatusListener(ecoute, adresse_); // tells the state before it returns
    commande_->removeStatusListener(ecoute, adresse_);
    return etat->possible;
}

void CommandeDuBureau::Execute() const {
    if (commande_.is()) {
        beans::PropertyValue attends;
        attends.Name = "SynchronMode";
        attends.Value <<= true;
        commande_->dispatch(adresse_, uno::Sequence<beans::PropertyValue>(&attends, 1));
    }
}

} // namespace extension
