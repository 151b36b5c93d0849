// SPDX-License-Identifier: MPL-2.0
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <QElapsedTimer>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

class Misbehaviour : public testing::Test {
  protected:
    Misbehaviour() { client.Initialise("doc1"); }

    CommandeBureau& Commande() { return bureau.DonneCommande(); }

    BusPrive bus;
    BureauDeTest bureau{{{"a.txt", "Les chat.\n"}}, {"--instance", "essai_1"}};
    ClientBureau client{"essai_1"};
};

} // namespace

TEST_F(Misbehaviour, TheInstanceIsTheOneAskedForAndTheDocumentsAreNumbered) {
    EXPECT_EQ(bureau.Identifiant(), "essai_1~doc1");
}

TEST_F(Misbehaviour, ASilentMethodIsNeverAnsweredAndTheOthersAre) {
    Commande().Deregle("DocEstMort", "muet");
    QDBusMessage const reponse =
        client.Lien().Appelle(QStringLiteral("DocEstMort"), {QStringLiteral("doc1")}, 200);
    EXPECT_EQ(reponse.errorName().toStdString(), "org.freedesktop.DBus.Error.NoReply");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
    Commande().Retablis();
    EXPECT_EQ(client.Erreur("DocEstMort", {QStringLiteral("doc1")}), "");
}

TEST_F(Misbehaviour, ASlowMethodIsServedAfterItsTimeAndTheOthersMeanwhile) {
    Commande().Deregle("DonneTitreDocument", "lent", "300");
    QElapsedTimer horloge;
    horloge.start();
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
    EXPECT_GE(horloge.elapsed(), 300);
}

TEST_F(Misbehaviour, AnErrorCarriesTheGivenMessageAndNothingIsDone) {
    std::string const zone = client.Synchronise(bureau.Identifiant()).at(0).nom;
    Commande().Deregle("CorrigeDansTexteur", "erreur", "pas envie");
    QDBusMessage const reponse = client.Appelle(
        "CorrigeDansTexteur", {QString::fromStdString(zone), 4, 8, QStringLiteral("chats"), false});
    EXPECT_EQ(reponse.errorMessage().toStdString(), "pas envie");
    EXPECT_EQ(Commande().DonneTexte("doc1"), "Les chat.\n");
    Commande().Deregle("CorrigeDansTexteur", "refuse");
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), "org.freedesktop.DBus.Error.AccessDenied");
}

TEST_F(Misbehaviour, RepliesCanBeOfAnyTypeOrEmpty) {
    Commande().Deregle("PermetsRetourDeCharriot", "texte", "vrai");
    EXPECT_EQ(client.Appelle("PermetsRetourDeCharriot").arguments(),
              QVariantList{QStringLiteral("vrai")});
    Commande().Deregle("PermetsRetourDeCharriot", "entier", "-7");
    EXPECT_EQ(client.Appelle("PermetsRetourDeCharriot").arguments(), QVariantList{-7});
    Commande().Deregle("DonneTitreDocument", "booleen", "true");
    EXPECT_EQ(client.Appelle("DonneTitreDocument").arguments(), QVariantList{true});
    Commande().Deregle("DonneTitreDocument", "variante", "vrai");
    EXPECT_EQ(client.Appelle("DonneTitreDocument").signature(), QStringLiteral("v"));
    Commande().Deregle("DonneTitreDocument", "tableau", "7");
    EXPECT_EQ(client.Appelle("DonneTitreDocument").signature(), QStringLiteral("ai"));
    Commande().Deregle("DonneTitreDocument", "sans-argument");
    QDBusMessage const reponse = client.Appelle("DonneTitreDocument");
    EXPECT_EQ(reponse.type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(reponse.arguments().isEmpty());
}

TEST_F(Misbehaviour, ARuleEndsAfterItsCalls) {
    Commande().Deregle("DonneTitreDocument", "texte", "faux", 2);
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "faux");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "faux");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
}

TEST_F(Misbehaviour, AStarMeansEveryMethodButThoseWithARuleOfTheirOwn) {
    Commande().Deregle("*", "erreur", "tout");
    Commande().Deregle("DonneTitreDocument", "texte", "titre");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "titre");
    EXPECT_EQ(client.Erreur("Suspends"), "com.ombrel.vocalyne.Erreur.Commandee");
}

TEST_F(Misbehaviour, AReplyHasJustTheBytesAskedForAndIsAZoneDocumentWhenItCan) {
    for (int const taille : {0, 1, 79, 80, 81, 82, 83, 84, 100000, 70 << 20}) {
        Commande().Deregle("SynchronisePositions", "taille", std::to_string(taille), 1);
        QString const texte =
            client.Appelle("SynchronisePositions", {QString()}).arguments().value(0).toString();
        ASSERT_EQ(texte.size(), taille);
    }
    Commande().Deregle("SynchronisePositions", "taille", "1002", 1);
    std::vector<ZoneServie> const zones = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(zones.size(), 1U);
    EXPECT_EQ(zones[0].texte, std::string(zones[0].texte.size(), 'a'));
    EXPECT_GT(zones[0].texte.size(), 600U);
}

