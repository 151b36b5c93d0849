// SPDX-License-Identifier: MPL-2.0
// The extension points' defaults: what a connector that overrides nothing answers.
#include "ImplAgentTexteur.h"

char const* ImplAgentTexteur::DonneCaracteresSpeciaux() {
    return "\x07\x11";
}

bool ImplAgentTexteur::AccepteIntervallesZone(int /*debut1*/, int /*fin1*/, int /*debut2*/,
                                              int /*fin2*/) {
    return true;
}

void ImplAgentTexteur::RemplaceDansTexteur(int /*debut*/, int /*fin*/, int /*finZone*/,
                                           UniChaine const& /*texte*/, bool /*drapeau*/) {}

TexteAvecAttributs ImplAgentTexteur::DonneTexteAvecAttributs(int /*debut*/, int /*fin*/) {
    return {};
}

UniChaine ImplAgentTexteur::DonneTexteSelection() {
    return {};
}

int ImplAgentTexteur::DonneDebutSelectionTexte() {
    return 0;
}

int ImplAgentTexteur::DonneLongueurTexte() {
    return 0;
}

int ImplAgentTexteur::DonneFinSelectionTexte() {
    return 0;
}

int ImplAgentTexteur::DonneFinZone(int position) {
    for (int const borne : bornes_) {
        if (borne > position) {
            return borne;
        }
    }
    return bornes_.empty() ? -1 : bornes_.back();
}

void ImplAgentTexteur::DonneTexteContexte(int& debutContexte, int& finContexte, UniChaine& texte,
                                          int& debutSelection, int& finSelection) {
    texte = debutContexte == finContexte
                ? sdd::T(DonneTexteAvecAttributs(debutContexte, debutContexte).DonneTexte())
                : DonneTexteSelection();
    debutSelection = 0;
    finSelection = texte.Longueur();
}

bool ImplAgentTexteur::PeutModifier() {
    return true;
}

bool ImplAgentTexteur::PeutCorrigerZone(int /*debut*/, int /*fin*/, UniChaine const& /*texte*/) {
    return true;
}

void ImplAgentTexteur::AjusteIntervalleZone(int /*debut*/, int /*fin*/, int /*finZone*/,
                                            int& /*debutAjuste*/, int& /*finAjustee*/,
                                            bool /*drapeau*/) {}

void ImplAgentTexteur::AvantRemplacement(UniChaine const& /*texte*/) {}

int ImplAgentTexteur::ApresRemplacement(int longueur) {
    return longueur;
}

int ImplAgentTexteur::SelectionneDansTexteur(int debut, int /*fin*/) {
    return debut;
}

void ImplAgentTexteur::PrepareLecture() {}

int ImplAgentTexteur::DonneTailleBloc() {
    return 32768;
}

bool ImplAgentTexteur::RemplaceEspacesInsecables() {
    return false;
}
