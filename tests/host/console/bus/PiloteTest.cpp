// SPDX-License-Identifier: MPL-2.0
#include "Hote.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

QString const kClasse = QStringLiteral("VCLSalFrame:OpenOffice.org 4.0");

QJsonObject Op(char const* nom, QJsonObject arguments = {}) {
    arguments.insert(QStringLiteral("op"), QLatin1String(nom));
    return arguments;
}

QJsonObject Cree(std::string const& id) {
    return Op("CreeAgentTexteur", {{QStringLiteral("infos"),
                                    QJsonObject{{QStringLiteral("Id"), Q(id)},
                                                {QStringLiteral("Classe"), kClasse},
                                                {QStringLiteral("ClasseInitialisation"), kClasse},
                                                {QStringLiteral("Genre"), 1}}},
                                   {QStringLiteral("idDocument"), Q(id)}});
}

QJsonValue Resultat(QJsonObject const& reponse) {
    EXPECT_FALSE(reponse.contains(QLatin1String("erreur")))
        << QJsonDocument(reponse).toJson().toStdString();
    return reponse.value(QLatin1String("resultat"));
}

QJsonArray Zones(QJsonObject const& reponse) {
    return Resultat(reponse).toObject().value(QLatin1String("zones")).toArray();
}

class PilotedPlugin : public testing::Test {
  protected:
    BusPrive bus_;
};

} // namespace

TEST_F(PilotedPlugin, TheInstalledPluginIsTheDefault) {
    auto const reponses =
        Dialogue({Op("DonneNomsTexteurs", {{QStringLiteral("texte"), Q("avant")}})});
    EXPECT_EQ(Resultat(reponses[0]).toString(), kClasse);
}

TEST_F(PilotedPlugin, AWholeCorrectionRunsFromRequestToFile) {
    BureauDeTest bureau({{"a.txt", "Les chat \U0001F600.\nFin\n"}});
    QJsonObject const place{{QStringLiteral("zone"), 0},
                            {QStringLiteral("debut"), 4},
                            {QStringLiteral("fin"), 8},
                            {QStringLiteral("texte"), Q("chat")}};
    QJsonObject correction = place;
    correction.insert(QStringLiteral("texte"), Q("chats"));
    correction.insert(QStringLiteral("drapeau"), true);
    auto const reponses =
        Dialogue({Cree(bureau.Identifiant()), Op("DonneTitreDocument"), Op("DonneZones"),
                  Op("PeutCorriger", place), Op("CorrigeDansTexteur", correction),
                  Op("SynchronisePositions", {{QStringLiteral("vide"), true}}), Op("Detruis")});
    EXPECT_EQ(Resultat(reponses[0]), QJsonValue(true));
    EXPECT_EQ(Resultat(reponses[1]).toString(), Q("a.txt"));
    ASSERT_EQ(Zones(reponses[2]).size(), 2);
    EXPECT_EQ(Zones(reponses[2])[0].toObject().value(QLatin1String("longueur")).toInt(), 12);
    EXPECT_EQ(Resultat(reponses[3]), QJsonValue(true));
    EXPECT_EQ(Resultat(reponses[4]), QJsonValue(true));
    EXPECT_EQ(Zones(reponses[5])[0].toObject().value(QLatin1String("texte")).toString(),
              Q("Les chats \U0001F600."));
    EXPECT_TRUE(Resultat(reponses[6]).isNull());
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), "Les chats \U0001F600.\nFin\n");
}

TEST_F(PilotedPlugin, TheAgentsFixedAnswersComeThroughForAnOpenOfficeWindowToo) {
    BureauDeTest bureau({{"a.txt", "a\n"}});
    QJsonObject creation = Cree(bureau.Identifiant());
    QJsonObject infos = creation.value(QLatin1String("infos")).toObject();
    infos.insert(QStringLiteral("Classe"), Q("VCLSalFrame:OpenOffice.org 3.0"));
    creation.insert(QStringLiteral("infos"), infos);
    struct Reponse {
        char const* op;
        QJsonValue resultat;
    };
    Reponse const attendues[] = {
        {"Capacite1", true},
        {"Capacite2", false},
        {"Capacite3", false},
        {"Capacite4", false},
        {"Capacite5", true},
        {"Capacite6", true},
        {"Capacite7", true},
        {"DonneAgentTexteur", true},
        {"Requete10", 0},
        {"Requete11", 0},
        {"Requete12", 0},
        {"Requete13", 0},
        {"Requete14", 0},
        {"Requete17", true},
        {"Requete21", true},
        {"Requete30", true},
        {"Requete33", true},
        {"EstLie", true},
        {"DocEstMort", false},
        {"DonneNomApplication", Q("LibreOffice")},
        {"DonneFinDeParagraphe", Q("\n")},
        {"DonneChaineAgent7", Q("")},
        {"DonneImageApplication", QJsonValue::Null},
        {"Crochet03", QJsonValue::Null},
        {"Crochet19", QJsonValue::Null},
        {"Crochet23", QJsonValue::Null},
        {"Crochet24", QJsonValue::Null},
        {"Crochet28", QJsonValue::Null},
        {"Crochet29", QJsonValue::Null},
        {"Suspends", QJsonValue::Null},
    };
    std::vector<QJsonObject> requetes{creation};
    for (Reponse const& attendue : attendues) {
        requetes.push_back(Op(attendue.op));
    }
    auto const reponses = Dialogue(requetes);
    EXPECT_EQ(Resultat(reponses[0]), QJsonValue(true));
    std::size_t rang = 1;
    for (Reponse const& attendue : attendues) {
        EXPECT_EQ(Resultat(reponses.at(rang++)), attendue.resultat) << attendue.op;
    }
}

