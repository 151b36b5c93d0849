// SPDX-License-Identifier: MPL-2.0
// The agent's link to the companion: creation, first contact, liveness, suspension, break.
#include "ModuleProxyOOo.h"

#include "ClassesFenetre.h"
#include "ConnexionSession.h"
#include "Contrat.h"
#include "DAlerte.h"
#include "DelaiTemporaire.h"
#include "IdentificateurDocument.h"
#include "ReponseProxy.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "domaineTexteur.h"

namespace {

using std::chrono::milliseconds;

/// For the first connection: a bus may be starting, or the machine be busy.
constexpr milliseconds kDelaiConnexion{10'000};
/// For another one in the midst of an operation, on top of its own time-out: a bus that is well
/// answers within one.
constexpr milliseconds kDelaiReprise{100};

void AlerteExtensionRequise() {
    auto const titre = _Tr(domaineTexteur, "Extension LibreOffice", nullptr);
    auto const message = _Tr(domaineTexteur,
                             "Le connecteur d'Vocalyne pour ce logiciel ne semble pas installé, ou "
                             "n'est pas à jour ; ce connecteur est requis.",
                             nullptr);
    DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kAvertissement, titre, message, kUniChaineNulle));
}

} // namespace

ModuleProxyOOo::ModuleProxyOOo(UniChaine const& identificateur)
    : InterfaceTexteur(identificateur) {
    if (!connexionSession::PeutVoyager(identificateur)) {
        return;
    }
    IdentificateurDocument const id(identificateur);
    proxy_ = std::make_unique<VocalyneOpenOfficeProxyQDBUS>(
        id.DonneService(), id.DonneChemin(), connexionSession::Ouvre(kDelaiConnexion), nullptr);
}

ModuleProxyOOo::~ModuleProxyOOo() = default;

void ModuleProxyOOo::LibereProxy() {
    proxy_.reset();
}

bool ModuleProxyOOo::Relie() {
    if (!proxy_ || reponseProxy::EstConnecte(*proxy_)) {
        return proxy_ != nullptr;
    }
    auto const bus = connexionSession::Ouvre(kDelaiReprise);
    if (bus.isConnected()) {
        auto nouveau = std::make_unique<VocalyneOpenOfficeProxyQDBUS>(proxy_->service(),
                                                                      proxy_->path(), bus, nullptr);
        nouveau->setTimeout(proxy_->timeout());
        proxy_.release()->setParent(nouveau.get());
        proxy_ = std::move(nouveau);
        // The companion knows callers by their connection: this one has named no document yet.
        IdentificateurDocument const id(DonneIdentificateur());
        reponseProxy::Envoie(*proxy_,
                             [&] { return proxy_->InitialiseTexteur(id.DonneDocument()); });
    }
    return true;
}

bool ModuleProxyOOo::EstLie() {
    return proxy_ != nullptr;
}

bool ModuleProxyOOo::InitialiseTexteur(UniChaine const& classe, UniChaine& /*message*/,
                                       int /*mode*/) {
    if (classe == UniChaine(classesFenetre::kOpenOffice3, UniChaine::kCodageLitteral, -1)) {
        AlerteExtensionRequise();
        return false;
    }
    if (!Relie()) {
        return false;
    }
    IdentificateurDocument const id(DonneIdentificateur());
    DelaiTemporaire const delai(*proxy_, contrat::kDelaiInitialisationMs);
    return reponseProxy::Attends(*proxy_, proxy_->InitialiseTexteur(id.DonneDocument()));
}

bool ModuleProxyOOo::DocEstMort() {
    if (!Relie()) {
        return true;
    }
    IdentificateurDocument const id(DonneIdentificateur());
    DelaiTemporaire const delai(*proxy_, contrat::kDelaiDocEstMortMs);
    return reponseProxy::Lis<bool>(*proxy_, proxy_->DocEstMort(id.DonneDocument()));
}

void ModuleProxyOOo::InitialisePour(int mode) {
    if (!Relie()) {
        return;
    }
    if (mode == 0) {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->InitialisePourCorrecteur(); });
    } else {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->InitialisePourOutils(mode == 1); });
    }
}

void ModuleProxyOOo::ActivePour(int mode) {
    if (!Relie()) {
        return;
    }
    if (mode == 0) {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->ActivePourCorrecteur(); });
    } else if (mode == 1 || mode == 2) {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->ActivePourOutils(); });
    }
}

void ModuleProxyOOo::RompsLienCorrecteur() {
    if (Relie()) {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->RompsLienCorrecteur(); });
    }
}

void ModuleProxyOOo::RompsLienTexteur() {
    if (Relie()) {
        reponseProxy::Envoie(*proxy_, [&] { return proxy_->RompsLienTexteur(); });
    }
}

void ModuleProxyOOo::Suspends() {
    try {
        if (Relie()) {
            reponseProxy::Envoie(*proxy_, [&] { return proxy_->Suspends(); });
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): suspension never fails towards the host
    }
}
