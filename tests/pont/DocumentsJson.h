// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ListeDeZones.h"
#include "outils/Textes.h"

#include <QByteArray>
#include <json/value.h>

#include <ostream>
#include <string>
#include <vector>

/// Base64 by another hand than the one under test.
inline std::string B64(std::string const& octets) {
    return QByteArray::fromStdString(octets).toBase64().toStdString();
}

/// A member of an object: "key":value.
inline std::string Membre(std::string const& cle, std::string const& valeur) {
    return '"' + cle + "\":" + valeur;
}
inline std::string MembreTexte(std::string const& cle, std::string const& octets) {
    return Membre(cle, '"' + B64(octets) + '"');
}

/// A zone object with a name, a text and further members.
inline std::string Zone(std::string const& nom, std::string const& texte,
                        std::string const& reste = {}) {
    return '{' + MembreTexte("Nom", nom) + ',' + MembreTexte("Texte", texte) +
           (reste.empty() ? "" : ',' + reste) + '}';
}

/// A zone-list document.
inline std::string Liste(std::string const& zones) {
    return "{\"Zones\":[" + zones + "]}";
}

/// What a document gave, and the error that ended it, if any.
struct Lecture {
    std::vector<ZoneRecue> zones;
    std::string erreur;
};

inline Lecture LisTout(std::string const& document) {
    Lecture lecture;
    try {
        LisListeDeZones(document,
                        [&](ZoneRecue&& zone) { lecture.zones.push_back(std::move(zone)); });
    } catch (Json::RuntimeError const& erreur) {
        lecture.erreur = erreur.what();
    }
    return lecture;
}

namespace contrat {
inline void PrintTo(PlageDeStyle const& plage, std::ostream* sortie) {
    *sortie << plage.debut << '-' << plage.fin << ' ' << plage.style;
}
} // namespace contrat