TEST_F(PilotedPlugin, TheExtensionsAlertStandsBesideTheNullAgent) {
    QJsonObject requete = Cree("a~b");
    QJsonObject infos = requete.value(QLatin1String("infos")).toObject();
    infos.insert(QStringLiteral("ClasseInitialisation"), Q("VCLSalFrame:OpenOffice.org 3.0"));
    requete.insert(QStringLiteral("infos"), infos);
    auto const reponses = Dialogue({requete});
    EXPECT_TRUE(Resultat(reponses[0]).isNull());
    QJsonArray const alertes = reponses[0].value(QLatin1String("alertes")).toArray();
    ASSERT_EQ(alertes.size(), 1);
    EXPECT_EQ(alertes[0].toObject().value(QLatin1String("genre")).toInt(), 4);
    EXPECT_EQ(alertes[0].toObject().value(QLatin1String("texte")).toString(),
              Q("LibreOffice extension"));
}

TEST_F(PilotedPlugin, AnErrorOfTheZoneDocumentIsTheRequestsError) {
    BureauDeTest bureau({{"a.txt", "a\n"}});
    bureau.DonneCommande().Deregle("SynchronisePositions", "texte",
                                   R"({"Zones":[{"Texte":"YQ=="},{"DebutSel":"x"}]})", 1);
    auto const reponses = Dialogue({Cree(bureau.Identifiant()), Op("DonneZones"),
                                    Op("DonneLongueur", {{QStringLiteral("zone"), 0}}),
                                    Op("DonneLongueur", {{QStringLiteral("zone"), 1}})});
    EXPECT_EQ(reponses[1].value(QLatin1String("erreur")).toString(),
              Q("Type is not convertible to int"));
    EXPECT_EQ(Resultat(reponses[2]).toInt(), 1);
    EXPECT_TRUE(reponses[3].contains(QLatin1String("erreur")));
}

TEST_F(PilotedPlugin, TwoAgentsFollowEachOther) {
    BureauDeTest bureau({{"a.txt", "un\n"}, {"b.txt", "deux\n"}});
    auto const reponses =
        Dialogue({Cree(bureau.Identifiant(0)), Op("DonneZones"), Cree(bureau.Identifiant(1)),
                  Op("DonneTexte", {{QStringLiteral("zone"), 0}}), Op("DonneZones"),
                  Cree("personne~doc1"), Op("DonneTitreDocument")});
    EXPECT_TRUE(reponses[3].contains(QLatin1String("erreur")));
    ASSERT_EQ(Zones(reponses[4]).size(), 1);
    EXPECT_EQ(Zones(reponses[4])[0].toObject().value(QLatin1String("texte")).toString(), Q("deux"));
    EXPECT_TRUE(Resultat(reponses[5]).isNull());
    EXPECT_EQ(Resultat(reponses[6]).toString(), Q("b.txt"));
}

TEST_F(PilotedPlugin, OperationsAfterTheOfficesEndAnswerNeutralValues) {
    BureauDeTest bureau({{"a.txt", "un\n"}});
    bureau.DonneCommande().Deregle("Suspends", "meurs");
    auto const reponses = Dialogue({Cree(bureau.Identifiant()), Op("Suspends"),
                                    Op("DonneTitreDocument"), Op("DocEstMort"), Op("DonneZones")});
    EXPECT_EQ(Resultat(reponses[2]).toString(), QString());
    EXPECT_EQ(Resultat(reponses[3]), QJsonValue(false));
    EXPECT_EQ(Zones(reponses[4]).size(), 0);
    bureau.DonneProcessus().Attends();
}
