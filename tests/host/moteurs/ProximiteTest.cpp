// SPDX-License-Identifier: MPL-2.0
#include "moteurs/internes/Proximite.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

int Distance(char const* un, char const* autre) {
    return DonneDistance(QString::fromUtf8(un), QString::fromUtf8(autre));
}

} // namespace

TEST(Proximite, CountsEachSlipAndHalfForAMark) {
    EXPECT_EQ(Distance("chat", "chat"), 0);
    EXPECT_EQ(Distance("chat", "chats"), 2);
    EXPECT_EQ(Distance("acceuil", "accueil"), 2);
    EXPECT_EQ(Distance("aprés", "après"), 1);
    EXPECT_EQ(Distance("aprés", "âpres"), 2);
    EXPECT_EQ(Distance("narow", "arrow"), 4);
    EXPECT_EQ(Distance("", "ab"), 4);
}

TEST(Proximite, MarksAreTakenOffForComparison) {
    EXPECT_EQ(OteMarques(QString::fromUtf8("Kraków")), QLatin1String("krakow"));
}
