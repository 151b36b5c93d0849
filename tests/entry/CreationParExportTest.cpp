// SPDX-License-Identifier: MPL-2.0
// CreeAgentTexteur where no agent can come of it: no bus, no document, no window, no support.
#include "GreffonCharge.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <sys/mman.h>
#include <unistd.h>

namespace {

InfosApplication Infos(char16_t const* classe, char16_t const* classeInitialisation) {
    InfosApplication infos;
    infos.Classe = U(classe);
    infos.ClasseInitialisation = U(classeInitialisation);
    infos.Genre = 1;
    return infos;
}

constexpr char16_t kOpenOffice4[] = u"VCLSalFrame:OpenOffice.org 4.0";
constexpr char16_t kOpenOffice3[] = u"VCLSalFrame:OpenOffice.org 3.0";

TEST(AgentFromTheExport, IsNullForAWindowThatIsNotServedWhateverTheIdentifier) {
    AlertesNotees const alertes;
    for (auto const* classe : {u"", u"VCLSalFrame:OpenOffice.org 4.0 ", u"other"}) {
        auto const infos = Infos(classe, kOpenOffice3);
        for (auto const& identificateur : {U(u""), U(u"inst~doc")}) {
            EXPECT_EQ(nullptr, GreffonCharge::Donne().CreeAgentTexteur(&infos, &identificateur));
        }
    }
    EXPECT_TRUE(alertes.Donne().empty()) << "no agent was asked";
}

TEST(AgentFromTheExport, DoesNotLookAtTheIdentifierForAWindowThatIsNotServed) {
    auto const taille = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    auto* const interdite =
        mmap(nullptr, taille, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0); // any read crashes
    ASSERT_NE(MAP_FAILED, interdite);
    auto const infos = Infos(u"other", kOpenOffice4);
    EXPECT_EQ(nullptr, GreffonCharge::Donne().CreeAgentTexteur(
                           &infos, static_cast<UniChaine const*>(interdite)));
    munmap(interdite, taille);
}

TEST(AgentFromTheExport, IsNullForAnEmptyIdentifierWithoutAskingAnAgent) {
    AlertesNotees const alertes;
    auto const infos = Infos(kOpenOffice4, kOpenOffice3); // an agent would show an alert
    UniChaine const identificateur;
    EXPECT_EQ(nullptr, GreffonCharge::Donne().CreeAgentTexteur(&infos, &identificateur));
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST(AgentFromTheExport, IsNullWithoutAlertWhereNoCompanionAnswers) {
    AlertesNotees const alertes;
    for (auto const* classe : {kOpenOffice4, kOpenOffice3}) {
        for (int const genre : {1, 2, 3, 0, 4, -1, INT_MIN, INT_MAX}) {
            auto infos = Infos(classe, kOpenOffice4);
            infos.Genre = genre;
            for (auto const* identificateur : {u"inst~doc", u"~", u"7~doc3", u"no tilde"}) {
                auto const id = U(identificateur);
                EXPECT_EQ(nullptr, GreffonCharge::Donne().CreeAgentTexteur(&infos, &id));
            }
        }
    }
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST(AgentFromTheExport, IsNullWithAnAlertForTheOldClassOfInitialisation) {
    auto const id = U(u"inst~doc");
    // The window's own class is another field: both are recognised there.
    for (auto const* classe : {kOpenOffice4, kOpenOffice3}) {
        AlertesNotees const alertes;
        auto const infos = Infos(classe, kOpenOffice3);
        EXPECT_EQ(nullptr, GreffonCharge::Donne().CreeAgentTexteur(&infos, &id));
        ASSERT_EQ(1U, alertes.Donne().size());
        EXPECT_EQ(4, alertes.Donne()[0].info.DonneGenre());
        EXPECT_EQ(nullptr, alertes.Donne()[0].parent);
    }
}

TEST(LoadedPlugIn, HasSetUpTheApplicationByTheTimeItCanBeCalled) {
    GreffonCharge::Donne();
    ASSERT_NE(nullptr, QCoreApplication::instance());
    EXPECT_EQ(U(u"Vocalyne 9"), UniChaine(QCoreApplication::applicationName()));
    EXPECT_EQ(U(u"Ombrel Informatique inc."), UniChaine(QCoreApplication::organizationName()));
    EXPECT_FALSE(QCoreApplication::organizationDomain().isEmpty());
}

} // namespace
