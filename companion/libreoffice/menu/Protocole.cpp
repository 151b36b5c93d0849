// SPDX-License-Identifier: MPL-2.0
// The addresses "com.ombrel.vocalyne:NAME" that menus and toolbars hold, one object a window.
#include "CommandesDuMenu.h"
#include "bus/FilPrincipal.h"
#include "commun/ChainesUno.h"
#include "extension/Extension.h"

#include <com/sun/star/frame/FeatureStateEvent.hpp>
#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/lang/XInitialization.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <cppuhelper/implbase4.hxx>
#include <cppuhelper/supportsservice.hxx>
#include <cppuhelper/weakref.hxx>

#include <cstdio>
#include <exception>

using namespace com::sun::star;

namespace {

constexpr char kNom[] = "com.ombrel.vocalyne.libreoffice.Protocole";
constexpr char16_t kProtocole[] = u"com.ombrel.vocalyne:";

std::optional<extension::Commande> CommandeDe(util::URL const& adresse) {
    return extension::Vue(adresse.Protocol) == kProtocole
               ? extension::CommandeDeNom(extension::Vue(adresse.Path))
               : std::nullopt;
}

void Execute(extension::Commande commande, uno::Reference<uno::XComponentContext> const& contexte,
             uno::Reference<frame::XFrame> const& cadre) {
    try {
        extension::ExecuteCommande(commande, contexte, cadre);
    } catch (uno::Exception const& erreur) {
        std::fprintf(stderr, "vocalyne: %s\n", extension::EnUtf8(erreur.Message).c_str());
    } catch (std::exception const& erreur) {
        std::fprintf(stderr, "vocalyne: %s\n", erreur.what());
    }
}

class Protocole : public cppu::WeakImplHelper4<frame::XDispatchProvider, frame::XDispatch,
                                               lang::XInitialization, lang::XServiceInfo> {
  public:
    explicit Protocole(uno::Reference<uno::XComponentContext> const& contexte)
        : contexte_(contexte)
        , fil_(contexte) {}

    void SAL_CALL initialize(uno::Sequence<uno::Any> const& arguments) override {
        uno::Reference<frame::XFrame> cadre;
        if (arguments.getLength() > 0 && (arguments[0] >>= cadre)) {
            cadre_ = cadre;
        }
    }

    uno::Reference<frame::XDispatch> SAL_CALL queryDispatch(util::URL const& adresse,
                                                            rtl::OUString const& /*cible*/,
                                                            sal_Int32 /*recherche*/) override {
        return CommandeDe(adresse) ? this : nullptr;
    }
    uno::Sequence<uno::Reference<frame::XDispatch>> SAL_CALL
    queryDispatches(uno::Sequence<frame::DispatchDescriptor> const& demandes) override {
        uno::Sequence<uno::Reference<frame::XDispatch>> reponses(demandes.getLength());
        for (sal_Int32 i = 0; i < demandes.getLength(); ++i) {
            frame::DispatchDescriptor const& demande = demandes[i];
            reponses[i] = queryDispatch(demande.FeatureURL, demande.FrameName, demande.SearchFlags);
        }
        return reponses;
    }

    void SAL_CALL dispatch(util::URL const& adresse,
                           uno::Sequence<beans::PropertyValue> const& /*arguments*/) override {
        std::optional<extension::Commande> const commande = CommandeDe(adresse);
        if (!commande) {
            return;
        }
        extension::Extension::Demarre(contexte_);
        // Whatever thread asks: boxes belong on the main one, and the caller waits for none.
        fil_.Poste([commande, contexte = contexte_, cadre = uno::Reference<frame::XFrame>(cadre_)] {
            Execute(*commande, contexte, cadre);
        });
    }

    void SAL_CALL addStatusListener(uno::Reference<frame::XStatusListener> const& ecouteur,
                                    util::URL const& adresse) override {
        // Always on: a command that cannot be carried out says why.
        frame::FeatureStateEvent etat;
        etat.Source = static_cast<cppu::OWeakObject*>(this);
        etat.FeatureURL = adresse;
        etat.IsEnabled = true;
        ecouteur->statusChanged(etat);
    }
    void SAL_CALL removeStatusListener(uno::Reference<frame::XStatusListener> const& /*ecouteur*/,
                                       util::URL const& /*adresse*/) override {}

    rtl::OUString SAL_CALL getImplementationName() override {
        return rtl::OUString::createFromAscii(kNom);
    }
    sal_Bool SAL_CALL supportsService(rtl::OUString const& service) override {
        return cppu::supportsService(this, service);
    }
    uno::Sequence<rtl::OUString> SAL_CALL getSupportedServiceNames() override {
        rtl::OUString const nom("com.sun.star.frame.ProtocolHandler");
        return {&nom, 1};
    }

  private:
    uno::Reference<uno::XComponentContext> contexte_;
    uno::WeakReference<frame::XFrame> cadre_; // the window holds this object
    extension::FilPrincipal fil_;
};

} // namespace

/// Named in the package's list of components; the object is handed over with one reference.
extern "C" SAL_DLLPUBLIC_EXPORT uno::XInterface*
vocalyne_Protocole_get_implementation(uno::XComponentContext* contexte,
                                      uno::Sequence<uno::Any> const& /*arguments*/) {
    cppu::OWeakObject* const protocole = new Protocole(contexte);
    protocole->acquire();
    return protocole;
}
