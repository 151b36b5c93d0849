// SPDX-License-Identifier: MPL-2.0
#include "DocumentDeZones.h"

#include "CodageTexteJson.h"
#include "UniChaine.h"

namespace banc {

namespace {

constexpr int kUnitesParZone = 500;

std::string Encode(UniChaine const& texte) {
    return EncodeTexteJson(texte).VersUtf8();
}

/// 500 units of prose that starts elsewhere in each zone.
UniChaine Texte(int zone) {
    static UniChaine const prose(
        "Dès l’aube, à l’heure où blanchit la campagne, l’équipe préparait déjà les tables ; "
        "personne n’était pressé, et pourtant tout fut prêt à l’arrivée des élèves. Le vieux "
        "mécanicien, resté près du hangar, écoutait la pluie tomber sur la tôle rouillée. Il "
        "pensait à l’été, aux pêches, aux fenêtres grandes ouvertes et à la voix de sa mère qui "
        "l’appelait depuis la cuisine quand les cloches avaient sonné midi dans la vallée. ",
        UniChaine::kCodageLitteral);
    auto const debut = zone * 37 % prose.Longueur();
    auto texte = prose.Extrais(debut, kUnitesParZone);
    while (texte.Longueur() < kUnitesParZone) {
        texte.Ajoute(prose.Extrais(0, kUnitesParZone - texte.Longueur()));
    }
    return texte;
}

std::string Plage(int debut, int fin, int style) {
    return "{\"Debut\":" + std::to_string(debut) + ",\"Fin\":" + std::to_string(fin) +
           ",\"Style\":" + std::to_string(style) + "}";
}

} // namespace

std::string FaisDocument(int nombreDeZones) {
    std::string document = "{\"Zones\":[";
    for (int zone = 0; zone < nombreDeZones; ++zone) {
        if (zone != 0) {
            document += ',';
        }
        auto const nom = "z" + std::to_string(zone + 1);
        document += "{\"Nom\":\"" + Encode(UniChaine(nom.c_str(), UniChaine::kCodageLitteral)) +
                    "\",\"Texte\":\"" + Encode(Texte(zone)) +
                    "\",\"DebutSel\":0,\"FinSel\":0,\"InfosStyle\":[" + Plage(12, 25, 1) + "," +
                    Plage(120, 133, 2) + "," + Plage(320, 333, 4) + "]}";
    }
    return document + "]}";
}

} // namespace banc
