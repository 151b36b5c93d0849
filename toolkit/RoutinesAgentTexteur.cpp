// SPDX-License-Identifier: MPL-2.0
#include "RoutinesAgentTexteur.h"

#include "ImplAgentTexteur.h"
#include "Positions.h"

#include <cstdint>

bool InitialiseAgentSelonInfos(ImplAgentTexteur* agent, InfosApplication const& infos) {
    if (agent == nullptr) {
        return false;
    }
    int const mode = infos.Genre >= 1 && infos.Genre <= 3 ? infos.Genre - 1 : 3;
    UniChaine message;
    return agent->InitialiseTexteur(infos.ClasseInitialisation, message, mode);
}

void DonneBornesZone(ImplAgentTexteur& agent, int position, int fin, int& longueur, int& debut) {
    longueur = 0;
    debut = 0;
    int const finZone =
        agent.DonneFinZone(position == fin ? positions::Difference(position, 1) : position);
    int precedente = agent.DonneFinZone(0);
    if (finZone > precedente) {
        for (int suivante = agent.DonneFinZone(precedente);
             precedente < suivante && suivante < finZone;
             suivante = agent.DonneFinZone(precedente)) {
            precedente = suivante;
        }
    } else {
        precedente = 0;
    }
    debut = precedente;
    longueur = positions::Difference(finZone, precedente);
}

bool EstFinDeZone(ImplAgentTexteur& agent, int a, int b, int c) {
    if (agent.DonneLongueurTexte() < b) {
        return true;
    }
    if (a != b || b != c || b < 1) {
        return false;
    }
    return agent.DonneFinZone(b - 1) == b;
}

bool EstMemeCentaineVersion(UniChaine const& version1, UniChaine const& version2) {
    std::int64_t const v1 = version1.VersQString().toInt();
    std::int64_t const v2 = version2.VersQString().toInt();
    std::int64_t const reste = v1 % 100;
    std::int64_t const centaine = v1 - (reste < 0 ? reste + 100 : reste);
    return centaine <= v2 && v2 <= centaine + 99;
}
