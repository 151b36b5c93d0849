// SPDX-License-Identifier: MPL-2.0
#include "ConnexionSession.h"

#include "outils/Textes.h"

#include <QDBusConnection>
#include <gtest/gtest.h>

#include <vector>

namespace {

struct Cas {
    std::vector<char16_t> unites;
    bool peut;
};

TEST(TextsOnTheBus, TravelUnlessTheyHoldNulOrHalfOfAPair) {
    constexpr char16_t kHaut = 0xD83D;
    constexpr char16_t kBas = 0xDE00;
    Cas const cas[] = {
        {{}, true},
        {{u'a'}, true},
        {{u'\n', u'\t', 0x07, 0x7F, 0x85}, true},
        {{0xFEFF, 0xFFFE, 0xFFFF, 0xE000, 0xD7FF}, true},
        {{kHaut, kBas}, true},
        {{u'a', kHaut, kBas, u'b', kHaut, kBas}, true},
        {{0}, false},
        {{u'a', 0, u'b'}, false},
        {{u'a', 0}, false},
        {{kHaut}, false},
        {{kBas}, false},
        {{kHaut, u'a'}, false},
        {{kHaut, kHaut, kBas}, false},
        {{kHaut, kBas, kBas}, false},
        {{kBas, kHaut}, false},
        {{u'a', kHaut, kBas, kHaut}, false},
        {{kHaut, 0}, false},
    };
    for (auto const& c : cas) {
        UniChaine const texte(c.unites.data(), static_cast<int>(c.unites.size()));
        EXPECT_EQ(c.peut, connexionSession::PeutVoyager(texte)) << testing::PrintToString(texte);
    }
}

TEST(TextsOnTheBus, TravelUpToFortyMebiUnits) {
    constexpr int kMax = 40 * 1024 * 1024;
    EXPECT_TRUE(connexionSession::PeutVoyager(sdd::T(sdd::ChaineN(kMax, u'x'))));
    EXPECT_FALSE(connexionSession::PeutVoyager(sdd::T(sdd::ChaineN(kMax + 1, u'x'))));
}

TEST(LargeReplies, AreNotAskedForOnAConnectionThatIsNotUp) {
    QDBusConnection const aucune(QStringLiteral("no such connection"));
    ASSERT_FALSE(aucune.isConnected());
    connexionSession::AccepteGrandesReponses(aucune);
}

} // namespace
