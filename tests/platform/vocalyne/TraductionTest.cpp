// SPDX-License-Identifier: MPL-2.0
#include "Traduction.h"
#include "InitialisationGenerale.h"

#include <QFile>
#include <QResource>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

// Qt's macros declare functions of the global namespace.
static void RetireRessources() {
    Q_CLEANUP_RESOURCE(essai);
}
static void RemetsRessources() {
    Q_INIT_RESOURCE(essai);
}

namespace {

UniChaine const kFrancais(QStringLiteral(":/essai/fr.mo"));
UniChaine const kAnglais(QStringLiteral(":/essai/en.mo"));
char const kOuvrir[] = "Ouvrir";
char const kMenu[] = "menu « Fichier »";

std::string Tr(DomaineDeTraduction* domaine, char const* message, char const* contexte = nullptr) {
    return _Tr(domaine, message, contexte).VersUtf8();
}

/// The display language is the process's: each test begins with English, as a first choice would.
class Translation : public testing::Test {
  protected:
    Translation() { InitialisationGenerale::InitLePlusTotPossible(kLangueAnglais); }

    static void OffreLesDeux(DomaineDeTraduction** domaine) {
        InitLocaleAvecQRC(domaine, kAnglais, kLangueAnglais, false);
        InitLocaleAvecQRC(domaine, kFrancais, kLangueFrancais, false);
    }
};

TEST_F(Translation, WithoutADomainTheMessageItselfIsGiven) {
    EXPECT_EQ("L’intégration à {1}", Tr(nullptr, "L’intégration à {1}"));
    EXPECT_EQ("Ouvrir", Tr(nullptr, kOuvrir, kMenu));
    EXPECT_EQ("", Tr(nullptr, nullptr));
    EXPECT_EQ("", Tr(nullptr, "", "x"));
}

TEST_F(Translation, TheCatalogOfTheDisplayLanguageIsTaken) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    ASSERT_NE(nullptr, domaine);
    EXPECT_EQ("Open", Tr(domaine, kOuvrir));
    EXPECT_EQ("Integrating with “{1}” 😀", Tr(domaine, "L’intégration à {1}"));
    EXPECT_EQ(kAnglais, domaine->second);

    InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais);
    DomaineDeTraduction* autre = nullptr;
    OffreLesDeux(&autre);
    EXPECT_EQ("Ouvrir…", Tr(autre, kOuvrir));
    EXPECT_EQ(kFrancais, autre->second);
}

TEST_F(Translation, TheDomainIsMadeByTheFirstCallWhateverItsLanguage) {
    DomaineDeTraduction* domaine = nullptr;
    InitLocaleAvecQRC(&domaine, kFrancais, kLangueFrancais, false);
    ASSERT_NE(nullptr, domaine);
    auto* const premier = domaine;
    EXPECT_NE(nullptr, domaine->first);
    EXPECT_TRUE(domaine->second.EstVide());
    EXPECT_EQ("Ouvrir", Tr(domaine, kOuvrir));
    InitLocaleAvecQRC(&domaine, kAnglais, kLangueAnglais, false);
    EXPECT_EQ(premier, domaine);
    EXPECT_EQ("Open", Tr(domaine, kOuvrir));
}

TEST_F(Translation, ACatalogCanBeTakenWhateverTheLanguage) {
    DomaineDeTraduction* domaine = nullptr;
    InitLocaleAvecQRC(&domaine, kFrancais, kLangueFrancais, true);
    EXPECT_EQ("Ouvrir…", Tr(domaine, kOuvrir));
}

TEST_F(Translation, AContextTellsEqualMessagesApart) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    EXPECT_EQ("Open a file", Tr(domaine, kOuvrir, kMenu));
    EXPECT_EQ("Open", Tr(domaine, kOuvrir, nullptr));
}

TEST_F(Translation, AMessageThatTheCatalogLacksIsGivenItself) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    EXPECT_EQ("Fermer — « Été »", Tr(domaine, "Fermer — « Été »"));
    EXPECT_EQ("Ouvrir", Tr(domaine, kOuvrir, "un autre contexte"));
    EXPECT_EQ("ouvrir", Tr(domaine, "ouvrir"));
}

