// SPDX-License-Identifier: MPL-2.0
#include "CompagnonHostile.h"
#include "Hote.h"
#include "outils/Repetitions.h"
#include "outils/bus/Arroseur.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/Faussaire.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

Fin Documents() {
    return LanceHote(
        {QStringLiteral("documents"), QStringLiteral("--sortie"), QStringLiteral("json")});
}

/// The identifiers listed, joined by spaces.
std::string Ids(Fin const& fin) {
    QStringList ids;
    EXPECT_TRUE(fin.Json().isArray()) << fin.sortie.toStdString();
    for (QJsonValue const document : fin.Json().array()) {
        ids.append(document.toObject().value(QLatin1String("id")).toString());
    }
    return ids.join(QLatin1Char(' ')).toStdString();
}

/// The private bus, and an application object for companions in this process.
class HostDocuments : public testing::Test {
  protected:
    HostDocuments() {
        LanceHote({QStringLiteral("--version")}); // makes the application object
    }

    BusPrive bus_;
};

} // namespace

TEST_F(HostDocuments, NoCompanionIsAnEmptyList) {
    Fin const fin = Documents();
    EXPECT_EQ(fin.code, 0);
    EXPECT_EQ(fin.sortie, "[]\n");
    Fin const texte = LanceHote({QStringLiteral("documents")});
    EXPECT_EQ(texte.code, 0);
    EXPECT_EQ(texte.sortie, "");
    EXPECT_TRUE(texte.erreurs.contains("No document within reach."));
}

TEST_F(HostDocuments, DocumentsOfAllCompanionsAreListedWithTitleAndPath) {
    BureauDeTest un({{"é \"x\".txt", "a\n"}, {"deux.txt", "b\n"}}, {"--instance", "un"});
    BureauDeTest deux({{"trois.txt", "c\n"}}, {"--instance", "deux"});
    Fin const fin = Documents();
    EXPECT_EQ(fin.code, 0);
    EXPECT_EQ(Ids(fin), "deux~doc1 un~doc1 un~doc2");
    QJsonObject const document = fin.Json().array().at(1).toObject();
    EXPECT_EQ(document.keys(), (QStringList{QStringLiteral("chemin"), QStringLiteral("genre"),
                                            QStringLiteral("id"), QStringLiteral("titre")}));
    EXPECT_EQ(document.value(QLatin1String("titre")).toString(), Q("é \"x\".txt"));
    EXPECT_EQ(document.value(QLatin1String("chemin")).toString(), Q(un.Chemin().string()));
    Fin const texte = LanceHote({QStringLiteral("documents")});
    EXPECT_TRUE(
        texte.sortie.contains(("un~doc2  deux.txt  " + un.Chemin(1).string() + "  [text]").c_str()))
        << texte.sortie.toStdString();
}

TEST_F(HostDocuments, ASilentCompanionIsNamedAndTheOthersAreListedInTime) {
    CompagnonHostile const muet(QStringLiteral("muet"), CompagnonHostile::Muet());
    CompagnonHostile const sourd(QStringLiteral("sourd"), CompagnonHostile::Muet());
    BureauDeTest bureau({{"a.txt", "a\n"}});
    QElapsedTimer montre;
    montre.start();
    Fin const fin = Documents();
    // Both at once, not one after the other; far below QtDBus's own 25 s.
    EXPECT_LT(montre.elapsed(), 15000);
    EXPECT_EQ(fin.code, 0);
    EXPECT_EQ(Ids(fin), bureau.Identifiant());
    EXPECT_TRUE(fin.erreurs.contains("companion muet does not"));
    EXPECT_TRUE(fin.erreurs.contains("companion sourd does not"));
}

TEST_F(HostDocuments, WrongAnswersAreLeftOutAndNamed) {
    auto const entier = [](QDBusMessage const& message, QDBusConnection const& connexion) {
        return connexion.send(message.createReply(7));
    };
    auto const rien = [](QDBusMessage const& message, QDBusConnection const& connexion) {
        return connexion.send(message.createReply());
    };
    auto const erreur = [](QDBusMessage const& message, QDBusConnection const& connexion) {
        return connexion.send(
            message.createErrorReply(QStringLiteral("x.y.Z"), QStringLiteral("raison\033[2J")));
    };
    auto const inconnu = [](QDBusMessage const& /*message*/, QDBusConnection const& /*connexion*/) {
        return false;
    };
    CompagnonHostile const a(QStringLiteral("a"), entier);
    CompagnonHostile const b(QStringLiteral("b"), rien);
    CompagnonHostile const c(QStringLiteral("c"), erreur);
    CompagnonHostile const d(QStringLiteral("d"), inconnu);
    CompagnonHostile const e(QStringLiteral("e"), CompagnonHostile::Texte(QStringLiteral("[{]")));
    CompagnonHostile const f(
        QStringLiteral("f"),
        CompagnonHostile::Texte(QStringLiteral(
            R"([{"id":"a~1","titre":"","chemin":""},{"id":"f~1","titre":"","chemin":""}])")));
    Fin const fin = Documents();
    EXPECT_EQ(fin.code, 0);
    EXPECT_EQ(Ids(fin), "f~1");
    for (char const* nom : {"a", "b", "c", "d", "e", "f"}) {
        EXPECT_TRUE(fin.erreurs.contains(QByteArray("companion ") + nom + ' '))
            << nom << fin.erreurs.toStdString();
    }
    EXPECT_FALSE(fin.erreurs.contains('\033'));
    EXPECT_EQ(a.DonneNombre(), 1);
}

