// SPDX-License-Identifier: MPL-2.0
#include "LectureJson.h"

#include "AnalyseurJson.h"

#include <utility>

namespace lectureJson {

std::size_t CompteValeurs(std::string_view octets) {
    std::size_t marques = 1;
    for (char const c : octets) {
        marques += static_cast<std::size_t>(c == ',' || c == ':' || c == '[' || c == '{');
    }
    return marques;
}

namespace {

/// Does nesting go deeper anywhere, strings left out?
bool EstPlusProfondQue(int limite, std::string_view octets) {
    int profondeur = 0;
    bool dansTexte = false;
    for (std::size_t i = 0; i < octets.size(); ++i) {
        char const c = octets[i];
        if (dansTexte) {
            i += c == '\\' ? 1 : 0;
            dansTexte = c != '"';
        } else if (c == '"') {
            dansTexte = true;
        } else if (c == '[' || c == '{') {
            if (++profondeur > limite) {
                return true;
            }
        } else if (c == ']' || c == '}') {
            --profondeur;
        }
    }
    return false;
}

} // namespace

DocumentAnalyse Analyse(std::string const& octets) {
    if (CompteValeurs(octets) > kValeursMax || EstPlusProfondQue(kProfondeurMax, octets)) {
        return {false, {}};
    }
    AnalyseurJson analyseur;
    try {
        bool const entier = analyseur.Analyse(octets);
        return {entier, std::move(analyseur.DonneRacine())};
    } catch (Json::Exception const&) {
        // Too deeply nested: nothing in it can be a zone.
        return {false, {}};
    }
}

Json::Value const& DonneMembre(Json::Value const& objet, char const* cle) {
    return objet.isObject() ? objet[cle] : Json::Value::nullSingleton();
}

std::string_view DonneTexte(Json::Value const& objet, char const* cle, std::string& tampon) {
    auto const& valeur = DonneMembre(objet, cle);
    char const* debut = nullptr;
    char const* fin = nullptr;
    if (valeur.getString(&debut, &fin)) {
        return {debut, static_cast<std::size_t>(fin - debut)};
    }
    tampon = valeur.isArray() || valeur.isObject() ? std::string() : valeur.asString();
    return tampon;
}

int DonneEntier(Json::Value const& objet, char const* cle) {
    auto const& valeur = DonneMembre(objet, cle);
    if (!valeur.isConvertibleTo(Json::intValue)) {
        Json::throwRuntimeError("Type is not convertible to int");
    }
    return valeur.asInt();
}

bool EstListe(Json::Value const& valeur) {
    return valeur.isArray() || valeur.isNull();
}

contrat::PlageDeStyle DonnePlage(Json::Value const& plage) {
    return {DonneEntier(plage, "Debut"), DonneEntier(plage, "Fin"),
            static_cast<std::uint16_t>(DonneEntier(plage, "Style"))};
}

} // namespace lectureJson