TEST_F(Translation, TheCatalogsDescriptionOfItselfIsNoTranslation) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    EXPECT_EQ("", Tr(domaine, ""));
}

TEST_F(Translation, AMessageWithAPluralServesItsSingular) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    EXPECT_EQ("{1} mistake", Tr(domaine, "{1} faute"));
}

TEST_F(Translation, AMissingOrWrongCatalogLeavesTheDomainAsItWas) {
    DomaineDeTraduction* domaine = nullptr;
    InitLocaleAvecQRC(&domaine, UniChaine(QStringLiteral(":/nulle/part.mo")), kLangueAnglais, true);
    ASSERT_NE(nullptr, domaine);
    EXPECT_EQ("Ouvrir", Tr(domaine, kOuvrir));
    OffreLesDeux(&domaine);
    for (auto const* chemin : {":/nulle/part.mo", ":/essai/faux.mo", ":/essai", ""}) {
        InitLocaleAvecQRC(&domaine, UniChaine(QString::fromLatin1(chemin)), kLangueAnglais, true);
        EXPECT_EQ("Open", Tr(domaine, kOuvrir)) << chemin;
    }
    EXPECT_EQ(kAnglais, domaine->second);
    InitLocaleAvecQRC(nullptr, kAnglais, kLangueAnglais, true);
}

TEST_F(Translation, AWrongCatalogTakesNoPlaceFromOneThatWaits) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    InitLocaleAvecQRC(&domaine, UniChaine(QStringLiteral(":/essai/faux.mo")), kLangueAnglais, true);
    EXPECT_EQ(kAnglais, domaine->second);
    EXPECT_EQ("Open", Tr(domaine, kOuvrir));
}

TEST_F(Translation, AFileThatIsNoResourceIsNotRead) {
    QTemporaryDir const dossier;
    QString const chemin = dossier.filePath(QStringLiteral("en.mo"));
    ASSERT_TRUE(QFile::copy(kAnglais.VersQString(), chemin));
    DomaineDeTraduction* domaine = nullptr;
    InitLocaleAvecQRC(&domaine, UniChaine(chemin), kLangueAnglais, true);
    EXPECT_EQ("Ouvrir", Tr(domaine, kOuvrir));
}

TEST_F(Translation, TheCatalogServesAfterItsResourceIsGone) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    RetireRessources();
    EXPECT_FALSE(QResource(kAnglais.VersQString()).isValid());
    EXPECT_EQ("Open", Tr(domaine, kOuvrir));
    RemetsRessources();
}

TEST_F(Translation, ASlotThatWasEmptiedGetsADomainAnew) {
    // A connector that is loaded again finds its variables as they were the first time.
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    domaine = nullptr;
    InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais);
    OffreLesDeux(&domaine);
    ASSERT_NE(nullptr, domaine);
    EXPECT_EQ("Ouvrir…", Tr(domaine, kOuvrir));
}

TEST_F(Translation, TwoSlotsHaveTwoDomains) {
    DomaineDeTraduction* un = nullptr;
    DomaineDeTraduction* deux = nullptr;
    InitLocaleAvecQRC(&un, kAnglais, kLangueAnglais, true);
    InitLocaleAvecQRC(&deux, kFrancais, kLangueFrancais, true);
    EXPECT_NE(un, deux);
    EXPECT_EQ("Open", Tr(un, kOuvrir));
    EXPECT_EQ("Ouvrir…", Tr(deux, kOuvrir));
}

TEST_F(Translation, ThreadsMayTranslateAtOnce) {
    DomaineDeTraduction* domaine = nullptr;
    OffreLesDeux(&domaine);
    std::vector<std::thread> fils(4);
    for (auto& fil : fils) {
        fil = std::thread([domaine] {
            for (int tour = 0; tour < 2000; ++tour) {
                EXPECT_EQ("Open a file", Tr(domaine, kOuvrir, kMenu));
            }
        });
    }
    for (auto& fil : fils) {
        fil.join();
    }
}

} // namespace