TEST_F(HostDocuments, ACompanionThatLeavesInsteadOfAnsweringIsNamed) {
    BureauDeTest bureau({{"a.txt", "a\n"}});
    std::unique_ptr<CompagnonHostile> fuyard;
    fuyard = std::make_unique<CompagnonHostile>(
        QStringLiteral("fuyard"),
        [&](QDBusMessage const& /*message*/, QDBusConnection const& /*connexion*/) {
            fuyard->Pars();
            return true;
        });
    Fin const fin = Documents();
    EXPECT_EQ(Ids(fin), bureau.Identifiant());
    EXPECT_TRUE(fin.erreurs.contains("companion fuyard does not give its documents"))
        << fin.erreurs.toStdString();
}

TEST_F(HostDocuments, AnAnswerOfManyMegabytesHarmsNobodyElse) {
    CompagnonHostile const gros(QStringLiteral("gros"),
                                CompagnonHostile::Texte(QString(70000000, QLatin1Char(' '))));
    BureauDeTest bureau({{"a.txt", "a\n"}});
    Fin const fin = Documents();
    EXPECT_EQ(fin.code, 0);
    EXPECT_EQ(Ids(fin), bureau.Identifiant());
    EXPECT_TRUE(fin.erreurs.contains("companion gros "));
}

TEST_F(HostDocuments, NamesThatAreNoCompanionsAreNotCalled) {
    CompagnonHostile const sous(QStringLiteral("a.b"), CompagnonHostile::Muet());
    CompagnonHostile const tiret(QStringLiteral("a-b"), CompagnonHostile::Muet());
    EXPECT_EQ(Documents().sortie, "[]\n");
    EXPECT_EQ(sous.DonneNombre(), 0);
    EXPECT_EQ(tiret.DonneNombre(), 0);
}

TEST_F(HostDocuments, ABusThatStopsMidwayEndsTheListingInTime) {
    CompagnonHostile const complice(
        QStringLiteral("complice"),
        [this](QDBusMessage const& /*message*/, QDBusConnection const& /*connexion*/) {
            bus_.Fige();
            return true;
        });
    Fin const fin = Documents();
    bus_.Degele();
    EXPECT_EQ(fin.code, 0);
    EXPECT_TRUE(fin.erreurs.contains("companion complice does not answer"));
}

TEST_F(HostDocuments, ABusThatDiesMidwayEndsTheListing) {
    CompagnonHostile const complice(
        QStringLiteral("complice"),
        [this](QDBusMessage const& /*message*/, QDBusConnection const& /*connexion*/) {
            bus_.Tue();
            return true;
        });
    Fin const fin = Documents();
    EXPECT_EQ(fin.code, 0);
    EXPECT_TRUE(fin.erreurs.contains("companion complice "));
}

TEST_F(HostDocuments, WhoAnswersInACompanionsPlaceIsNotBelievedAndToldOf) {
    CompagnonHostile const muet(QStringLiteral("muet"), CompagnonHostile::Muet());
    BureauDeTest bureau({{"a.txt", "a\n"}}, {"--instance", "sain"});
    Faussaire const faussaire(bus_.Adresse(), "DonneDocuments", Faussaire::Reponse::Documents);
    Fin const fin = Documents();
    EXPECT_GE(faussaire.DonneNombre(), 2);
    EXPECT_TRUE(fin.erreurs.contains("Another program answers in place of companion muet"))
        << fin.erreurs.toStdString();
    // The other's own answer may be in first: both are quick.
    EXPECT_TRUE(Ids(fin) == "sain~doc1" ||
                fin.erreurs.contains("Another program answers in place of companion sain"))
        << fin.sortie.toStdString() << fin.erreurs.toStdString();
}

TEST_F(HostDocuments, AnswersThatNobodyAskedForAreNotBelieved) {
    BureauDeTest bureau({{"a.txt", "a\n"}}, {"--instance", "sain"});
    Arroseur const arroseur(bus_.Adresse());
    int const fois = Repetitions(20, 1'000);
    for (int i = 0; i < fois; ++i) {
        Fin const fin = Documents();
        if (fin.code == 0) {
            EXPECT_TRUE(Ids(fin) == "sain~doc1" || fin.erreurs.contains("Another program answers"))
                << fin.sortie.toStdString() << fin.erreurs.toStdString();
        } else {
            EXPECT_TRUE(fin.erreurs.contains("another program answers in its place"))
                << fin.erreurs.toStdString();
        }
    }
    EXPECT_GT(arroseur.DonneNombre(), fois);
}
