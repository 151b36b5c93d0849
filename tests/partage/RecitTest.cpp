// SPDX-License-Identifier: MPL-2.0
#include "partage/EcritureNoms.h"
#include "partage/ErreurDuService.h"
#include "partage/Rapport.h"

#include <gtest/gtest.h>

#include <string>

using compagnon::EcritureNoms;
using compagnon::ErreurDuService;
using compagnon::Rapport;

TEST(ZoneNames, AreAnObjectByKeyWithoutThoseThatHaveNone) {
    EXPECT_EQ(EcritureNoms().Termine(), "{}");
    EcritureNoms noms;
    noms.Ajoute("z1", "ligne\u00a01");
    noms.Ajoute("z2", "");
    noms.Ajoute("z\"3", "feuille \"A\"\n");
    EXPECT_EQ(noms.Termine(), "{\"z1\":\"ligne\u00a01\",\"z\\\"3\":\"feuille \\\"A\\\"\\u000a\"}");
}

TEST(ZoneNames, ThatNoMessageCouldHoldAreAnError) {
    EcritureNoms noms;
    noms.Ajoute("z1", std::string(contrat::kLimiteReponse, 'x'));
    try {
        noms.Termine();
        FAIL() << "it would have the bus drop the companion";
    } catch (ErreurDuService const& erreur) {
        EXPECT_EQ(erreur.DonneCode(), contrat::Erreur::TropGrand);
    }
}

TEST(Report, TellsTheDocumentAndWhatIsLeftOutButNotWhatThereIsNoneOf) {
    Rapport rapport("writer", "fr-FR", 12, false);
    rapport.Laisse("protege", 2, "2 paragraphes prot\u00e9g\u00e9s");
    rapport.Laisse("masque", 0, "0");
    rapport.Laisse("choix", 1, "\"un\"");
    EXPECT_EQ(rapport.EnJson(),
              "{\"genre\":\"writer\",\"langue\":\"fr-FR\",\"zones\":12,\"lectureSeule\":false,"
              "\"laisses\":[{\"code\":\"protege\",\"nombre\":2,"
              "\"phrase\":\"2 paragraphes prot\u00e9g\u00e9s\"},"
              "{\"code\":\"choix\",\"nombre\":1,\"phrase\":\"\\\"un\\\"\"}]}");
}

TEST(Report, OfADocumentWithoutALanguageTellsNone) {
    EXPECT_EQ(Rapport("texte", "", 0, true).EnJson(),
              R"({"genre":"texte","zones":0,"lectureSeule":true,"laisses":[]})");
}
