// SPDX-License-Identifier: MPL-2.0
#include "ListeDeZones.h"

#include "CodageTexteJson.h"
#include "DecoupageZones.h"
#include "LectureJson.h"
#include "ZoneDirecte.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace {

ZoneRecue LisZone(Json::Value const& element) {
    ZoneRecue zone;
    std::string tampon;
    zone.nom = DecodeTexteJson(lectureJson::DonneTexte(element, "Nom", tampon));
    zone.texte = DecodeTexteJson(lectureJson::DonneTexte(element, "Texte", tampon));
    zone.debutSel = lectureJson::DonneEntier(element, "DebutSel");
    zone.finSel = lectureJson::DonneEntier(element, "FinSel");
    auto const& styles = lectureJson::DonneMembre(element, "InfosStyle");
    if (lectureJson::EstListe(styles)) {
        zone.styles.reserve(styles.size());
        for (auto const& plage : styles) {
            zone.styles.push_back(lectureJson::DonnePlage(plage));
        }
    }
    return zone;
}

/// The zones of a document that its parts do not tell: the parser's tree of the whole.
void LisEnEntier(std::string const& octets, std::function<void(ZoneRecue&&)> const& recois) {
    auto const document = lectureJson::Analyse(octets);
    auto const& zones = lectureJson::DonneMembre(document.racine, "Zones");
    if (!document.entier || !lectureJson::EstListe(zones)) {
        return;
    }
    auto const estObjet = [](Json::Value const& element) { return element.isObject(); };
    if (std::count_if(zones.begin(), zones.end(), estObjet) >
        static_cast<std::ptrdiff_t>(kZonesMax)) {
        return;
    }
    for (auto const& element : zones) {
        if (estObjet(element)) {
            recois(LisZone(element));
        }
    }
}

} // namespace

void LisListeDeZones(std::string const& octets, std::function<void(ZoneRecue&&)> const& recois) {
    if (octets.empty()) {
        return;
    }
    // Zone by zone wherever that goes: the parser's tree of a whole long document takes three times
    // its size, and is slow to walk.
    AnalyseurJson analyseur;
    DecoupageZones decoupage(octets, analyseur);
    if (decoupage.DonneForme() == DecoupageZones::Forme::Autre) {
        LisEnEntier(octets, recois);
    }
    if (decoupage.DonneForme() != DecoupageZones::Forme::Lisible) {
        return;
    }
    for (std::string_view morceau; decoupage.PrendsSuivante(morceau);) {
        ZoneRecue zone;
        if (!LisZoneDirecte(morceau, zone)) {
            analyseur.Analyse(morceau);
            zone = LisZone(analyseur.DonneRacine());
        }
        recois(std::move(zone));
    }
}
