// SPDX-License-Identifier: MPL-2.0
#include "Rapport.h"

#include "ChaineJson.h"

#include <utility>

namespace compagnon {

Rapport::Rapport(std::string genre, std::string langue, std::size_t zones, bool lectureSeule)
    : genre_(std::move(genre))
    , langue_(std::move(langue))
    , zones_(zones)
    , lectureSeule_(lectureSeule) {}

void Rapport::Laisse(std::string_view code, std::size_t nombre, std::string phrase) {
    if (nombre > 0) {
        laisses_.push_back({std::string(code), nombre, std::move(phrase)});
    }
}

std::string Rapport::EnJson() const {
    std::string json = "{\"genre\":";
    AjouteChaineJson(json, genre_);
    if (!langue_.empty()) {
        json += ",\"langue\":";
        AjouteChaineJson(json, langue_);
    }
    json += ",\"zones\":" + std::to_string(zones_);
    json += lectureSeule_ ? ",\"lectureSeule\":true" : ",\"lectureSeule\":false";
    json += ",\"laisses\":[";
    char const* avant = "{\"code\":";
    for (Reste const& reste : laisses_) {
        json += avant;
        avant = ",{\"code\":";
        AjouteChaineJson(json, reste.code);
        json += ",\"nombre\":" + std::to_string(reste.nombre) + ",\"phrase\":";
        AjouteChaineJson(json, reste.phrase);
        json += '}';
    }
    return json + "]}";
}

} // namespace compagnon
