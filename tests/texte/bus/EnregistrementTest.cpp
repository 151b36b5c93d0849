// SPDX-License-Identifier: MPL-2.0
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

namespace fs = std::filesystem;

namespace {

class Saving : public testing::Test {
  protected:
    explicit Saving(std::vector<std::string> const& options = {})
        : bureau({{"a.txt", "Un chat.\r\nDeux.\n"}, {"b.txt", "Trois."}}, options) {}

    void Corrige() {
        client.Synchronise(bureau.Identifiant());
        EXPECT_EQ(client.Corrige("z1", 3, 7, "chien"), "");
    }
    QDBusMessage Enregistre(std::string const& identifiant) {
        LienBus const lien(
            QString::fromStdString(bureau.Service()), QString::fromStdString(bureau.Objet()),
            QStringLiteral("com.ombrel.vocalyne.texteurs.openoffice.documents.interface"));
        return lien.Appelle(QStringLiteral("Enregistre"), {QString::fromStdString(identifiant)});
    }
    std::size_t NombreDeFichiers() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(bureau.Dossier()), fs::directory_iterator()));
    }

    BusPrive bus;
    BureauDeTest bureau;
    ClientBureau client{bureau.Instance()};
};

class SavingNothing : public Saving {
  protected:
    SavingNothing()
        : Saving({"--sans-enregistrer"}) {}
};

} // namespace

TEST_F(Saving, HappensAtTheEndForWhatHasChanged) {
    fs::file_time_type const avant = fs::last_write_time(bureau.Chemin(1));
    Corrige();
    EXPECT_EQ(bureau.Contenu(), "Un chat.\r\nDeux.\n");
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\r\nDeux.\n");
    EXPECT_EQ(bureau.Contenu(1), "Trois.");
    EXPECT_EQ(fs::last_write_time(bureau.Chemin(1)), avant);
    EXPECT_EQ(NombreDeFichiers(), 2U);
}

TEST_F(Saving, HappensWhenACallerLetsGoOfTheDocument) {
    for (auto const* methode : {"RompsLienCorrecteur", "RompsLienTexteur"}) {
        client.Synchronise(bureau.Identifiant());
        EXPECT_EQ(client.Corrige("z2", 0, 0, "x"), "");
        EXPECT_EQ(client.Erreur(methode), "");
        EXPECT_NE(bureau.Contenu().find("\nx"), std::string::npos) << methode;
    }
    EXPECT_EQ(bureau.Contenu(), "Un chat.\r\nxxDeux.\n");
}

TEST_F(SavingNothing, LeavesTheFileAloneWhenACallerLetsGoOfIt) {
    Corrige();
    EXPECT_EQ(client.Erreur("RompsLienCorrecteur"), "");
    EXPECT_EQ(bureau.Contenu(), "Un chat.\r\nDeux.\n");
}

TEST_F(Saving, HappensForEverySignalThatEndsAProgram) {
    Corrige();
    bureau.DonneProcessus().Signale(SIGINT);
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\r\nDeux.\n");
}

TEST_F(Saving, HappensWhenTheProgramIsMadeToQuit) {
    Corrige();
    bureau.DonneProcessus().Signale(SIGQUIT);
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\r\nDeux.\n");
}

TEST_F(Saving, HappensWhenTheTerminalCloses) {
    Corrige();
    bureau.DonneProcessus().Signale(SIGHUP);
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\r\nDeux.\n");
}

TEST_F(Saving, HappensOnRequestAndSaysWhetherAnythingWasWritten) {
    QDBusMessage reponse = Enregistre(bureau.Identifiant());
    EXPECT_EQ(reponse.arguments(), QVariantList{false});
    Corrige();
    reponse = Enregistre(bureau.Identifiant());
    EXPECT_EQ(reponse.arguments(), QVariantList{true});
    EXPECT_EQ(bureau.Contenu(), "Un chien.\r\nDeux.\n");
    reponse = Enregistre(bureau.Identifiant());
    EXPECT_EQ(reponse.arguments(), QVariantList{false});
}

TEST_F(Saving, OfAnUnknownDocumentIsAnError) {
    for (std::string const& identifiant :
         {std::string("doc1"), std::string(), std::string("x~doc1"), bureau.Instance() + "~doc3"}) {
        EXPECT_EQ(Enregistre(identifiant).errorName().toStdString(),
                  "com.ombrel.vocalyne.texteurs.Erreur.DocumentInconnu");
    }
}

TEST_F(Saving, LeavesAFileAloneThatAnotherProgramChanged) {
    Corrige();
    std::string const autre = "Une autre version.\n";
    std::FILE* const fichier = std::fopen(bureau.Chemin().c_str(), "w");
    ASSERT_NE(fichier, nullptr);
    std::fputs(autre.c_str(), fichier);
    std::fclose(fichier);
    QDBusMessage const reponse = Enregistre(bureau.Identifiant());
    EXPECT_EQ(reponse.errorName().toStdString(),
              "com.ombrel.vocalyne.texteurs.Erreur.Enregistrement");
    EXPECT_NE(reponse.errorMessage().indexOf(QLatin1String("a.corrige-1.txt")), -1);
    EXPECT_EQ(bureau.Finis(), 4);
    EXPECT_EQ(bureau.Contenu(), autre);
    EXPECT_EQ(LisOctets(bureau.Dossier() / "a.corrige-1.txt"), "Un chien.\r\nDeux.\n");
    EXPECT_EQ(NombreDeFichiers(), 3U);
    EXPECT_NE(bureau.DonneProcessus().Erreurs().find("a.corrige-1.txt"), std::string::npos);
}

TEST_F(Saving, DoesNotHappenWhenTheOfficeIsKilledAndTheFileIsWhole) {
    Corrige();
    bureau.Tue();
    EXPECT_EQ(bureau.Contenu(), "Un chat.\r\nDeux.\n");
    EXPECT_EQ(NombreDeFichiers(), 2U);
}

TEST_F(SavingNothing, LeavesTheFilesAsTheyAre) {
    Corrige();
    EXPECT_EQ(Enregistre(bureau.Identifiant()).errorName().toStdString(),
              "com.ombrel.vocalyne.texteurs.Erreur.Enregistrement");
    EXPECT_EQ(bureau.DonneCommande().DonneTexte("doc1"), "Un chien.\r\nDeux.\n");
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chat.\r\nDeux.\n");
    EXPECT_EQ(NombreDeFichiers(), 2U);
}
