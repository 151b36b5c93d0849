// SPDX-License-Identifier: MPL-2.0
#include "LectureSimd.h"

#include <simdjson.h>

#include <cstdint>
#include <stdexcept>

namespace banc {

namespace {

/// What reading a value looks at, so that no reading can be left out.
std::uint64_t Regarde(simdjson::dom::element const& valeur) {
    switch (valeur.type()) {
    case simdjson::dom::element_type::STRING:
        return valeur.get_string().value().size();
    case simdjson::dom::element_type::INT64:
        return static_cast<std::uint64_t>(valeur.get_int64().value());
    case simdjson::dom::element_type::OBJECT: {
        std::uint64_t somme = 0;
        simdjson::dom::object const objet = valeur.get_object();
        for (auto const membre : objet) {
            somme += Regarde(membre.value);
        }
        return somme;
    }
    case simdjson::dom::element_type::ARRAY: {
        std::uint64_t somme = 0;
        simdjson::dom::array const liste = valeur.get_array();
        for (auto const element : liste) {
            somme += Regarde(element);
        }
        return somme;
    }
    default:
        return 0;
    }
}

} // namespace

int CompteZonesSimd(std::string_view document) {
    static simdjson::dom::parser analyseur;
    int zones = 0;
    std::uint64_t somme = 0;
    try {
        simdjson::dom::array const liste = analyseur.parse(document)["Zones"];
        for (auto const zone : liste) {
            somme += Regarde(zone);
            ++zones;
        }
    } catch (simdjson::simdjson_error const& erreur) {
        throw std::runtime_error(erreur.what());
    }
    if (somme == 0 && zones != 0) {
        throw std::runtime_error("the zones are empty");
    }
    return zones;
}

} // namespace banc
