// SPDX-License-Identifier: MPL-2.0
#include "ListeDeZones.h"

#include "CodageTexteJson.h"
#include "LectureJson.h"

namespace {

ZoneLue LisZone(Json::Value const& element) {
    ZoneLue zone;
    zone.nom = DecodeTexteJson(lectureJson::Texte(element, "Nom"));
    zone.texte = DecodeTexteJson(lectureJson::Texte(element, "Texte"));
    zone.debutSel = lectureJson::Entier(element, "DebutSel");
    zone.finSel = lectureJson::Entier(element, "FinSel");
    auto const& styles = lectureJson::Membre(element, "InfosStyle");
    if (lectureJson::EstListe(styles)) {
        zone.styles.reserve(styles.size());
        for (auto const& plage : styles)
            zone.styles.push_back(lectureJson::Plage(plage));
    }
    return zone;
}

} // namespace

void LisListeDeZones(std::string const& octets, std::function<void(ZoneLue&&)> const& recois) {
    if (octets.empty())
        return;
    auto const racine = lectureJson::Analyse(octets);
    auto const& zones = lectureJson::Membre(racine, "Zones");
    if (!lectureJson::EstListe(zones))
        return;
    for (auto const& element : zones)
        recois(LisZone(element));
}
