// SPDX-License-Identifier: MPL-2.0
#include "CatalogueMo.h"

#include <QFile>

#include <algorithm>
#include <cstring>

namespace {

// Places of the header's words, in bytes.
constexpr std::size_t kMotNombre = 8;
constexpr std::size_t kMotIdentificateurs = 12;
constexpr std::size_t kMotTraductions = 16;
constexpr std::size_t kMotHachage = 24;
constexpr std::size_t kTailleEntete = 28;
constexpr std::size_t kTailleEntree = 8; // of a table: length, then offset

constexpr std::uint32_t kMagique = 0x950412de;
constexpr std::uint32_t kMagiqueInverse = 0xde120495;

std::uint32_t MotNatif(char const* octets) {
    std::uint32_t mot;
    std::memcpy(&mot, octets, sizeof mot);
    return mot;
}

bool EstPremier(std::uint32_t nombre) {
    if (nombre < 2) {
        return false;
    }
    for (std::uint32_t diviseur = 2; diviseur <= nombre / diviseur; ++diviseur) {
        if (nombre % diviseur == 0) {
            return false;
        }
    }
    return true;
}

} // namespace

CatalogueMo CatalogueMo::DepuisRessource(std::string const& chemin) {
    QFile fichier(QString::fromStdString(chemin));
    if (!fichier.open(QIODevice::ReadOnly)) {
        return {};
    }
    auto const octets = fichier.readAll();
    return CatalogueMo(std::vector<char>(octets.cbegin(), octets.cend()));
}

std::uint32_t CatalogueMo::Mot(std::size_t position) const {
    auto const mot = MotNatif(octets_.data() + position);
    return MotNatif(octets_.data()) == kMagique ? mot : __builtin_bswap32(mot);
}

bool CatalogueMo::EstSain() const {
    if (octets_.size() < kTailleEntete) {
        return false;
    }
    auto const magique = MotNatif(octets_.data());
    if (magique != kMagique && magique != kMagiqueInverse) {
        return false;
    }
    auto const nombre = Mot(kMotNombre);
    return nombre > 0 && TableEstSaine(Mot(kMotIdentificateurs), nombre) &&
           TableEstSaine(Mot(kMotTraductions), nombre) && EnteteEstSaine(Mot(kMotTraductions));
}

bool CatalogueMo::TableEstSaine(std::uint32_t position, std::uint32_t nombre) const {
    std::uint64_t const taille = octets_.size();
    if (position + std::uint64_t{nombre} * kTailleEntree > taille) {
        return false;
    }
    for (std::size_t entree = position; nombre > 0; --nombre, entree += kTailleEntree) {
        std::uint64_t const fin = std::uint64_t{Mot(entree)} + Mot(entree + sizeof(std::uint32_t));
        if (fin >= taille || octets_[static_cast<std::size_t>(fin)] != '\0') {
            return false;
        }
    }
    return true;
}

/// The first translation is the catalog's description of itself. Boost compiles the plural
/// expression in it by recursion: one longer than any language's could exhaust the stack.
bool CatalogueMo::EnteteEstSaine(std::uint32_t traductions) const {
    constexpr std::ptrdiff_t kLongueurPlurielMax = 500;
    char const kPluriel[] = "plural=";
    auto const* const fin = octets_.data() + octets_.size();
    auto const* const texte = octets_.data() + Mot(traductions + sizeof(std::uint32_t));
    auto const* const finTexte = std::find(texte, fin, '\0');
    auto const* const pluriel = std::search(texte, finTexte, kPluriel, std::end(kPluriel) - 1);
    char const kFins[] = "\r\n;";
    auto const* const finPluriel =
        std::find_first_of(pluriel, finTexte, kFins, std::end(kFins) - 1);
    return finPluriel - pluriel <= kLongueurPlurielMax;
}

/// Boost follows the hash table without looking: each entry must be free or name a message. A
/// search ends where some entry is free and the size is a prime above 2, since it comes by all
/// entries then.
bool CatalogueMo::HachageEstSain() const {
    std::uint64_t const taille = Mot(kMotTailleHachage);
    auto const table = Mot(kMotHachage);
    if (taille < 3 || table + taille * sizeof(std::uint32_t) > octets_.size() ||
        !EstPremier(static_cast<std::uint32_t>(taille))) {
        return false;
    }
    auto const nombre = Mot(kMotNombre);
    bool libre = false;
    for (std::size_t rang = 0; rang < taille; ++rang) {
        auto const entree = Mot(table + rang * sizeof(std::uint32_t));
        if (entree > nombre) {
            return false;
        }
        libre = libre || entree == 0;
    }
    return libre;
}
