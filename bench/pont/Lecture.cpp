// SPDX-License-Identifier: MPL-2.0
#include "CollectionZonesDeTexte.h"
#include "DocumentDeZones.h"
#include "RemplissageZones.h"
#include "commun/Mesures.h"

#include <json/reader.h>

#include <stdexcept>

namespace banc {

namespace {

/// What the agent does with a reply once it has it.
void LisEtLibere(QString const& reponse, int attendues) {
    CollectionZonesDeTexte zones;
    AjouteZones(UniChaine(reponse).VersUtf8(), nullptr, nullptr, zones);
    if (zones.DonneNombre() != attendues) {
        throw std::logic_error("zones were lost");
    }
}

void AnalyseSeulement(std::string const& octets) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::Reader lecteur;
#pragma GCC diagnostic pop
    Json::Value racine;
    if (!lecteur.parse(octets.data(), octets.data() + octets.size(), racine, true)) {
        throw std::logic_error("the document does not parse");
    }
}

/// The string as QtDBus gives it: nobody else holds it.
QString Reponse(std::string const& document) {
    return QString::fromLatin1(document.data(), static_cast<int>(document.size()));
}

} // namespace

LigneDeMesure MesureLecture(Ampleur ampleur) {
    auto const nombre = ampleur.Taille(1000);
    auto const document = FaisDocument(nombre);
    auto const reponse = Reponse(document);
    auto const medianes = Alterne(
        ampleur.Tours(301), [&] { return Occupe([&] { LisEtLibere(reponse, nombre); }) / nombre; },
        [&] { return Occupe([&] { AnalyseSeulement(document); }) / nombre; });
    return {"reply to zones, freed / JsonCpp parse and destroy",
            medianes.mesure,
            medianes.reference,
            "us/zone",
            0.6,
            std::to_string(nombre) + " zones of " +
                std::to_string(document.size() / static_cast<std::size_t>(nombre)) + " bytes"};
}

LigneDeMesure MesureCroissance(Ampleur ampleur) {
    constexpr int kRapport = 100;
    auto const petit = ampleur.Taille(100);
    auto const grand = petit * kRapport;
    auto const petite = Reponse(FaisDocument(petit));
    auto const grande = Reponse(FaisDocument(grand));
    auto const medianes = Alterne(
        ampleur.Tours(31), [&] { return Occupe([&] { LisEtLibere(grande, grand); }) / grand; },
        [&] {
            return Occupe([&] {
                       for (int fois = 0; fois < kRapport; ++fois) {
                           LisEtLibere(petite, petit);
                       }
                   }) /
                   grand;
        });
    return {"a zone of a long document / of a short one",
            medianes.mesure,
            medianes.reference,
            "us/zone",
            1.4,
            std::to_string(grand) + " / " + std::to_string(petit) + " zones"};
}

} // namespace banc
