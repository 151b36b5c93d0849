// SPDX-License-Identifier: MPL-2.0
#include "ImplZoneDeTexteTEMP.h"

#include "ImplAgentTexteur.h"
#include "Positions.h"

#include <algorithm>

using positions::Difference;
using positions::Somme;

ImplZoneDeTexteTEMP::ImplZoneDeTexteTEMP(ImplAgentTexteur* agent, int debut, int fin)
    : agent_(agent)
    , debut_(debut)
    , fin_(fin) {}

ImplZoneDeTexteTEMP::~ImplZoneDeTexteTEMP() = default;

bool ImplZoneDeTexteTEMP::AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) {
    return agent_->AccepteIntervallesZone(Somme(debut_, debut1), Somme(debut_, fin1),
                                          Somme(debut_, debut2), Somme(debut_, fin2));
}

bool ImplZoneDeTexteTEMP::CorrigeDansTexteur(int debut, int fin, UniChaine const& texte,
                                             bool drapeau) {
    agent_->RemplaceDansZones(Somme(debut_, debut), Somme(debut_, fin), fin_, texte, drapeau);
    return false;
}

bool ImplZoneDeTexteTEMP::PeutCorriger(int debut, int fin, UniChaine const& texte) {
    return agent_->PeutCorrigerZone(Somme(debut_, debut), Somme(debut_, fin), texte);
}

void ImplZoneDeTexteTEMP::AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                                           bool drapeau) {
    int debutAbsolu = Somme(*debutAjuste, debut_);
    int finAbsolue = Somme(*finAjustee, debut_);
    agent_->AjusteIntervalleZone(Somme(debut_, debut), Somme(debut_, fin), fin_, debutAbsolu,
                                 finAbsolue, drapeau);
    *debutAjuste = Difference(debutAbsolu, debut_);
    *finAjustee = Difference(finAbsolue, debut_);
}

bool ImplZoneDeTexteTEMP::SelectionneIntervalle(int debut, int fin) {
    return agent_->SelectionneDansTexteur(Somme(debut_, debut), Somme(debut_, fin)) != 0;
}

void ImplZoneDeTexteTEMP::MetsSelection(int debut, int fin) {
    debutSelection_ = debut;
    finSelection_ = fin;
}

void ImplZoneDeTexteTEMP::Remplis() {
    constexpr char16_t kNonLu = 0x07;
    int const longueur = fin_ - debut_;
    texte_.MetsTexte(sdd::ChaineN(longueur, kNonLu));
    texte_.MetsAttribut(0, longueur, 0);
    for (int pos = debut_; pos < fin_;) {
        // A block size may be anything, also one that leaves no room for a character.
        auto const finBloc = static_cast<int>(
            std::clamp<std::int64_t>(std::int64_t{pos} + agent_->DonneTailleBloc() - 1, pos, fin_));
        if (pos == finBloc) {
            return;
        }
        auto bloc = agent_->DonneTexteAvecAttributs(pos, finBloc);
        agent_->NormaliseTexteLu(bloc);
        bloc.CoupeA(finBloc - pos);
        int const place = bloc.Longueur();
        if (place == 0) {
            return;
        }
        texte_.Remplace(pos - debut_, place, bloc);
        pos += place;
    }
}

void ImplZoneDeTexteTEMP::Decale(int fin, int finZone, int delta) {
    if (fin_ != finZone && fin <= debut_) {
        debut_ = Somme(debut_, delta);
    }
    if (fin <= fin_) {
        fin_ = Somme(fin_, delta);
    }
}