TEST_F(Misbehaviour, TheProcessDiesAtOnce) {
    Commande().Deregle("DonneTitreDocument", "meurs");
    EXPECT_EQ(client.Erreur("DonneTitreDocument"), "org.freedesktop.DBus.Error.NoReply");
    EXPECT_EQ(bureau.DonneProcessus().Attends(), -SIGKILL);
}

TEST_F(Misbehaviour, TheNameGoesAndComesBack) {
    Commande().QuitteLeNom();
    EXPECT_EQ(client.Erreur("DonneTitreDocument"), "org.freedesktop.DBus.Error.ServiceUnknown");
    Commande().ReprendsLeNom();
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
}

TEST_F(Misbehaviour, TheNameGoesDuringACall) {
    Commande().Deregle("DonneTitreDocument", "quitte");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
    EXPECT_EQ(client.Erreur("DonneTitreDocument"), "org.freedesktop.DBus.Error.ServiceUnknown");
}

TEST_F(Misbehaviour, TheJournalHoldsMethodsWithTheirArgumentsInOrder) {
    Commande().VideJournal();
    EXPECT_EQ(client.Erreur("AjusteSelectionPourOutils", {0, 3}), "");
    EXPECT_EQ(client.Erreur("InitialisePourOutils", {true}), "");
    EXPECT_NE(client.Erreur("InitialiseTexteur", {QString(5000, QLatin1Char('x'))}), "");
    QJsonArray const journal = Commande().DonneJournal();
    ASSERT_EQ(journal.size(), 3);
    EXPECT_EQ(Commande().DonneMethodes(),
              "AjusteSelectionPourOutils InitialisePourOutils InitialiseTexteur");
    EXPECT_EQ(journal[0].toObject()[QLatin1String("arguments")].toArray(), (QJsonArray{0, 3}));
    EXPECT_EQ(journal[1].toObject()[QLatin1String("arguments")].toArray(), (QJsonArray{true}));
    EXPECT_EQ(journal[2].toObject()[QLatin1String("arguments")].toArray()[0].toString().size(),
              4096);
    EXPECT_EQ(journal[0].toObject()[QLatin1String("appelant")].toString(),
              client.Lien().NomUnique());
}

TEST_F(Misbehaviour, OneCanWaitForACallThatIsNotWaitedFor) {
    Commande().VideJournal();
    client.Lien().Envoie(QStringLiteral("Suspends"));
    client.Lien().Envoie(QStringLiteral("RompsLienTexteur"));
    EXPECT_EQ(Commande().AttendsAppels("RompsLienTexteur", 1), 1);
    EXPECT_EQ(Commande().AttendsAppels("*", 2), 2);
    EXPECT_EQ(Commande().DonneMethodes(), "Suspends RompsLienTexteur");
}

TEST_F(Misbehaviour, AnUnknownRuleIsRefused) {
    for (auto const& [comment, detail] : {std::pair{"bizarre", ""},
                                          {"lent", ""},
                                          {"lent", "-1"},
                                          {"lent", "bientôt"},
                                          {"entier", "x"},
                                          {"booleen", "oui"},
                                          {"taille", "-1"}}) {
        EXPECT_EQ(
            Commande()
                .Lien()
                .Appelle(QStringLiteral("Deregle"), {QStringLiteral("*"), QLatin1String(comment),
                                                     QString::fromUtf8(detail), 0})
                .errorName()
                .toStdString(),
            "org.freedesktop.DBus.Error.InvalidArgs")
            << comment;
    }
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
}

TEST_F(Misbehaviour, WhatThePersonTypesMovesTheSelection) {
    Commande().MetsSelection("z1", 4, 8);
    Commande().Tape("z1", 0, 3, "Mes petits");
    CommandeBureau::SelectionVue const vue = Commande().DonneSelection("doc1");
    EXPECT_EQ(vue.zone, "z1");
    EXPECT_EQ(vue.debut, 11);
    EXPECT_EQ(vue.fin, 15);
    EXPECT_EQ(client.Texte("DonneContenuSelection"), "chat");
}

TEST(ControlInterface, IsNotThereInTheOfficeThatIsInstalled) {
    BusPrive bus;
    BureauTexte const bureau({{"a.txt", "a"}});
    LienBus const commande(QString::fromStdString(bureau.Service()),
                           QStringLiteral("/com/ombrel/vocalyne/commande"),
                           QStringLiteral("com.ombrel.vocalyne.bureau.commande"));
    EXPECT_EQ(commande.Appelle(QStringLiteral("Retablis")).errorName().toStdString(),
              "org.freedesktop.DBus.Error.UnknownObject");
    EXPECT_EQ(ClientBureau(bureau.Instance()).Erreur("DocEstMort", {QStringLiteral("doc1")}), "");
}
