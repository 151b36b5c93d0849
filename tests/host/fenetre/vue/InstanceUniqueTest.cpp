// SPDX-License-Identifier: MPL-2.0
#include "fenetre/vue/InstanceUnique.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace hote {
namespace {

TEST(InstanceUnique, EachDocumentHasAValidNameOfItsOwn) {
    QRegularExpression const nom(
        QStringLiteral("\\A[A-Za-z_][A-Za-z0-9_]*(\\.[A-Za-z_][A-Za-z0-9_]*)+\\z"));
    QStringList noms;
    for (char const* id : {"a~1", "a~2", "b~1", "é ~ /.-", ""}) {
        QString const service = InstanceUnique::DonneNomDeService(QString::fromUtf8(id));
        EXPECT_TRUE(nom.match(service).hasMatch()) << service.toStdString();
        EXPECT_LE(service.size(), 255);
        EXPECT_FALSE(noms.contains(service));
        noms.append(service);
        EXPECT_EQ(InstanceUnique::DonneNomDeService(QString::fromUtf8(id)), service);
    }
}

} // namespace
} // namespace hote
