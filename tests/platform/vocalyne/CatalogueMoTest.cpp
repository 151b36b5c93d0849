// SPDX-License-Identifier: MPL-2.0
#include "CatalogueMo.h"

#include <QFile>

#include <boost/locale/message.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <random>
#include <string>
#include <vector>

namespace {

using Octets = std::vector<char>;

Octets DonneCatalogue() {
    QFile fichier(QStringLiteral(":/essai/en.mo"));
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly));
    auto const octets = fichier.readAll();
    return Octets(octets.cbegin(), octets.cend());
}

void MetsMot(Octets& octets, std::size_t position, std::uint32_t mot) {
    std::memcpy(octets.data() + position, &mot, sizeof mot);
}
std::uint32_t Mot(Octets const& octets, std::size_t position) {
    std::uint32_t mot;
    std::memcpy(&mot, octets.data() + position, sizeof mot);
    return mot;
}

/// Takes a catalog as the translation does, and asks it for messages. True when it was taken.
bool Utilise(Octets const& octets) {
    CatalogueMo const catalogue(octets);
    if (!catalogue.EstSain()) {
        return false;
    }
    try {
        auto const locale = catalogue.FaisLocale();
        using Messages = boost::locale::message_format<char>;
        if (!std::has_facet<Messages>(locale)) {
            return false;
        }
        auto const& messages = std::use_facet<Messages>(locale);
        for (auto const* message : {"Ouvrir", "L’intégration à {1}", "", "absent"}) {
            for (auto const* contexte : {static_cast<char const*>(nullptr), "menu « Fichier »"}) {
                if (auto const* const traduction = messages.get(0, contexte, message)) {
                    static_cast<void>(std::strlen(traduction)); // read to its end
                }
            }
        }
        return true;
    } catch (std::exception const&) {
        return false;
    }
}

/// A small catalog with one message and the description given.
Octets FaisCatalogue(std::string const& description) {
    std::string const textes[] = {"", "Ouvrir", description, "Open"};
    constexpr std::uint32_t kDebutTextes = 28 + 4 * 8;
    Octets octets(kDebutTextes, '\0');
    MetsMot(octets, 0, 0x950412de);
    MetsMot(octets, 8, 2);
    MetsMot(octets, 12, 28);
    MetsMot(octets, 16, 28 + 2 * 8);
    std::size_t entree = 28;
    for (auto const& texte : textes) {
        MetsMot(octets, entree, static_cast<std::uint32_t>(texte.size()));
        MetsMot(octets, entree + 4, static_cast<std::uint32_t>(octets.size()));
        octets.insert(octets.end(), texte.c_str(), texte.c_str() + texte.size() + 1);
        entree += 8;
    }
    return octets;
}

TEST(Catalog, WhatTheCompilerOfCatalogsWritesIsSound) {
    EXPECT_TRUE(Utilise(DonneCatalogue()));
    EXPECT_TRUE(Utilise(FaisCatalogue("Content-Type: text/plain; charset=UTF-8\n")));
}

TEST(Catalog, TheOtherByteOrderIsReadToo) {
    auto octets = FaisCatalogue("Content-Type: text/plain; charset=UTF-8\n");
    for (std::size_t mot = 0; mot < 28 + 4 * 8; mot += 4) {
        std::reverse(octets.begin() + static_cast<std::ptrdiff_t>(mot),
                     octets.begin() + static_cast<std::ptrdiff_t>(mot) + 4);
    }
    CatalogueMo const catalogue(octets);
    ASSERT_TRUE(catalogue.EstSain());
    auto const locale = catalogue.FaisLocale();
    EXPECT_STREQ("Open", std::use_facet<boost::locale::message_format<char>>(locale).get(0, nullptr,
                                                                                         "Ouvrir"));
}

