// SPDX-License-Identifier: MPL-2.0
#include "ZoneDeTexteOOoProxy.h"

#include "ConnexionSession.h"
#include "ModuleProxyOOo.h"
#include "Positions.h"
#include "ReponseProxy.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"

ZoneDeTexteOOoProxy::ZoneDeTexteOOoProxy(VocalyneOpenOfficeProxyQDBUS* proxy, ModuleProxyOOo* agent,
                                         UniChaine const& texte, UniChaine const& nom, int debutSel,
                                         int finSel)
    : proxy_(proxy)
    , agent_(agent)
    , texte_(texte)
    , debutSel_(debutSel)
    , finSel_(finSel)
    , nom_(nom) {}

ZoneDeTexteOOoProxy::~ZoneDeTexteOOoProxy() = default;

bool ZoneDeTexteOOoProxy::AccepteIntervalles(int /*debut1*/, int /*fin1*/, int /*debut2*/,
                                             int /*fin2*/) {
    return true;
}

bool ZoneDeTexteOOoProxy::CorrigeDansTexteur(int debut, int fin, UniChaine const& texte,
                                             bool drapeau) {
    if (!EstReliee() || !connexionSession::PeutVoyager(texte)) {
        return false;
    }
    bool const envoyee = reponseProxy::Envoie(*proxy_, [&] {
        return proxy_->CorrigeDansTexteur(nom_.VersQString(), debut, fin, texte.VersQString(),
                                          drapeau);
    });
    texte_.Remplace(debut, positions::Difference(fin, debut), texte);
    return envoyee;
}

TexteAvecAttributs ZoneDeTexteOOoProxy::DonneTexte() {
    TexteAvecAttributs texte(sdd::T(texte_));
    for (auto const& plage : styles_) {
        texte.MetsAttribut(plage.debut, plage.DonneLongueur(), plage.style);
    }
    if (agent_ != nullptr) {
        agent_->TraiteTexteLu(texte);
    }
    return texte;
}

bool ZoneDeTexteOOoProxy::PeutCorriger(int debut, int fin, UniChaine const& texte) {
    if (!EstReliee() || !connexionSession::PeutVoyager(texte)) {
        return false;
    }
    return reponseProxy::Lis<bool>(
        *proxy_, proxy_->PeutCorriger(nom_.VersQString(), debut, fin, texte.VersQString()));
}

void ZoneDeTexteOOoProxy::AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                                           bool /*drapeau*/) {
    *debutAjuste = debut;
    *finAjustee = fin;
}

bool ZoneDeTexteOOoProxy::SelectionneIntervalle(int debut, int fin) {
    if (!EstReliee()) {
        return false;
    }
    return reponseProxy::Envoie(
        *proxy_, [&] { return proxy_->SelectionneIntervalle(nom_.VersQString(), debut, fin); });
}
