// SPDX-License-Identifier: MPL-2.0
#include "CatalogueMo.h"

#include <QFile>

#include <cstdint>
#include <cstring>

namespace {

constexpr int kTailleEntete = 28;
constexpr std::uint32_t kMagique = 0x950412de;
constexpr std::uint32_t kMagiqueInverse = 0xde120495;

bool EstCatalogue(QByteArray const& octets) {
    if (octets.size() < kTailleEntete) {
        return false;
    }
    std::uint32_t magique;
    std::memcpy(&magique, octets.constData(), sizeof magique);
    return magique == kMagique || magique == kMagiqueInverse;
}

} // namespace

CatalogueMo CatalogueMo::DepuisRessource(std::string const& chemin) {
    CatalogueMo catalogue;
    QFile fichier(QString::fromStdString(chemin));
    if (chemin.rfind(":/", 0) == 0 && fichier.open(QIODevice::ReadOnly)) {
        auto const octets = fichier.readAll();
        if (EstCatalogue(octets)) {
            catalogue.octets_.assign(octets.cbegin(), octets.cend());
        }
    }
    return catalogue;
}
