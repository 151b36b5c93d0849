// SPDX-License-Identifier: MPL-2.0
#include "VocalyneOpenOfficeProxyQDBUS.h"

#include <gtest/gtest.h>

#include <QMetaMethod>

namespace {

/// "name(type parameter, …)" of each method that the proxy's own meta-object declares.
QStringList Methodes() {
    auto const& meta = VocalyneOpenOfficeProxyQDBUS::staticMetaObject;
    QStringList methodes;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        auto const methode = meta.method(i);
        QStringList parametres;
        for (int p = 0; p < methode.parameterCount(); ++p) {
            parametres << QString::fromLatin1(methode.parameterTypes().at(p) + " " +
                                              methode.parameterNames().at(p));
        }
        methodes << QString::fromLatin1("%1 %2(%3)")
                        .arg(QString::fromLatin1(methode.typeName()),
                             QString::fromLatin1(methode.name()),
                             parametres.join(QString::fromLatin1(", ")));
    }
    return methodes;
}

TEST(Proxy, DeclaresExactlyTheMethodsOfTheWireInTheirOrderWithTheirParameterNames) {
    char const* const attendues[] = {
        "QDBusPendingReply<> ActivePourCorrecteur()",
        "QDBusPendingReply<> ActivePourOutils()",
        "QDBusPendingReply<> AjusteSelectionPourOutils(int deltaDebut, int deltaFin)",
        ("QDBusPendingReply<> CorrigeDansTexteur(QString idZone, int leDebut, int laFin, "
         "QString laChaine, bool automatique)"),
        "QDBusPendingReply<bool> DocEstMort(QString leId)",
        "QDBusPendingReply<QString> DonneCheminDocument()",
        "QDBusPendingReply<QString> DonneContenuSelection()",
        "QDBusPendingReply<QString> DonneContexteSelection()",
        "QDBusPendingReply<int> DonneDebutSelection()",
        "QDBusPendingReply<int> DonneDebutSelectionDansSonContexte()",
        "QDBusPendingReply<int> DonneFinSelection()",
        "QDBusPendingReply<int> DonneFinSelectionDansSonContexte()",
        "QDBusPendingReply<QString> DonneTitreDocument()",
        "QDBusPendingReply<> InitialisePourCorrecteur()",
        "QDBusPendingReply<> InitialisePourOutils(bool estDico)",
        "QDBusPendingReply<> InitialiseTexteur(QString leId)",
        "QDBusPendingReply<bool> PermetsRetourDeCharriot()",
        ("QDBusPendingReply<bool> PeutCorriger(QString idZone, int leDebut, int laFin, "
         "QString laGraphieOriginale)"),
        "QDBusPendingReply<> RemplaceEtReselectionne(QString leMot)",
        "QDBusPendingReply<> RompsLienCorrecteur()",
        "QDBusPendingReply<> RompsLienTexteur()",
        "QDBusPendingReply<> SelectionneIntervalle(QString idZone, int leDebut, int laFin)",
        "QDBusPendingReply<> Suspends()",
        "QDBusPendingReply<QString> SynchronisePositions(QString leId)",
    };
    QStringList liste;
    for (auto const* const attendue : attendues) {
        liste << QString::fromLatin1(attendue);
    }
    EXPECT_EQ(liste.join(QString::fromLatin1("\n")).toStdString(),
              Methodes().join(QString::fromLatin1("\n")).toStdString());
}

TEST(Proxy, DeclaresPublicSlotsAndNothingElse) {
    auto const& meta = VocalyneOpenOfficeProxyQDBUS::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        EXPECT_EQ(QMetaMethod::Slot, meta.method(i).methodType());
        EXPECT_EQ(QMetaMethod::Public, meta.method(i).access());
    }
    EXPECT_EQ(meta.propertyOffset(), meta.propertyCount());
    EXPECT_EQ(meta.classInfoOffset(), meta.classInfoCount());
    EXPECT_EQ(meta.enumeratorOffset(), meta.enumeratorCount());
}

TEST(Proxy, BearsItsNameAndItsInterface) {
    auto const& meta = VocalyneOpenOfficeProxyQDBUS::staticMetaObject;
    EXPECT_STREQ("VocalyneOpenOfficeProxyQDBUS", meta.className());
    EXPECT_EQ(&QDBusAbstractInterface::staticMetaObject, meta.superClass());
    EXPECT_STREQ("com.ombrel.vocalyne.texteurs.openoffice.proxy.interface",
                 VocalyneOpenOfficeProxyQDBUS::staticInterfaceName());
    EXPECT_EQ(sizeof(QDBusAbstractInterface), sizeof(VocalyneOpenOfficeProxyQDBUS));
}

TEST(Proxy, AnswersForItsOwnClassNameAndDefersForOthers) {
    VocalyneOpenOfficeProxyQDBUS proxy(QString::fromLatin1("a.b"), QString::fromLatin1("/a"),
                                       QDBusConnection(QString::fromLatin1("aucune")));
    EXPECT_EQ(&proxy, proxy.qt_metacast("VocalyneOpenOfficeProxyQDBUS"));
    EXPECT_EQ(static_cast<QDBusAbstractInterface*>(&proxy),
              proxy.qt_metacast("QDBusAbstractInterface"));
    EXPECT_EQ(nullptr, proxy.qt_metacast("UneAutreClasse"));
    EXPECT_EQ(-1, proxy.timeout());
}

TEST(Proxy, ReducesTheIndexByItsMethodsAndKnowsNoArgumentTypes) {
    VocalyneOpenOfficeProxyQDBUS proxy(QString::fromLatin1("a.b"), QString::fromLatin1("/a"),
                                       QDBusConnection(QString::fromLatin1("aucune")));
    auto const& meta = VocalyneOpenOfficeProxyQDBUS::staticMetaObject;
    int type = 0;
    int argument = 0;
    void* arguments[] = {&type, &argument};
    EXPECT_EQ(3 - 24, proxy.qt_metacall(QMetaObject::RegisterMethodArgumentMetaType,
                                        meta.methodOffset() + 3, arguments));
    EXPECT_EQ(-1, type);
}

} // namespace
