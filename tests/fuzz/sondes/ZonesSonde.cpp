// SPDX-License-Identifier: MPL-2.0
#include "ListeDeZones.h"
#include "Sonde.h"

#include <json/value.h>

#include <string>
#include <vector>

namespace {

struct Lecture {
    std::vector<ZoneRecue> zones;
    std::string erreur;
};

Lecture Lis(std::string const& document) {
    Lecture lecture;
    try {
        LisListeDeZones(document,
                        [&](ZoneRecue&& zone) { lecture.zones.push_back(std::move(zone)); });
    } catch (Json::RuntimeError const& erreur) {
        lecture.erreur = erreur.what();
    }
    return lecture;
}

bool SontEgales(ZoneRecue const& a, ZoneRecue const& b) {
    return a.nom == b.nom && a.texte == b.texte && a.debutSel == b.debutSel &&
           a.finSel == b.finSel && a.styles == b.styles;
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    std::string const document(octets, octets + taille);
    auto const lecture = Lis(document);
    Exige(lecture.erreur.empty() || lecture.erreur == "Type is not convertible to int",
          "the only error is that of integers");
    // A comment in front says nothing, but keeps the document from being read zone by zone.
    auto const entiere = Lis(document.empty() ? document : "/**/" + document);
    Exige(lecture.erreur == entiere.erreur, "both ways of reading raise the same");
    Exige(std::equal(lecture.zones.begin(), lecture.zones.end(), entiere.zones.begin(),
                     entiere.zones.end(), SontEgales),
          "both ways of reading find the same zones");
    return 0;
}
