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
    auto const bus = QDBusConnection::sessionBus();
    connexionSession::AccepteGrandesReponses(bus);
    IdentificateurDocument const id(identificateur);
    proxy_ = std::make_unique<VocalyneOpenOfficeProxyQDBUS>(id.DonneService(), id.DonneChemin(),
                                                            bus, nullptr);
}

ModuleProxyOOo::~ModuleProxyOOo() = default;

void ModuleProxyOOo::LibereProxy() {
    proxy_.reset();
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
    if (!proxy_) {
        return false;
    }
    IdentificateurDocument const id(DonneIdentificateur());
    DelaiTemporaire const delai(*proxy_, contrat::kDelaiInitialisationMs);
    return reponseProxy::Attends(*proxy_, proxy_->InitialiseTexteur(id.DonneDocument()));
}

bool ModuleProxyOOo::DocEstMort() {
    if (!proxy_) {
        return true;
    }
    IdentificateurDocument const id(DonneIdentificateur());
    DelaiTemporaire const delai(*proxy_, contrat::kDelaiDocEstMortMs);
    return reponseProxy::Lis<bool>(*proxy_, proxy_->DocEstMort(id.DonneDocument()));
}

void ModuleProxyOOo::InitialisePour(int mode) {
    if (!proxy_) {
        return;
    }
    if (mode == 0) {
        proxy_->InitialisePourCorrecteur();
    } else {
        proxy_->InitialisePourOutils(mode == 1);
    }
}

void ModuleProxyOOo::ActivePour(int mode) {
    if (!proxy_) {
        return;
    }
    if (mode == 0) {
        proxy_->ActivePourCorrecteur();
    } else if (mode == 1 || mode == 2) {
        proxy_->ActivePourOutils();
    }
}

void ModuleProxyOOo::RompsLienCorrecteur() {
    if (proxy_) {
        proxy_->RompsLienCorrecteur();
    }
}

void ModuleProxyOOo::RompsLienTexteur() {
    if (proxy_) {
        proxy_->RompsLienTexteur();
    }
}

void ModuleProxyOOo::Suspends() {
    if (!proxy_) {
        return;
    }
    try {
        proxy_->Suspends();
    } catch (...) { // NOLINT(bugprone-empty-catch): suspension never fails towards the host
    }
}
