// SPDX-License-Identifier: MPL-2.0
#include "bus/EnumereDocuments.h"

#include <gtest/gtest.h>

using namespace hote;

TEST(DonneInstance, OnlyCompanionsNamesThatCanStandInAPathCount) {
    auto const instance = [](char const* reste) {
        return DonneInstance(QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.") +
                             QString::fromUtf8(reste))
            .toStdString();
    };
    EXPECT_EQ(instance("soffice_12"), "soffice_12");
    EXPECT_EQ(instance("_7"), "_7");
    for (char const* reste : {"", "7", "a.b", "a-b", "é", "a\n"}) {
        EXPECT_EQ(instance(reste), "") << reste;
    }
    EXPECT_EQ(DonneInstance(QStringLiteral("org.freedesktop.DBus")), QString());
    EXPECT_EQ(DonneInstance(QStringLiteral(":1.7")), QString());
}
