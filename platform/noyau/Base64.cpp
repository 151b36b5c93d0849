// SPDX-License-Identifier: MPL-2.0
#include "Base64.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace {

/// What each character stands for, -1 for those outside the alphabet.
constexpr std::array<signed char, 256> FaisValeurs() {
    constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<signed char, 256> valeurs{};
    for (auto& valeur : valeurs) {
        valeur = -1;
    }
    for (int rang = 0; rang < 64; ++rang) {
        valeurs[static_cast<unsigned char>(kAlphabet[rang])] = static_cast<signed char>(rang);
    }
    return valeurs;
}

constexpr auto kValeurs = FaisValeurs();

/// 0 to 63, or -1.
int DonneValeur(char caractere) {
    return kValeurs[static_cast<unsigned char>(caractere)];
}

} // namespace

namespace sdd {

void Base64::Encode(char const* octets, std::size_t taille, TamponMemoire& sortie) {
    // In pieces that end between groups of three: QByteArray counts in int.
    constexpr std::size_t kMorceau = std::size_t{3} << 20;
    while (taille != 0) {
        auto const morceau = std::min(taille, kMorceau);
        auto const code = QByteArray::fromRawData(octets, static_cast<int>(morceau)).toBase64();
        sortie.Ajoute(code.constData(), static_cast<std::size_t>(code.size()));
        octets += morceau;
        taille -= morceau;
    }
}

void Base64::Decode(char const* caracteres, std::size_t taille, TamponMemoire& sortie) {
    // Done here rather than by QByteArray, which takes three times as long and a copy besides: the
    // reading of a document spends a good part of its time in this loop.
    std::array<char, 3072> morceau;
    std::size_t ecrits = 0;
    unsigned bits = 0;
    int nombreBits = 0;
    auto const* const fin = caracteres + taille;
    while (caracteres != fin) {
        if (ecrits + 3 > morceau.size()) {
            sortie.Ajoute(morceau.data(), ecrits);
            ecrits = 0;
        }
        // Whole groups of four, as long as nothing else stands between them.
        if (nombreBits == 0 && fin - caracteres >= 4) {
            int const a = DonneValeur(caracteres[0]);
            int const b = DonneValeur(caracteres[1]);
            int const c = DonneValeur(caracteres[2]);
            int const d = DonneValeur(caracteres[3]);
            if ((a | b | c | d) >= 0) {
                int const groupe = a << 18 | b << 12 | c << 6 | d;
                morceau[ecrits++] = static_cast<char>(groupe >> 16);
                morceau[ecrits++] = static_cast<char>(groupe >> 8);
                morceau[ecrits++] = static_cast<char>(groupe);
                caracteres += 4;
                continue;
            }
        }
        int const valeur = DonneValeur(*caracteres++);
        if (valeur < 0) {
            continue;
        }
        bits = bits << 6 | static_cast<unsigned>(valeur);
        nombreBits += 6;
        if (nombreBits >= 8) {
            nombreBits -= 8;
            morceau[ecrits++] = static_cast<char>(bits >> nombreBits);
        }
    }
    sortie.Ajoute(morceau.data(), ecrits);
}

} // namespace sdd
