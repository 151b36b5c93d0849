// SPDX-License-Identifier: MPL-2.0
#include "Base64.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using sdd::Base64;
using sdd::TamponMemoire;
using namespace std::string_literals;

std::string Contenu(TamponMemoire const& tampon) {
    return tampon.DonneTaille() == 0 ? ""s
                                     : std::string(tampon.DonneOctets(), tampon.DonneTaille());
}

std::string Encode(std::string const& octets) {
    TamponMemoire sortie;
    Base64::Encode(octets.data(), octets.size(), sortie);
    return Contenu(sortie);
}

std::string Decode(std::string const& caracteres) {
    TamponMemoire sortie;
    Base64::Decode(caracteres.data(), caracteres.size(), sortie);
    return Contenu(sortie);
}

TEST(Base64, GivesTheStandardsOwnExamples) {
    EXPECT_EQ("", Encode(""));
    EXPECT_EQ("Zg==", Encode("f"));
    EXPECT_EQ("Zm8=", Encode("fo"));
    EXPECT_EQ("Zm9v", Encode("foo"));
    EXPECT_EQ("Zm9vYmFy", Encode("foobar"));
    EXPECT_EQ("+/8A", Encode("\xFB\xFF\0"s));
    EXPECT_EQ("foob", Decode("Zm9vYg=="));
}

TEST(Base64, AnIncompleteLastGroupGivesTheBytesThatItHolds) {
    EXPECT_EQ("", Decode(""));
    EXPECT_EQ("", Decode("Z"));
    EXPECT_EQ("f", Decode("Zg"));
    EXPECT_EQ("fo", Decode("Zm8"));
    EXPECT_EQ("foo", Decode("Zm9vY"));
}

TEST(Base64, CharactersOutsideTheAlphabetArePassedOver) {
    EXPECT_EQ("foobar", Decode(" Zm\r\n9v\0Ym-_Fy\xFF"s));
    EXPECT_EQ("", Decode("===="));
    EXPECT_EQ("", Decode("é!"));
}

TEST(Base64, WhatTheBufferHeldStaysInFront) {
    TamponMemoire sortie(1);
    sortie.Ajoute("ab", 2);
    Base64::Encode("f", 1, sortie);
    Base64::Decode("Zm9v", 4, sortie);
    EXPECT_EQ("abZg==foo", Contenu(sortie));
}

TEST(Base64, NothingIsReadFromANullPointerOfNoLength) {
    TamponMemoire sortie;
    Base64::Encode(nullptr, 0, sortie);
    Base64::Decode(nullptr, 0, sortie);
    EXPECT_EQ(0u, sortie.DonneTaille());
}

TEST(Base64, EveryLengthGoesThereAndBack) {
    std::mt19937 hasard(7);
    for (std::size_t taille = 0; taille < 300; ++taille) {
        std::string octets(taille, '\0');
        for (auto& octet : octets) {
            octet = static_cast<char>(hasard());
        }
        EXPECT_EQ(octets, Decode(Encode(octets)));
    }
}

TEST(Base64, TextsLongerThanAPieceGoThereAndBack) {
    std::mt19937 hasard(8);
    std::string octets((std::size_t{6} << 20) + 1, '\0');
    for (auto& octet : octets) {
        octet = static_cast<char>(hasard());
    }
    auto const code = Encode(octets);
    EXPECT_EQ(QByteArray::fromStdString(octets).toBase64().toStdString(), code);
    EXPECT_EQ(octets, Decode(code));
}

TEST(Base64, DamagedTextDecodesAsQtDecodesIt) {
    std::mt19937 hasard(9);
    constexpr char kCaracteres[] = "ABCXYZabcxyz0189+/==\n -_\xE9";
    std::uniform_int_distribution<std::size_t> rang(0, sizeof kCaracteres - 1);
    std::uniform_int_distribution<std::size_t> longueur(0, 5000);
    for (int essai = 0; essai < 300; ++essai) {
        std::string texte(longueur(hasard), '\0');
        for (auto& caractere : texte) {
            caractere = kCaracteres[rang(hasard)];
        }
        EXPECT_EQ(QByteArray::fromBase64(QByteArray::fromStdString(texte)).toStdString(),
                  Decode(texte));
    }
}

TEST(TamponMemoire, HoldsWhatWasAppended) {
    TamponMemoire tampon(256);
    EXPECT_EQ(0u, tampon.DonneTaille());
    std::string const octets(1000, 'x');
    tampon.Ajoute(octets.data(), octets.size());
    tampon.Ajoute(nullptr, 0);
    tampon.Ajoute("y\0z", 3);
    EXPECT_EQ(octets + "y\0z"s, Contenu(tampon));
}

} // namespace
