// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "outils/ConnecteurMuet.h"
#include "outils/Textes.h"

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

/// A connector to a text in memory. A test replaces the answers that it is about and reads what the
/// toolkit asked for.
class ConnecteurEssai : public ConnecteurMuet {
  public:
    using Intervalle = std::tuple<int, int>;

    explicit ConnecteurEssai(std::u16string_view texte = {})
        : InterfaceTexteur(UniChaine())
        , document(A(texte)) {}

    TexteAvecAttributs document;
    int tailleBloc = 32768;
    bool insecables = false;
    bool peutModifier = true;
    std::function<void()> prepare = [] {};
    std::function<int()> longueur = [this] { return document.Longueur(); };
    std::function<int()> debutSelection = [] { return 0; };
    std::function<int()> finSelection = [] { return 0; };
    /// The generic agent's own way with the boundaries list where none is given.
    std::function<int(int)> finZone;
    std::function<TexteAvecAttributs(int, int)> lis = [this](int debut, int fin) {
        return Extrait(debut, fin);
    };
    std::function<void(TexteAvecAttributs&)> traite = [](TexteAvecAttributs&) {};
    std::function<int()> donneTailleBloc = [this] { return tailleBloc; };
    std::function<bool()> remplaceInsecables = [this] { return insecables; };
    std::function<int(int, int)> selectionne; ///< the generic default where none is given

    std::vector<Intervalle> lectures;   ///< what was asked of `DonneTexteAvecAttributs`
    std::vector<Intervalle> selections; ///< what was asked of `SelectionneDansTexteur`
    std::vector<std::string> ordre;     ///< the bounds' operations, in the order of their calls

    TexteAvecAttributs Extrait(int debut, int fin) const {
        TexteAvecAttributs extrait(sdd::T(TexteDe(document).Extrais(debut, fin - debut)));
        for (auto const& plage : document.DonnePlages()) {
            extrait.MetsAttribut(plage.debut - debut, plage.Longueur(), plage.attribut);
        }
        return extrait;
    }

    void TraiteTexteLu(TexteAvecAttributs& texte) override { traite(texte); }
    TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin) override {
        lectures.emplace_back(debut, fin);
        return lis(debut, fin);
    }
    void PrepareLecture() override {
        ordre.emplace_back("PrepareLecture");
        prepare();
    }
    int DonneLongueurTexte() override {
        ordre.emplace_back("DonneLongueurTexte");
        return longueur();
    }
    int DonneDebutSelectionTexte() override {
        ordre.emplace_back("DonneDebutSelectionTexte");
        return debutSelection();
    }
    int DonneFinSelectionTexte() override {
        ordre.emplace_back("DonneFinSelectionTexte");
        return finSelection();
    }
    int DonneFinZone(int position) override {
        return finZone ? finZone(position) : ConnecteurMuet::DonneFinZone(position);
    }
    bool PeutModifier() override { return peutModifier; }
    int SelectionneDansTexteur(int debut, int fin) override {
        selections.emplace_back(debut, fin);
        return selectionne ? selectionne(debut, fin)
                           : ConnecteurMuet::SelectionneDansTexteur(debut, fin);
    }
    int DonneTailleBloc() override { return donneTailleBloc(); }
    bool RemplaceEspacesInsecables() override { return remplaceInsecables(); }
};

/// What a connector that fails throws.
[[noreturn]] inline void Echoue() {
    throw std::runtime_error("the word processor is gone");
}

/// The texts of a collection's zones, in order.
inline std::vector<UniChaine> TextesDe(CollectionZonesDeTexte const& zones) {
    std::vector<UniChaine> textes;
    textes.reserve(static_cast<std::size_t>(zones.DonneNombre()));
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        textes.push_back(TexteDe(zones.DonneZone(i)->DonneTexte()));
    }
    return textes;
}

/// The selections of a collection's zones, in order.
inline std::vector<ConnecteurEssai::Intervalle> SelectionsDe(CollectionZonesDeTexte const& zones) {
    std::vector<ConnecteurEssai::Intervalle> selections;
    selections.reserve(static_cast<std::size_t>(zones.DonneNombre()));
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        auto* const zone = zones.DonneZone(i);
        selections.emplace_back(zone->DonneDebutSelection(), zone->DonneFinSelection());
    }
    return selections;
}
