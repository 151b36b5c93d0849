// SPDX-License-Identifier: MPL-2.0
#include "langue/DetecteLangue.h"
#include "LexiqueFaux.h"

#include <gtest/gtest.h>

using hote::DetecteLangue;
using hote::Langue;

namespace {

class Detection : public ::testing::Test {
  protected:
    LexiqueFaux francais_{Langue::Francais,
                          {QStringLiteral("le"), QStringLiteral("chat"), QStringLiteral("table")}};
    LexiqueFaux anglais_{Langue::Anglais,
                         {QStringLiteral("the"), QStringLiteral("cat"), QStringLiteral("table")}};
    DetecteLangue detecteur_{francais_, anglais_};
};

} // namespace

TEST_F(Detection, TheLanguageIsTheOneWhoseWordsAreKnown) {
    EXPECT_FALSE(detecteur_.Compte(QStringLiteral("the cat, chat inconnu table")));
    EXPECT_EQ(detecteur_.DonneLangue(), Langue::Anglais);
    detecteur_.Compte(QStringLiteral("le chat"));
    EXPECT_EQ(detecteur_.DonneLangue(), Langue::Francais);
}

TEST_F(Detection, TheSmallWordsCountMost) {
    detecteur_.Compte(QStringLiteral("le cat cat"));
    EXPECT_EQ(detecteur_.DonneLangue(), Langue::Francais);
}

TEST_F(Detection, WordsOfBothLanguagesTellNothing) {
    detecteur_.Compte(QStringLiteral("table table 12 !"));
    EXPECT_EQ(detecteur_.DonneLangue(), std::nullopt);
}

TEST_F(Detection, NoTextTellsNothing) {
    EXPECT_EQ(detecteur_.DonneLangue(), std::nullopt);
}

TEST_F(Detection, ALongTextIsNotReadToItsEnd) {
    EXPECT_TRUE(detecteur_.Compte(QStringLiteral("le chat ").repeated(10000)));
    EXPECT_LT(francais_.demandes.size(), 2500);
}
