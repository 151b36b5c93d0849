// SPDX-License-Identifier: MPL-2.0
// The two catalogs inside the plug-in, read by their bytes.
#include "outils/Textes.h"

#include <QFile>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace {

/// A gettext catalog: the messages by their keys, in which a context stands before a byte 0x04.
struct Catalogue {
    std::uint32_t magique;
    std::uint32_t revision;
    std::map<std::string, std::string> messages;

    std::string Ligne(std::string const& nom) const {
        auto const& entete = messages.at("");
        auto const debut = entete.find(nom + ": ");
        if (debut == std::string::npos) {
            return {};
        }
        auto const apres = debut + nom.size() + 2;
        return entete.substr(apres, entete.find('\n', apres) - apres);
    }
};

std::uint32_t Mot(QByteArray const& octets, std::uint32_t position) {
    std::uint32_t mot = 0;
    if (position + sizeof mot > static_cast<std::uint32_t>(octets.size())) {
        throw std::out_of_range("catalog");
    }
    std::memcpy(&mot, octets.constData() + position,
                sizeof mot); // little-endian, as both hosts are
    return mot;
}

std::string Texte(QByteArray const& octets, std::uint32_t table, std::uint32_t rang) {
    auto const longueur = Mot(octets, table + 8 * rang);
    auto const position = Mot(octets, table + 8 * rang + 4);
    return octets.mid(static_cast<int>(position), static_cast<int>(longueur)).toStdString();
}

Catalogue Lis(char const* chemin) {
    QFile fichier(QString::fromLatin1(chemin));
    if (!fichier.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(chemin);
    }
    auto const octets = fichier.readAll();
    Catalogue catalogue{Mot(octets, 0), Mot(octets, 4), {}};
    for (std::uint32_t rang = 0; rang < Mot(octets, 8); ++rang) {
        catalogue.messages[Texte(octets, Mot(octets, 12), rang)] =
            Texte(octets, Mot(octets, 16), rang);
    }
    return catalogue;
}

Catalogue Anglais() {
    return Lis(":/fichiers/TexteurEn.mo");
}
Catalogue Francais() {
    return Lis(":/fichiers/TexteurFr.mo");
}

std::set<std::string> Cles(Catalogue const& catalogue) {
    std::set<std::string> cles;
    for (auto const& [cle, traduction] : catalogue.messages) {
        cles.insert(cle);
    }
    return cles;
}

TEST(Catalogs, AreLittleEndianGettextOfRevisionZero) {
    for (auto const& catalogue : {Anglais(), Francais()}) {
        EXPECT_EQ(0x950412DEU, catalogue.magique);
        EXPECT_EQ(0U, catalogue.revision);
    }
}

TEST(Catalogs, SayTheirLanguageEncodingAndPlurals) {
    EXPECT_EQ("en", Anglais().Ligne("Language"));
    EXPECT_EQ("fr", Francais().Ligne("Language"));
    EXPECT_EQ("text/plain; charset=UTF-8", Anglais().Ligne("Content-Type"));
    EXPECT_EQ("text/plain; charset=UTF-8", Francais().Ligne("Content-Type"));
    EXPECT_EQ("nplurals=2; plural=(n != 1);", Anglais().Ligne("Plural-Forms"));
    EXPECT_EQ("nplurals=2; plural=(n > 1);", Francais().Ligne("Plural-Forms"));
}

TEST(Catalogs, HoldTheSameMessages) {
    EXPECT_EQ(Cles(Francais()), Cles(Anglais()));
}

TEST(Catalogs, TranslateEveryMessage) {
    for (auto const& catalogue : {Anglais(), Francais()}) {
        for (auto const& [cle, traduction] : catalogue.messages) {
            EXPECT_FALSE(traduction.empty()) << cle;
        }
    }
}

TEST(Catalogs, TheFrenchOneTranslatesEachMessageToItself) {
    for (auto const& [cle, traduction] : Francais().messages) {
        if (!cle.empty()) {
            EXPECT_EQ(cle.substr(cle.find('\x04') + 1), traduction);
        }
    }
}

TEST(Catalogs, HoldEveryMessageOfTheAlertsWithItsContext) {
    char const* const cles[] = {
        "L’intégration à {1} requiert une mise à jour d’Vocalyne.",
        "Pour vérifier les mises à jour offertes, veuillez sélectionner «\u00A0Recherche de mise à "
        "jour\u00A0» dans le menu Aide d’Vocalyne.",
        "Impossible d’effectuer la requête",
        "... dans <nom_de_l_application> n’est pas ...\x04"
        "Le connecteur d’Vocalyne installé dans {1} n’est pas à jour.",
        "L’argument est un nom d’application\x04"
        "L’appel d’Vocalyne à partir de l’Agent Vocalyne n’est pas possible pour {1}.",
        "Pour utiliser Vocalyne dans ce logiciel, veuillez consulter le document "
        "«\u00A0Utilisation "
        "avec vos logiciels\u00A0» (accessible par le menu Aide d’Vocalyne).",
        "L’appel d’Vocalyne à partir de l’Agent Vocalyne pour {1} nécessite l’installation d’un "
        "connecteur.",
        "Extension LibreOffice",
        "Le connecteur d'Vocalyne pour ce logiciel ne semble pas installé, ou n'est pas à jour ; "
        "ce "
        "connecteur est requis.",
    };
    auto const presentes = Cles(Anglais());
    for (auto const* cle : cles) {
        EXPECT_EQ(1U, presentes.count(cle)) << cle;
    }
}

int Nombre(std::string const& texte, std::string const& motif) {
    int nombre = 0;
    for (auto place = texte.find(motif); place != std::string::npos;
         place = texte.find(motif, place + 1)) {
        ++nombre;
    }
    return nombre;
}

TEST(Catalogs, EachTranslationHasThePlaceholdersOfItsMessage) {
    for (auto const& catalogue : {Anglais(), Francais()}) {
        for (auto const& [cle, traduction] : catalogue.messages) {
            EXPECT_EQ(Nombre(cle, "{1}"), Nombre(traduction, "{1}")) << cle;
            EXPECT_EQ(Nombre(cle, "{"), Nombre(traduction, "{")) << cle;
            EXPECT_LE(Nombre(traduction, "{1}"), 1) << cle;
        }
    }
}

} // namespace
