// SPDX-License-Identifier: MPL-2.0
#include "moteurs/externes/MoteurExterne.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

using namespace hote;

namespace {

class Externe : public ::testing::Test {
  protected:
    MoteurExterne& Moteur(char const* maniere = "", int examenMs = 20000) {
        DescriptionMoteur description;
        description.nom = QStringLiteral("deregle");
        description.langues = QStringList(QStringLiteral("fr"));
        description.commande = {VOCALYNE_PYTHON, "-B", VOCALYNE_MOTEUR_DEREGLE, maniere};
        description.demarrageMs = examenMs;
        description.examenMs = examenMs;
        moteur_ = std::make_unique<MoteurExterne>(description);
        return *moteur_;
    }

    static ParagrapheAExaminer Francais(char const* utf8) {
        QString const texte = QString::fromUtf8(utf8);
        return {texte, {{0, texte.size(), QStringLiteral("fr")}}};
    }

    std::vector<Remarque> Examine(char const* utf8) {
        return moteur_->Examine(Francais(utf8), Arret());
    }

    /// What the engine's failure says; empty when there is none.
    std::string Panne(char const* utf8) {
        try {
            Examine(utf8);
        } catch (ErreurDeMoteur const& erreur) {
            absent_ = erreur.EstAbsent();
            return erreur.what();
        }
        return {};
    }

    std::unique_ptr<MoteurExterne> moteur_;
    bool absent_ = false;
};

} // namespace

TEST_F(Externe, GivesTheRemarksOfTheProgram) {
    Moteur();
    auto const remarques = Examine("chat noir");
    ASSERT_EQ(remarques.size(), 1U);
    EXPECT_EQ(remarques[0].debut, 0);
    EXPECT_EQ(remarques[0].fin, 4);
    EXPECT_EQ(remarques[0].genre, GenreDeRemarque::Accord);
    EXPECT_EQ(remarques[0].suggestions, QStringList(QStringLiteral("bon")));
    EXPECT_DOUBLE_EQ(remarques[0].surete, 0.9);
}

TEST_F(Externe, AsksLineByLineAndFindsThePlacesInTheParagraph) {
    Moteur();
    auto const remarques = Examine("chat noir\nchien blanc\n\n \nfin");
    ASSERT_EQ(remarques.size(), 3U);
    EXPECT_EQ(remarques[1].debut, 10);
    EXPECT_EQ(remarques[1].fin, 15);
    EXPECT_EQ(remarques[2].debut, 25);
}

TEST_F(Externe, FillersDoNotReachTheProgramAndPlacesAreThoseOfTheZone) {
    Moteur();
    auto const remarques = Examine("\x07 a mang\x11"
                                   "é");
    ASSERT_EQ(remarques.size(), 1U);
    EXPECT_EQ(remarques[0].explication, QString::fromUtf8("X a mangé"));
    auto const vieux = Examine("mot\x07 vieux");
    ASSERT_EQ(vieux.size(), 1U);
    EXPECT_EQ(vieux[0].debut, 5);
    EXPECT_EQ(vieux[0].fin, 10);
}

TEST_F(Externe, TellsTheProgramTheLanguagesOfTheParts) {
    Moteur();
    QString const texte = QStringLiteral("les langues of the text");
    auto const remarques = moteur_->Examine(
        {texte, {{0, 12, QStringLiteral("fr-CA")}, {12, 23, QStringLiteral("en")}}}, Arret());
    ASSERT_EQ(remarques.size(), 1U);
    EXPECT_EQ(remarques[0].explication, QLatin1String("fr-CA en"));
}

TEST_F(Externe, AnswersToOtherQuestionsAreDropped) {
    Moteur();
    auto const remarques = Examine("un vieux chat");
    ASSERT_EQ(remarques.size(), 1U);
    EXPECT_EQ(remarques[0].regle, QLatin1String("essai"));
}

TEST_F(Externe, RangesThatAreNotInTheTextAreDropped) {
    Moteur();
    auto const remarques = Examine("chat hors texte");
    ASSERT_EQ(remarques.size(), 1U);
    EXPECT_EQ(remarques[0].debut, 5);
}

TEST_F(Externe, AProgramThatDiesIsStartedAnewAndItsLastWordsAreTold) {
    Moteur();
    EXPECT_NE(Panne("meurs").find("je meurs"), std::string::npos);
    EXPECT_FALSE(absent_);
    EXPECT_EQ(Examine("chat").size(), 1U);
}

TEST_F(Externe, AProgramThatHangsIsKilledAndStartedAnew) {
    Moteur("", 1500);
    EXPECT_NE(Panne("pends"), "");
    EXPECT_EQ(Examine("chat").size(), 1U);
}

TEST_F(Externe, AnswersThatCannotBeReadEndTheProgram) {
    for (char const* texte : {"illisible", "sanstableau", "enorme"}) {
        Moteur();
        EXPECT_NE(Panne(texte), "") << texte;
        EXPECT_EQ(Examine("chat").size(), 1U) << texte;
    }
}

TEST_F(Externe, AnErrorThatTheProgramTellsDoesNotEndIt) {
    Moteur();
    EXPECT_NE(Panne("erreur").find("pas celui-ci"), std::string::npos);
    EXPECT_EQ(Examine("chat").size(), 1U);
}

TEST_F(Externe, AProgramThatOftenFailsCountsAsMissing) {
    for (char const* maniere : {"meurs", "autre"}) {
        Moteur(maniere);
        Panne("chat");
        EXPECT_FALSE(absent_) << maniere;
        Panne("chat");
        EXPECT_NE(Panne("chat"), "") << maniere;
        EXPECT_TRUE(absent_) << maniere;
    }
}

TEST_F(Externe, AProgramThatSaysThatItCannotWorkIsMissing) {
    Moteur("absent");
    EXPECT_NE(Panne("chat"), "");
    EXPECT_TRUE(absent_);
}

TEST_F(Externe, AProgramThatSaysNothingAtItsStartIsGivenUp) {
    Moteur("muet", 300);
    EXPECT_NE(Panne("chat"), "");
}

TEST_F(Externe, APlaceThatNobodyWaitsForAnyMoreIsLeftAtOnce) {
    Moteur("", 600000);
    Arret arret;
    auto examen =
        std::async(std::launch::async, [&] { return moteur_->Examine(Francais("pends"), arret); });
    arret.Demande();
    EXPECT_TRUE(examen.get().empty());
}

TEST_F(Externe, AProgramThatDoesNotReadIsLeftToo) {
    Moteur("sourd", 600000);
    Arret arret;
    std::string const texte(3000000, 'a');
    auto examen = std::async(std::launch::async,
                             [&] { return moteur_->Examine(Francais(texte.c_str()), arret); });
    arret.Demande();
    EXPECT_TRUE(examen.get().empty());
}

TEST_F(Externe, AProgramThatIsNotThereIsMissingAndSaysHowItIsInstalled) {
    DescriptionMoteur description;
    description.nom = QStringLiteral("rien");
    description.commande = {"/nulle/part/programme"};
    description.langues = QStringList(QStringLiteral("fr"));
    description.paquet = QStringLiteral("un-paquet");
    moteur_ = std::make_unique<MoteurExterne>(description);
    EXPECT_NE(Panne("chat").find("un-paquet"), std::string::npos);
    EXPECT_TRUE(absent_);
}
