// SPDX-License-Identifier: MPL-2.0
#include "Chantier.h"

#include "InfosApplication.h"
#include "commun/MessagesHote.h"

namespace hote {

UniChaine Chantier::DonneId() const {
    return UniChaine(id_.isEmpty() ? QStringLiteral("verifie") : id_);
}

void Chantier::SignaleException(char const* operation, char const* texte) const {
    rapporteur_.Viole(
        "appels.exceptions",
        texte != nullptr
            ? Tr("{1} a lancé une exception : {2}", operation, texte)
            : Tr("{1} a lancé une exception qui n’est pas une std::exception.", operation));
}

GreffonEprouve Chantier::Charge() const {
    rapporteur_.Appelle("dlopen");
    return GreffonEprouve(Greffon::Charge(fichier_).release(), {&rapporteur_, "dlclose"});
}

AgentEprouve Chantier::OuvreAgent(Greffon const& greffon) const {
    InfosApplication infos;
    AgentEprouve agent = Tiens(nullptr);
    Appelle("DonneNomsTexteurs", [&] { greffon.DonneNomsTexteurs(infos.Classe); });
    infos.ClasseInitialisation = infos.Classe;
    infos.Id = DonneId();
    infos.Genre = 1;
    UniChaine id = infos.Id;
    Appelle("DonneIdentificateurDocumentCourant",
            [&] { greffon.DonneIdentificateurDocumentCourant(infos, id); });
    Appelle("CreeAgentTexteur",
            [&] { agent = Tiens(greffon.CreeAgentTexteur(infos, id).release()); });
    if (agent) {
        Appelle("InitialisePour", [&] { agent->InitialisePour(0); });
    }
    return agent;
}

bool Chantier::Lis(InterfaceAgentTexteur& agent, CollectionZonesDeTexte& zones) const {
    bool lu = false;
    zones.Vide();
    Appelle(
        "SynchronisePositions", [&] { lu = agent.SynchronisePositions(zones); }, true);
    return lu;
}

std::vector<QString> Chantier::DonneTextes(CollectionZonesDeTexte const& zones) const {
    std::vector<QString> textes;
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        textes.emplace_back();
        Appelle("DonneTexte", [&] {
            textes.back() = zones.DonneZone(i)->DonneTexte().DonneTexte().VersQString();
        });
    }
    return textes;
}

} // namespace hote
