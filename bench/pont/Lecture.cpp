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

namespace {

Medianes LectureDe(int nombre, int tours) {
    auto const document = FaisDocument(nombre);
    auto const reponse = Reponse(document);
    return Alterne(
        tours, [&] { return Occupe([&] { LisEtLibere(reponse, nombre); }); },
        [&] { return Occupe([&] { AnalyseSeulement(document); }); });
}

} // namespace

LigneDeMesure MesureLecture(Ampleur ampleur) {
    auto const nombre = ampleur.Taille(1000);
    auto const medianes = LectureDe(nombre, ampleur.Tours(301));
    return {"reply to zones, freed / JsonCpp parse and destroy",
            medianes.mesure / nombre,
            medianes.reference / nombre,
            "us/zone",
            0.6,
            std::to_string(nombre) + " zones of " +
                std::to_string(FaisDocument(nombre).size() / static_cast<std::size_t>(nombre)) +
                " bytes"};
}

Courbe CourbeDeLecture(Ampleur ampleur) {
    Courbe courbe{"Reading a reply", "reply to zones, freed", "JsonCpp, parse and destroy", {}};
    for (int const taille : {100, 300, 1'000, 3'000, 10'000, 30'000}) {
        auto const nombre = ampleur.Taille(taille);
        auto const medianes = LectureDe(nombre, ampleur.Tours(1 + 300'000 / taille / 10));
        courbe.points.push_back({nombre, medianes.mesure, medianes.reference});
    }
    return courbe;
}

namespace {

/// Microseconds a zone: of the long document, and of the short one read as often as the long one
/// has its zones.
Medianes ParZone(QString const& longue, int grand, QString const& courte, int petit, int tours) {
    return Alterne(
        tours, [&] { return Occupe([&] { LisEtLibere(longue, grand); }) / grand; },
        [&] {
            return Occupe([&] {
                       for (int lues = 0; lues < grand; lues += petit) {
                           LisEtLibere(courte, petit);
                       }
                   }) /
                   grand;
        });
}

/// Zones of a word each, as in a large spreadsheet.
QString ReponseDeMots(int nombre) {
    std::string document = R"({"Zones":[)";
    for (int zone = 0; zone < nombre; ++zone) {
        document += zone == 0 ? "" : ",";
        document += R"({"Nom":"bg==","Texte":"bW90"})";
    }
    return Reponse(document + "]}");
}

} // namespace

LigneDeMesure MesureCroissance(Ampleur ampleur) {
    auto const petit = ampleur.Taille(100);
    auto const grand = petit * 100;
    auto const medianes = ParZone(Reponse(FaisDocument(grand)), grand, Reponse(FaisDocument(petit)),
                                  petit, ampleur.Tours(31));
    return {"a zone of a long document / of a short one",
            medianes.mesure,
            medianes.reference,
            "us/zone",
            1.4,
            std::to_string(grand) + " / " + std::to_string(petit) + " zones"};
}

LigneDeMesure MesureMillion(Ampleur ampleur) {
    auto const petit = ampleur.Taille(1000);
    auto const grand = petit * 1000;
    auto const medianes =
        ParZone(ReponseDeMots(grand), grand, ReponseDeMots(petit), petit, ampleur.Tours(7));
    return {"a zone of a word among a million / among a thousand",
            medianes.mesure,
            medianes.reference,
            "us/zone",
            2,
            std::to_string(grand) + " / " + std::to_string(petit) + " zones"};
}

} // namespace banc
