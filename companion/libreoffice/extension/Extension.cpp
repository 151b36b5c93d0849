// SPDX-License-Identifier: MPL-2.0
#include "Extension.h"

#include "Contrat.h"
#include "commun/Hasard.h"
#include "lecture/Ecritures.h"
#include "partage/Messages.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/XDesktop.hpp>
#include <com/sun/star/frame/XTerminateListener.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <cppuhelper/implbase1.hxx>

#include <algorithm>
#include <cstdlib>
#include <mutex>

using namespace com::sun::star;

namespace extension {

namespace {

enum class Phase { Jamais, Demarree, Arretee };

std::mutex mutex;
Phase phase = Phase::Jamais;
Extension* seule = nullptr;

class Fin : public cppu::WeakImplHelper1<frame::XTerminateListener> {
  public:
    void SAL_CALL queryTermination(lang::EventObject const& /*e*/) override {}
    void SAL_CALL notifyTermination(lang::EventObject const& /*e*/) override {
        Extension::Arrete();
    }
    void SAL_CALL disposing(lang::EventObject const& /*e*/) override { Extension::Arrete(); }
};

/// A launcher may choose the instance, so as to know it beforehand.
std::string ChoisisInstance() {
    char const* const voulue = std::getenv("VOCALYNE_BUREAU_INSTANCE");
    return voulue != nullptr && contrat::EstInstanceValide(voulue) ? voulue
                                                                   : "lo" + HasardHexadecimal();
}

Delais ChoisisDelais() {
    Delais delais;
    char const* const voulu = std::getenv("VOCALYNE_BUREAU_DELAI_MS");
    if (voulu != nullptr) {
        long const ms = std::strtol(voulu, nullptr, 10);
        if (ms > 0 && ms <= delais.ordinaire.count()) {
            delais.ordinaire = std::chrono::milliseconds(ms);
        }
    }
    return delais;
}

bool EstEnFrancais(uno::Reference<uno::XComponentContext> const& contexte) {
    try {
        uno::Reference<lang::XMultiServiceFactory> const reglages(
            contexte->getServiceManager()->createInstanceWithContext(
                "com.sun.star.configuration.ConfigurationProvider", contexte),
            uno::UNO_QUERY_THROW);
        beans::PropertyValue chemin;
        chemin.Name = "nodepath";
        chemin.Value <<= rtl::OUString("/org.openoffice.Setup/L10N");
        uno::Sequence<uno::Any> arguments(1);
        arguments[0] <<= chemin;
        uno::Reference<container::XNameAccess> const noeud(
            reglages->createInstanceWithArguments("com.sun.star.configuration.ConfigurationAccess",
                                                  arguments),
            uno::UNO_QUERY_THROW);
        rtl::OUString langue;
        noeud->getByName("ooLocale") >>= langue;
        return langue.startsWith("fr");
    } catch (uno::Exception const&) {
        return false; // English, then: not worth failing for
    }
}

} // namespace

Extension::Extension(uno::Reference<uno::XComponentContext> const& contexte)
    : service_(std::make_shared<Service>(contexte, ChoisisInstance()))
    , appels_(std::make_shared<Appels>(FilPrincipal(contexte), service_))
    , fil_(std::make_unique<FilDuBus>(service_->DonneInstance(), appels_, service_->DonneVivantes(),
                                      ChoisisDelais())) {}

void Extension::Demarre(uno::Reference<uno::XComponentContext> const& contexte) {
    {
        std::lock_guard<std::mutex> const verrou(mutex);
        if (phase != Phase::Jamais) {
            return;
        }
        phase = Phase::Demarree;
    }
    compagnon::MetsFrancais(EstEnFrancais(contexte));
    MetsContexteDesEcritures(contexte);
    uno::Reference<frame::XDesktop> const bureauOuvert(
        contexte->getServiceManager()->createInstanceWithContext("com.sun.star.frame.Desktop",
                                                                 contexte),
        uno::UNO_QUERY_THROW);
    bureauOuvert->addTerminateListener(new Fin);
    auto* const nouvelle = new Extension(contexte);
    std::lock_guard<std::mutex> const verrou(mutex);
    seule = nouvelle;
}

void Extension::Arrete() {
    Extension* finie = nullptr;
    {
        std::lock_guard<std::mutex> const verrou(mutex);
        phase = Phase::Arretee;
        std::swap(finie, seule);
    }
    if (finie != nullptr) {
        // Ends the thread. The rest stays: work that was given up may still lie in the office's
        // queue, and the office's objects must not be let go of this late.
        finie->fil_.reset();
    }
}

Extension* Extension::Donne() {
    std::lock_guard<std::mutex> const verrou(mutex);
    return seule;
}

std::string Extension::DonneIdentifiant(uno::Reference<frame::XModel> const& modele) {
    std::shared_ptr<DocumentOuvert> const document = service_->LesDocuments().ParModele(modele);
    return document ? service_->DonneIdentifiant(*document) : std::string();
}

} // namespace extension
