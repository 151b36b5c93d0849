// SPDX-License-Identifier: MPL-2.0
#include "Hote.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

/// A correction's result, with the few things that tests ask of it.
struct Bilan : Fin {
    explicit Bilan(Fin const& fin)
        : Fin(fin)
        , json(fin.Json().object()) {}

    int Nombre(char const* cle) const { return json.value(QLatin1String(cle)).toInt(-1); }
    QString Texte(char const* cle) const { return json.value(QLatin1String(cle)).toString(); }

    QJsonObject json;
};

Bilan Corrige(QStringList const& arguments) {
    return Bilan(LanceHote(
        QStringList{QStringLiteral("corrige"), QStringLiteral("--sortie"), QStringLiteral("json")} +
        arguments));
}

QString const kAuto = QStringLiteral("--tout");

class HostCorrection : public testing::Test {
  protected:
    BusPrive bus_;
};

} // namespace

TEST_F(HostCorrection, AFrenchTextIsCorrectedAndNothingElseOfItIsChanged) {
    BureauDeTest bureau(
        {{"lettre.txt", "\uFEFFUn bel acceuil 😀 pour toi.\r\n\r\n"
                        "L’e\u0301le\u0301phant est notament gris, aujourd’hui peut-être.\n"
                        "Voir https://exemple.fr/acceuil et moi@notament.fr, au XIXe siècle"}});
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 0) << bilan.erreurs.toStdString();
    EXPECT_EQ(bilan.Texte("langue"), QStringLiteral("fr"));
    EXPECT_EQ(bilan.Texte("titre"), QStringLiteral("lettre.txt"));
    EXPECT_EQ(bilan.Nombre("corrigees"), 2);
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(),
              "\uFEFFUn bel accueil 😀 pour toi.\r\n\r\n"
              "L’e\u0301le\u0301phant est notamment gris, aujourd’hui peut-être.\n"
              "Voir https://exemple.fr/acceuil et moi@notament.fr, au XIXe siècle");
}

TEST_F(HostCorrection, AnEnglishTextIsCorrected) {
    BureauDeTest bureau(
        {{"letter.txt", "I don't recieve John's mesage.\nIt's a well-known fact.\n"}});
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.Texte("langue"), QStringLiteral("en"));
    EXPECT_EQ(bilan.Nombre("corrigees"), 2);
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), "I don't receive John's message.\nIt's a well-known fact.\n");
}

TEST_F(HostCorrection, OrdinaryProseHasNoMistake) {
    BureauDeTest bureau(
        {{"fr.txt",
          "C’est l’été : qu’il fasse beau ou non, j’irai là-bas aujourd’hui, peut-être même ce "
          "soir-là.\nDonne-le-moi, dis-je ; va-t’en, s’écria-t-il. Jusqu’à présent, quelqu’un a "
          "dit "
          "« presqu’île » et « entr’ouvrir », d’après Marie.\nL’œuvre, le cœur, les naïfs, l’aîné "
          "et l’hôtel coûtent 3,50 € (n° 12), c’est-à-dire 20 % de plus.\n"},
         {"en.txt",
          "It's the children's toy; they've said he'd gone, hasn't he? A mother-in-law's "
          "well-known e-mail costs $3.50 (no. 12), i.e. 20% more.\nThe 1990s' music isn't what it "
          "was, o'clock by o'clock.\n"}});
    for (std::size_t rang : {0U, 1U}) {
        Bilan const bilan = Corrige({Q(bureau.Identifiant(rang)), QStringLiteral("--langue"),
                                     rang == 0 ? QStringLiteral("fr") : QStringLiteral("en")});
        EXPECT_EQ(bilan.Nombre("laissees"), 0) << bilan.sortie.toStdString();
    }
}

TEST_F(HostCorrection, TheDocumentInFrontIsTakenWhenNoneIsNamed) {
    BureauDeTest bureau({{"un.txt", "acceuil\n"}, {"deux.txt", "acceuil\n"}});
    EXPECT_EQ(Corrige({}).Texte("id"), Q(bureau.Identifiant(0)));
    EXPECT_EQ(Corrige({Q(bureau.Identifiant(1))}).Texte("id"), Q(bureau.Identifiant(1)));
}

