// SPDX-License-Identifier: MPL-2.0
#include "LectureJson.h"

#include <json/reader.h>

namespace lectureJson {

Json::Value Analyse(std::string const& octets) {
    Json::Value racine;
    try {
// The reader that zone documents are defined by; its successor parses by other rules.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
        Json::Reader lecteur;
#pragma GCC diagnostic pop
        // By pointers: given a std::string, the reader would keep a copy of the whole document.
        lecteur.parse(octets.data(), octets.data() + octets.size(), racine, true);
    } catch (Json::Exception const&) {
        // Too deeply nested: nothing in it can be a zone.
        racine = Json::Value();
    }
    return racine;
}

Json::Value const& Membre(Json::Value const& objet, char const* cle) {
    return objet.isObject() ? objet[cle] : Json::Value::nullSingleton();
}

std::string Texte(Json::Value const& objet, char const* cle) {
    auto const& valeur = Membre(objet, cle);
    return valeur.isArray() || valeur.isObject() ? std::string() : valeur.asString();
}

int Entier(Json::Value const& objet, char const* cle) {
    auto const& valeur = Membre(objet, cle);
    if (!valeur.isConvertibleTo(Json::intValue))
        Json::throwRuntimeError("Type is not convertible to int");
    return valeur.asInt();
}

bool EstListe(Json::Value const& valeur) {
    return valeur.isArray() || valeur.isNull();
}

PlageStyle Plage(Json::Value const& plage) {
    auto const debut = static_cast<std::uint32_t>(Entier(plage, "Debut"));
    auto const fin = static_cast<std::uint32_t>(Entier(plage, "Fin"));
    auto const style = static_cast<std::uint32_t>(Entier(plage, "Style"));
    return {debut, fin - debut, style & 0xFFFFU};
}

} // namespace lectureJson
