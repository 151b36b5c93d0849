// SPDX-License-Identifier: MPL-2.0
#include "ZoneDirecte.h"

#include "CodageTexteJson.h"
#include "ParcoursJson.h"

#include <cstddef>

namespace {

/// Hands each member of the object that stands next to `lis`, which is to go behind its value. As
/// in the parser's tree the last of several members of one name is the one that counts, so `lis`
/// writes over what it read before.
template <typename Lis>
bool LisMembres(ParcoursJson& parcours, Lis const& lis) {
    if (!parcours.Prends('{')) {
        return false;
    }
    if (parcours.Prends('}')) {
        return true;
    }
    do {
        std::string_view cle;
        if (!parcours.PrendsCle(cle) || !lis(cle)) {
            return false;
        }
    } while (parcours.Prends(','));
    return parcours.Prends('}');
}

bool PasseUneValeur(ParcoursJson& parcours) {
    std::string_view valeur;
    std::size_t valeurs = 0;
    return parcours.PrendsValeur(valeur, valeurs) == ParcoursJson::Verdict::Juste;
}

bool LisTexte(ParcoursJson& parcours, UniChaine& texte) {
    std::string_view encode;
    if (!parcours.PrendsTexteSansEchappement(encode)) {
        return false;
    }
    texte = DecodeTexteJson(encode);
    return true;
}

bool LisPlage(ParcoursJson& parcours, contrat::PlageDeStyle& plage) {
    int style = 0;
    bool const lue = LisMembres(parcours, [&](std::string_view cle) {
        if (cle == "Debut") {
            return parcours.PrendsPetitEntier(plage.debut);
        }
        if (cle == "Fin") {
            return parcours.PrendsPetitEntier(plage.fin);
        }
        return cle == "Style" ? parcours.PrendsPetitEntier(style) : PasseUneValeur(parcours);
    });
    plage.style = static_cast<std::uint16_t>(style);
    return lue;
}

bool LisPlages(ParcoursJson& parcours, std::vector<contrat::PlageDeStyle>& plages) {
    plages.clear();
    if (!parcours.Prends('[')) {
        return false;
    }
    if (parcours.Prends(']')) {
        return true;
    }
    do {
        if (!LisPlage(parcours, plages.emplace_back())) {
            return false;
        }
    } while (parcours.Prends(','));
    return parcours.Prends(']');
}

} // namespace

bool LisZoneDirecte(std::string_view element, ZoneRecue& zone) {
    ParcoursJson parcours(element);
    return LisMembres(parcours, [&](std::string_view cle) {
        if (cle == "Nom") {
            return LisTexte(parcours, zone.nom);
        }
        if (cle == "Texte") {
            return LisTexte(parcours, zone.texte);
        }
        if (cle == "DebutSel") {
            return parcours.PrendsPetitEntier(zone.debutSel);
        }
        if (cle == "FinSel") {
            return parcours.PrendsPetitEntier(zone.finSel);
        }
        return cle == "InfosStyle" ? LisPlages(parcours, zone.styles) : PasseUneValeur(parcours);
    });
}