TEST_F(HostCorrection, DocumentsOfSeveralCompanionsAreListedWhenNoneIsNamed) {
    BureauDeTest un({{"a.txt", "acceuil\n"}}, {"--instance", "un"});
    BureauDeTest deux({{"b.txt", "acceuil\n"}}, {"--instance", "deux"});
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 3);
    EXPECT_TRUE(bilan.erreurs.contains("deux~doc1 (b.txt), un~doc1 (a.txt)"));
    EXPECT_EQ(un.Finis() + deux.Finis(), 0);
    EXPECT_EQ(un.Contenu() + deux.Contenu(), "acceuil\nacceuil\n");
}

TEST_F(HostCorrection, ADocumentThatNobodyServesIsTold) {
    BureauDeTest bureau({{"a.txt", "acceuil\n"}}, {"--instance", "un"});
    for (char const* id : {"un~doc9", "autre~doc1", "un", "~", "7~doc1", "é~é", " "}) {
        Bilan const bilan = Corrige({Q(id)});
        EXPECT_EQ(bilan.code, 3) << id;
        EXPECT_TRUE(bilan.erreurs.contains("is not within reach")) << bilan.erreurs.toStdString();
    }
}

TEST_F(HostCorrection, ADocumentThatCannotBeReadIsNotOneWithoutMistakes) {
    BureauDeTest bureau({{"a.txt", "acceuil\n"}});
    bureau.DonneCommande().Deregle("SynchronisePositions", "erreur", "non");
    for (char const* suite : {"", "~x"}) {
        Bilan const bilan = Corrige({Q(bureau.Identifiant() + suite)});
        EXPECT_EQ(bilan.code, 3);
        EXPECT_TRUE(bilan.erreurs.contains("cannot be read")) << bilan.erreurs.toStdString();
    }
}

TEST_F(HostCorrection, APlaceIsFoundAgainWhenThePersonTypesMeanwhile) {
    BureauDeTest bureau({{"a.txt", "Le bel acceuil.\n"}});
    bureau.DonneCommande().TapeAvant("PeutCorriger", "z1", 0, 2, "Voici le très");
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 0);
    EXPECT_EQ(bureau.DonneCommande().DonneTexte("doc1"), "Voici le très bel accueil.\n");
}

TEST_F(HostCorrection, AWordThatThePersonChangedMeanwhileIsNotTouched) {
    BureauDeTest bureau({{"a.txt", "Le bel acceuil rouge.\n"}});
    bureau.DonneCommande().TapeAvant("PeutCorriger", "z1", 7, 14, "hôtel tout");
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 1);
    EXPECT_EQ(bilan.Nombre("refusees"), 1);
    EXPECT_EQ(bureau.DonneCommande().DonneTexte("doc1"), "Le bel hôtel tout rouge.\n");
}

TEST_F(HostCorrection, CorrectionsThatFailInTheOfficeCountAsRefused) {
    BureauDeTest bureau({{"a.txt", "Un acceuil, un acceuil, un notament.\n"}});
    bureau.DonneCommande().Deregle("CorrigeDansTexteur", "erreur", "non", 1);
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 1);
    // What really stands in the document decides, whatever was sent.
    int const accueils = QString::fromStdString(bureau.DonneCommande().DonneTexte("doc1"))
                             .count(QStringLiteral("accueil"));
    int const notamment = QString::fromStdString(bureau.DonneCommande().DonneTexte("doc1"))
                              .count(QStringLiteral("notamment"));
    EXPECT_EQ(bilan.Nombre("corrigees"), accueils + notamment);
    EXPECT_EQ(bilan.Nombre("corrigees") + bilan.Nombre("refusees"), 3);
    EXPECT_LT(accueils, 2);
}

