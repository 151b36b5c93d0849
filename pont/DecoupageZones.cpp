// SPDX-License-Identifier: MPL-2.0
#include "DecoupageZones.h"

#include "LectureJson.h"

using Verdict = ParcoursJson::Verdict;

namespace {

bool EstObjet(std::string_view valeur) {
    return valeur.front() == '{';
}

} // namespace

DecoupageZones::DecoupageZones(std::string_view document, AnalyseurJson& analyseur)
    : forme_(Parcours(ParcoursJson(document), analyseur)) {}

DecoupageZones::Forme DecoupageZones::Parcours(ParcoursJson parcours, AnalyseurJson& analyseur) {
    if (!parcours.Prends('{')) {
        return Forme::Autre;
    }
    if (!parcours.Prends('}')) {
        do {
            std::string_view cle;
            if (!parcours.PrendsCle(cle)) {
                return Forme::Autre;
            }
            bool const sontLesZones = cle == "Zones";
            if (sontLesZones && parcours.Prends('[')) {
                zones_ = parcours;
                enReste_ = !parcours.Prends(']');
                auto const forme = enReste_ ? PasseZones(parcours, analyseur) : Forme::Lisible;
                if (forme != Forme::Lisible) {
                    return forme;
                }
                continue;
            }
            std::string_view valeur;
            std::size_t valeurs = 0;
            if (parcours.PrendsValeur(valeur, valeurs) != Verdict::Juste) {
                return Forme::Autre;
            }
            enReste_ = enReste_ && !sontLesZones;
        } while (parcours.Prends(','));
        if (!parcours.Prends('}')) {
            return Forme::Autre;
        }
    }
    return parcours.EstALaFin() ? Forme::Lisible : Forme::Autre;
}

/// From in front of the array's first element to behind its closing bracket.
DecoupageZones::Forme DecoupageZones::PasseZones(ParcoursJson& parcours, AnalyseurJson& analyseur) {
    std::size_t nombre = 0;
    do {
        std::string_view valeur;
        std::size_t valeurs = 0;
        auto const verdict = parcours.PrendsValeur(valeur, valeurs);
        if (verdict == Verdict::Perdue) {
            return Forme::Autre;
        }
        nombre += static_cast<std::size_t>(EstObjet(valeur));
        if (nombre > kZonesMax || valeurs > lectureJson::kValeursMax ||
            (verdict == Verdict::Douteuse && !analyseur.Analyse(valeur))) {
            return Forme::Refusee;
        }
    } while (parcours.Prends(','));
    return parcours.Prends(']') ? Forme::Lisible : Forme::Autre;
}

bool DecoupageZones::PrendsSuivante(std::string_view& zone) {
    while (enReste_) {
        std::size_t valeurs = 0;
        zones_.PrendsValeur(zone, valeurs);
        enReste_ = zones_.Prends(',');
        if (EstObjet(zone)) {
            return true;
        }
    }
    return false;
}
