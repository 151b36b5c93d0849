// SPDX-License-Identifier: MPL-2.0
#include "StockageReponse.h"

#include "outils/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace {

UniChaine U(char const* texte) {
    return UniChaine(texte, UniChaine::kCodageUtf8);
}

class RememberedAnswers : public testing::Test {
  protected:
    ~RememberedAnswers() override {
        for (auto& [type, stockeur] : StockageReponse::laListeStockeurDefaut) {
            delete stockeur;
        }
        StockageReponse::laListeStockeurDefaut.clear();
    }

    StockeurReponse& Fais(DDialogue::eTypStockeur type) const {
        StockageReponse::Initialise(type, chemin_, QSettings::NativeFormat);
        return *StockageReponse::laListeStockeurDefaut.at(type);
    }

    UniChaine Chemin(char const* nom) const {
        return UniChaine(QString::fromStdString(dossier_.Chemin(nom).string()));
    }

    DossierTemporaire dossier_;
    UniChaine const chemin_ = Chemin("vocalyne.conf");
};

TEST_F(RememberedAnswers, TheKindsHaveTheHostsNumbers) {
    EXPECT_EQ(1, DDialogue::kStockeurReglages);
}

TEST_F(RememberedAnswers, MakingAStorerTouchesNoFile) {
    Fais(DDialogue::kStockeurReglages);
    EXPECT_TRUE(dossier_.Noms().empty());
}

TEST_F(RememberedAnswers, AskingForAnAnswerCreatesNoFile) {
    auto& stockeur = Fais(DDialogue::kStockeurReglages);
    EXPECT_EQ(std::nullopt, stockeur.Donne(U("a")));
    stockeur.Oublie(U("a"));
    EXPECT_TRUE(dossier_.Noms().empty());
}

TEST_F(RememberedAnswers, EachKindHasOneStorerAndANewOneTakesItsPlace) {
    EXPECT_TRUE(Fais(DDialogue::kStockeurMemoire).Mets(U("a"), 1));
    Fais(DDialogue::kStockeurReglages);
    EXPECT_EQ(2u, StockageReponse::laListeStockeurDefaut.size());
    EXPECT_EQ(std::nullopt, Fais(DDialogue::kStockeurMemoire).Donne(U("a")));
    EXPECT_EQ(2u, StockageReponse::laListeStockeurDefaut.size());
}

TEST_F(RememberedAnswers, BothKindsRememberReplaceAndForget) {
    for (auto const type : {DDialogue::kStockeurMemoire, DDialogue::kStockeurReglages}) {
        auto& stockeur = Fais(type);
        EXPECT_TRUE(stockeur.Mets(U("a/b"), 3));
        EXPECT_TRUE(stockeur.Mets(U("a"), -1));
        EXPECT_TRUE(stockeur.Mets(U("a/b"), 4));
        EXPECT_EQ(4, stockeur.Donne(U("a/b")));
        EXPECT_EQ(-1, stockeur.Donne(U("a")));
        stockeur.Oublie(U("a/b"));
        EXPECT_EQ(std::nullopt, stockeur.Donne(U("a/b")));
        EXPECT_EQ(-1, stockeur.Donne(U("a")));
    }
}

TEST_F(RememberedAnswers, NamesThatASettingsKeyCannotHoldAreKeptApart) {
    auto& stockeur = Fais(DDialogue::kStockeurReglages);
    char const* const noms[] = {"", "/", "//", "a/", "/a", "a", "A", "é 😀", "a\\b", "%2F", "a\nb"};
    int reponse = 0;
    for (auto const* nom : noms) {
        EXPECT_TRUE(stockeur.Mets(U(nom), ++reponse));
    }
    auto& relu = Fais(DDialogue::kStockeurReglages);
    reponse = 0;
    for (auto const* nom : noms) {
        EXPECT_EQ(++reponse, relu.Donne(U(nom))) << nom;
    }
}

TEST_F(RememberedAnswers, TheSettingsFileKeepsWhatElseStandsInIt) {
    dossier_.Ecris("vocalyne.conf", "sansGroupe=1\n[Adaptateurs2]\nlangue=2\nx=@ByteArray(ab)\n"
                                    "[Autre]\ncl\\xe9=\\x20ac\nliste=a, b\n");
    EXPECT_TRUE(Fais(DDialogue::kStockeurReglages).Mets(U("a"), 1));
    auto const contenu = dossier_.Lis("vocalyne.conf");
    for (auto const* ligne :
         {"sansGroupe=1", "langue=2", "x=@ByteArray(ab)", "20ac", "liste=a, b"}) {
        EXPECT_NE(std::string::npos, contenu.find(ligne)) << ligne << " in " << contenu;
    }
}

TEST_F(RememberedAnswers, WhatAnotherProcessWroteMeanwhileIsKept) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    auto& stockeur = Fais(DDialogue::kStockeurReglages);
    EXPECT_EQ(std::nullopt, stockeur.Donne(U("a")));
    dossier_.Ecris("vocalyne.conf", "[g]\na=30\nc=300\n");
    EXPECT_TRUE(stockeur.Mets(U("a"), 1));
    auto const contenu = dossier_.Lis("vocalyne.conf");
    EXPECT_NE(std::string::npos, contenu.find("a=30\nc=300\n")) << contenu;
}

TEST_F(RememberedAnswers, AnAnswerThatIsNoNumberIsNone) {
    auto& stockeur = Fais(DDialogue::kStockeurReglages);
    EXPECT_TRUE(stockeur.Mets(U("a"), 1));
    auto contenu = QByteArray::fromStdString(dossier_.Lis("vocalyne.conf"));
    dossier_.Ecris("vocalyne.conf", contenu.replace("=1", "=oui").toStdString());
    EXPECT_EQ(std::nullopt, stockeur.Donne(U("a")));
}

TEST_F(RememberedAnswers, AFileThatIsDamagedIsNotRewritten) {
    std::string const contenu = "[g]\na=1\nthis is no setting\n";
    dossier_.Ecris("vocalyne.conf", contenu);
    auto& stockeur = Fais(DDialogue::kStockeurReglages);
    EXPECT_EQ(std::nullopt, stockeur.Donne(U("a")));
    EXPECT_FALSE(stockeur.Mets(U("a"), 1));
    EXPECT_EQ(contenu, dossier_.Lis("vocalyne.conf"));
}

TEST_F(RememberedAnswers, AnAnswerThatCannotBeKeptIsReported) {
    dossier_.CedeAPersonne();
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    {
        DossierTemporaire::Interdit const interdit(dossier_.Chemin("vocalyne.conf"));
        EXPECT_FALSE(Fais(DDialogue::kStockeurReglages).Mets(U("a"), 1));
    }
    EXPECT_EQ("[g]\na=1\n", dossier_.Lis("vocalyne.conf"));
    StockageReponse::Initialise(DDialogue::kStockeurReglages, Chemin("vocalyne.conf/x"),
                                QSettings::NativeFormat);
    EXPECT_FALSE(
        StockageReponse::laListeStockeurDefaut.at(DDialogue::kStockeurReglages)->Mets(U("a"), 1));
}

} // namespace
