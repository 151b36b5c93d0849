// SPDX-License-Identifier: MPL-2.0
#include "EcritureNoms.h"

#include "ChaineJson.h"
#include "ErreurDuService.h"

#include <utility>

namespace compagnon {

void EcritureNoms::Ajoute(std::string_view zone, std::string_view nom) {
    if (nom.empty()) {
        return;
    }
    if (json_.size() > 1) {
        json_ += ',';
    }
    AjouteChaineJson(json_, zone);
    json_ += ':';
    AjouteChaineJson(json_, nom);
}

std::string EcritureNoms::Termine() {
    json_ += '}';
    if (json_.size() > contrat::kLimiteReponse) {
        throw ErreurDuService(contrat::Erreur::TropGrand);
    }
    return std::move(json_);
}

} // namespace compagnon
