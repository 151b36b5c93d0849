// SPDX-License-Identifier: MPL-2.0
#include "ListeDeZones.h"

#include "CodageTexteJson.h"
#include "DecoupageZones.h"
#include "LectureJson.h"

#include <optional>

namespace {

ZoneRecue LisZone(Json::Value const& element) {
    ZoneRecue zone;
    std::string tampon;
    zone.nom = DecodeTexteJson(lectureJson::Texte(element, "Nom", tampon));
    zone.texte = DecodeTexteJson(lectureJson::Texte(element, "Texte", tampon));
    zone.debutSel = lectureJson::Entier(element, "DebutSel");
    zone.finSel = lectureJson::Entier(element, "FinSel");
    auto const& styles = lectureJson::Membre(element, "InfosStyle");
    if (lectureJson::EstListe(styles)) {
        zone.styles.reserve(styles.size());
        for (auto const& plage : styles) {
            zone.styles.push_back(lectureJson::Plage(plage));
        }
    }
    return zone;
}

/// The zones of a document that can be taken apart and is right throughout, read one by one: the
/// parser's tree of a whole long document takes three times its size, and is slow to walk.
std::optional<std::vector<ZoneRecue>> LisUneParUne(std::string const& octets) {
    auto const morceaux = DecoupeZones(octets);
    if (!morceaux) {
        return std::nullopt;
    }
    std::vector<ZoneRecue> zones;
    zones.reserve(morceaux->size());
    lectureJson::AnalyseurJson analyseur;
    try {
        for (auto const& morceau : *morceaux) {
            if (!analyseur.Analyse(morceau)) {
                return std::nullopt;
            }
            zones.push_back(LisZone(analyseur.DonneRacine()));
        }
    } catch (Json::Exception const&) {
        return std::nullopt; // what is wrong, and where, comes out when the whole is read
    }
    return zones;
}

} // namespace

void LisListeDeZones(std::string const& octets, std::function<void(ZoneRecue&&)> const& recois) {
    if (octets.empty()) {
        return;
    }
    if (auto lues = LisUneParUne(octets)) {
        for (auto& zone : *lues) {
            recois(std::move(zone));
        }
        return;
    }
    auto const racine = lectureJson::Analyse(octets);
    auto const& zones = lectureJson::Membre(racine, "Zones");
    if (!lectureJson::EstListe(zones)) {
        return;
    }
    for (auto const& element : zones) {
        recois(LisZone(element));
    }
}
