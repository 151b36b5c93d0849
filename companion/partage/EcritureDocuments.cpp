// SPDX-License-Identifier: MPL-2.0
#include "EcritureDocuments.h"

#include "ChaineJson.h"
#include "modele/Utf.h"

#include <utility>

namespace compagnon {

namespace {

void AjouteSiConnu(std::string& json, std::string_view cle, std::string_view valeur) {
    if (!valeur.empty()) {
        json += ',';
        AjouteChaineJson(json, cle);
        json += ':';
        AjouteChaineJson(json, valeur);
    }
}

} // namespace

void EcritureDocuments::Ajoute(DocumentServi const& document) {
    json_ += json_.size() > 1 ? ",{\"id\":" : "{\"id\":";
    AjouteChaineJson(json_, document.identifiant);
    json_ += ",\"titre\":";
    AjouteChaineJson(json_, Utf16VersUtf8(document.titre));
    json_ += ",\"chemin\":";
    AjouteChaineJson(json_, Utf16VersUtf8(document.chemin));
    AjouteSiConnu(json_, "genre", document.genre);
    AjouteSiConnu(json_, "langue", document.langue);
    json_ += '}';
}

std::string EcritureDocuments::Termine() {
    json_ += ']';
    return std::move(json_);
}

} // namespace compagnon
