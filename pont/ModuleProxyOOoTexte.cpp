// SPDX-License-Identifier: MPL-2.0
// The agent's text operations: what the host reads of the document and changes in its selection.
#include "ConnexionSession.h"
#include "ModuleProxyOOo.h"
#include "RemplissageZones.h"
#include "ReponseProxy.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"

namespace {

/// The reply of a call that waits, as the host's string.
UniChaine LisTexte(VocalyneOpenOfficeProxyQDBUS& proxy, QDBusPendingCall const& appel) {
    return UniChaine(reponseProxy::Lis<QString>(proxy, appel));
}

} // namespace

UniChaine ModuleProxyOOo::DonneCheminDocument() {
    return Relie() ? LisTexte(*proxy_, proxy_->DonneCheminDocument()) : UniChaine();
}

UniChaine ModuleProxyOOo::DonneTitreDocument() {
    return Relie() ? LisTexte(*proxy_, proxy_->DonneTitreDocument()) : UniChaine();
}

UniChaine ModuleProxyOOo::DonneNomApplication() {
    return UniChaine("LibreOffice", UniChaine::kCodageLitteral, -1);
}

UniChaine ModuleProxyOOo::DonneFinDeParagraphe() {
    constexpr char16_t kFinDeLigne = 10;
    return UniChaine(&kFinDeLigne, 1);
}

bool ModuleProxyOOo::SynchronisePositions(CollectionZonesDeTexte& zones) {
    if (!Relie()) {
        return false;
    }
    // The pending reply keeps its message, as long as the text: it is let go of before the text is
    // put into bytes, and the 16-bit text before they are parsed.
    auto const lis = [this](UniChaine& texte) {
        auto const appel = proxy_->SynchronisePositions(DonneIdentificateur().VersQString());
        if (!reponseProxy::Attends(*proxy_, appel)) {
            return false;
        }
        texte = UniChaine(reponseProxy::DonneArgument<QString>(appel));
        return true;
    };
    std::string octets;
    {
        UniChaine texte;
        if (!lis(texte)) {
            return false;
        }
        octets = texte.VersUtf8();
    }
    AjouteZones(octets, proxy_.get(), this, zones);
    return true;
}

bool ModuleProxyOOo::PermetsRetourDeCharriot() {
    return Relie() && reponseProxy::Lis<bool>(*proxy_, proxy_->PermetsRetourDeCharriot());
}

int ModuleProxyOOo::AjusteSelectionPourOutils(int debut, int fin) {
    if (Relie()) {
        reponseProxy::Envoie(*proxy_,
                             [&] { return proxy_->AjusteSelectionPourOutils(debut, fin); });
    }
    return 0;
}

UniChaine ModuleProxyOOo::DonneContexte(int* debut, int* fin) {
    if (!Relie()) {
        return {};
    }
    auto texte = DonneContexteSelection();
    *debut = DonneDebutSelectionDansSonContexte();
    *fin = DonneFinSelectionDansSonContexte();
    return texte;
}

int ModuleProxyOOo::RemplaceEtReselectionne(UniChaine const& texte) {
    if (!Relie() || !connexionSession::PeutVoyager(texte)) {
        return 0;
    }
    bool const envoye = reponseProxy::Envoie(
        *proxy_, [&] { return proxy_->RemplaceEtReselectionne(texte.VersQString()); });
    return envoye ? texte.Longueur() : 0;
}

UniChaine ModuleProxyOOo::DonneContexteSelection() {
    return LisTexte(*proxy_, proxy_->DonneContexteSelection());
}

int ModuleProxyOOo::DonneDebutSelectionDansSonContexte() {
    return reponseProxy::Lis<int>(*proxy_, proxy_->DonneDebutSelectionDansSonContexte());
}

int ModuleProxyOOo::DonneFinSelectionDansSonContexte() {
    return reponseProxy::Lis<int>(*proxy_, proxy_->DonneFinSelectionDansSonContexte());
}