TEST(Catalog, CutShortAnywhereItIsRefused) {
    auto const octets = DonneCatalogue();
    for (std::size_t taille = 0; taille + 1 < octets.size(); ++taille) {
        EXPECT_FALSE(CatalogueMo(Octets(octets.begin(),
                                        octets.begin() + static_cast<std::ptrdiff_t>(taille)))
                         .EstSain())
            << taille;
    }
}

TEST(Catalog, TablesAndTextsOutsideItAreRefused) {
    auto const octets = DonneCatalogue();
    auto const identificateurs = Mot(octets, 12);
    auto const traductions = Mot(octets, 16);
    for (std::size_t const position :
         {std::size_t{8}, std::size_t{12}, std::size_t{16}, std::size_t{identificateurs} + 8,
          std::size_t{identificateurs} + 12, std::size_t{traductions},
          std::size_t{traductions} + 4}) {
        for (std::uint32_t const mot : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 0xFFFFFFF8u,
                                        static_cast<std::uint32_t>(octets.size())}) {
            auto abime = octets;
            MetsMot(abime, position, mot);
            EXPECT_FALSE(CatalogueMo(abime).EstSain()) << position << ' ' << mot;
        }
    }
}

TEST(Catalog, AHashTableThatLeadsAstrayIsNotFollowed) {
    auto octets = DonneCatalogue();
    auto const taille = Mot(octets, 20);
    auto const table = Mot(octets, 24);
    ASSERT_GT(taille, 0u);
    for (std::uint32_t rang = 0; rang < taille; ++rang) {
        MetsMot(octets, table + rang * 4, 0x7FFFFFF0u);
    }
    EXPECT_TRUE(Utilise(octets));
    MetsMot(octets, 20, 2); // a search in it would divide by zero
    EXPECT_TRUE(Utilise(octets));
    MetsMot(octets, 24, 0xFFFFFFF0u);
    EXPECT_TRUE(Utilise(octets));
}

TEST(Catalog, WithoutMessagesOrWithAnotherBeginningItIsRefused) {
    auto octets = DonneCatalogue();
    MetsMot(octets, 8, 0);
    EXPECT_FALSE(Utilise(octets));
    octets = DonneCatalogue();
    MetsMot(octets, 0, 0x12345678);
    EXPECT_FALSE(Utilise(octets));
}

TEST(Catalog, AnEncodingThatNobodyKnowsIsRefused) {
    EXPECT_FALSE(Utilise(FaisCatalogue("Content-Type: text/plain; charset=no-such-thing\n")));
    EXPECT_FALSE(Utilise(FaisCatalogue("")));
}

TEST(Catalog, APluralRuleThatNestsWithoutEndIsRefused) {
    std::string const debut = "Content-Type: text/plain; charset=UTF-8\nPlural-Forms: "
                              "nplurals=2; plural=";
    EXPECT_TRUE(Utilise(FaisCatalogue(debut + "((n != 1));\n")));
    EXPECT_FALSE(Utilise(FaisCatalogue(debut + std::string(1000000, '('))));
    EXPECT_FALSE(Utilise(FaisCatalogue(debut + std::string(1000000, '!') + "n;\n")));
}

TEST(Catalog, DamagedBytesNeitherCrashNorThrow) {
    auto const sain = DonneCatalogue();
    std::mt19937 hasard(20);
    std::uniform_int_distribution<std::size_t> place(0, sain.size() - 1);
    std::uniform_int_distribution<std::size_t> entete(0, 27);
    int prises = 0;
    for (int essai = 0; essai < 20000; ++essai) {
        auto octets = sain;
        for (int coup = 0; coup <= essai % 4; ++coup) {
            octets[(essai + coup) % 3 == 0 ? entete(hasard) : place(hasard)] =
                static_cast<char>(hasard());
        }
        prises += Utilise(octets) ? 1 : 0;
    }
    // Damage within a text harms nothing else: some of these are taken, and some are not.
    EXPECT_GT(prises, 0);
    EXPECT_LT(prises, 20000);
}

} // namespace