TEST_F(HostCorrection, ADocumentThatRefusesIsLeftAsItIs) {
    BureauDeTest bureau({{"a.txt", "acceuil notament\n"}});
    bureau.DonneCommande().Deregle("PeutCorriger", "booleen", "false");
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 1);
    EXPECT_EQ(bilan.Nombre("refusees"), 2);
    EXPECT_EQ(bureau.DonneCommande().DonneTexte("doc1"), "acceuil notament\n");
}

TEST_F(HostCorrection, AnOfficeThatDiesMidwayEndsTheWork) {
    BureauDeTest bureau({{"a.txt", "Un acceuil.\nUn notament.\nUn acceuil.\n"}});
    bureau.DonneCommande().TapeAvant("PeutCorriger", "z3", 0, 0, "");
    bureau.DonneCommande().Deregle("CorrigeDansTexteur", "meurs", "", 1);
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 6) << bilan.sortie.toStdString() << bilan.erreurs.toStdString();
    EXPECT_EQ(bilan.Nombre("corrigees"), 0);
    EXPECT_EQ(bilan.Nombre("nonVerifiees"), 1);
    EXPECT_TRUE(bilan.erreurs.contains("no longer answers"));
    bureau.DonneProcessus().Attends();
}

TEST_F(HostCorrection, ADocumentThatSaysItIsGoneEndsTheWork) {
    BureauDeTest bureau({{"a.txt", "Un acceuil, un notament.\n"}});
    bureau.DonneCommande().Deregle("PeutCorriger", "booleen", "false");
    bureau.DonneCommande().Deregle("DocEstMort", "booleen", "true");
    EXPECT_EQ(Corrige({kAuto}).code, 6);
}

TEST_F(HostCorrection, ZonesThatCannotBeReadAreTold) {
    BureauDeTest bureau({{"a.txt", "acceuil\n"}});
    bureau.DonneCommande().Deregle("SynchronisePositions", "texte",
                                   R"({"Zones":[{"Texte":"YQ==","DebutSel":"x"}]})");
    Bilan const bilan = Corrige({});
    EXPECT_EQ(bilan.code, 4);
    EXPECT_TRUE(bilan.erreurs.contains("convertible")) << bilan.erreurs.toStdString();
}

TEST_F(HostCorrection, TenThousandLinesAreCorrectedOneByOneAndAllVerified) {
    std::string texte;
    std::string attendu;
    for (int i = 0; i < 10000; ++i) {
        texte += i % 10 == 0 ? "Un bel acceuil pour la maison.\n" : "Le chat dort sur la table.\n";
        attendu +=
            i % 10 == 0 ? "Un bel accueil pour la maison.\n" : "Le chat dort sur la table.\n";
    }
    BureauDeTest bureau({{"a.txt", texte}});
    Bilan const bilan = Corrige({kAuto});
    EXPECT_EQ(bilan.code, 0);
    EXPECT_EQ(bilan.Nombre("zones"), 10000);
    EXPECT_EQ(bilan.Nombre("corrigees"), 1000);
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_TRUE(bureau.Contenu() == attendu);
}

TEST_F(HostCorrection, LookingOnlyChangesNothing) {
    BureauDeTest bureau({{"a.txt", "acceuil\n"}});
    EXPECT_EQ(Corrige({}).Nombre("laissees"), 1);
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes().find("CorrigeDansTexteur"), std::string::npos);
}

TEST_F(HostCorrection, TheDocumentIsInitialisedForTheCorrectorAndLetGo) {
    BureauDeTest bureau({{"a.txt", "bonjour\n"}});
    Corrige({});
    bureau.DonneCommande().AttendsAppels("RompsLienTexteur", 1);
    std::string const appels = bureau.DonneCommande().DonneMethodes();
    EXPECT_NE(appels.find("InitialiseTexteur InitialisePourCorrecteur"), std::string::npos)
        << appels;
    // The terminal's person would lose the keyboard.
    EXPECT_EQ(appels.find("Active"), std::string::npos) << appels;
}
