// SPDX-License-Identifier: MPL-2.0
#include "GreffonCharge.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr char16_t kOpenOffice4[] = u"VCLSalFrame:OpenOffice.org 4.0";
constexpr char16_t kOpenOffice3[] = u"VCLSalFrame:OpenOffice.org 3.0";

/// A record whose every text is another one.
InfosApplication Infos(UniChaine const& classe, UniChaine const& id = U(u"inst~doc")) {
    InfosApplication infos;
    infos.Application = U(u"soffice");
    infos.Id = id;
    infos.ClasseInitialisation = U(u"class of initialisation");
    infos.NoVersion = U(u"7.4");
    infos.Genre = 1;
    infos.Reserve = -1;
    infos.Classe = classe;
    infos.TexteFenetre = U(u"window");
    infos.Titre = U(u"title");
    return infos;
}

TEST(Exports, TheNameReportedIsThatOfVersionFourAlone) {
    auto noms = U(u"what it held before");
    GreffonCharge::Donne().DonneNomsTexteurs(&noms);
    EXPECT_EQ(U(kOpenOffice4), noms);
    GreffonCharge::Donne().DonneNomsTexteurs(&noms);
    EXPECT_EQ(U(kOpenOffice4), noms) << "replaced, not appended to";
}

TEST(Exports, NeitherAWordProcessorNorAPaletteIsEverMade) {
    int quelconque = 0;
    for (auto const creation :
         {GreffonCharge::Donne().CreeTexteur, GreffonCharge::Donne().CreeTexteurPalette}) {
        EXPECT_EQ(nullptr, creation(nullptr, nullptr));
        EXPECT_EQ(nullptr, creation(&quelconque, &quelconque));
    }
    EXPECT_EQ(0, quelconque);
}

TEST(Exports, AWindowOfEitherVersionIsServedAndItsIdentifierHandedBack) {
    for (auto const* classe : {kOpenOffice4, kOpenOffice3}) {
        auto const infos = Infos(U(classe));
        auto id = U(u"before");
        EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id));
        EXPECT_EQ(U(u"inst~doc"), id);
    }
}

TEST(Exports, AnEmptyIdentifierIsHandedBackAsItIs) {
    auto const infos = Infos(U(kOpenOffice4), UniChaine());
    auto id = U(u"before");
    EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id));
    EXPECT_TRUE(id.EstVide());
}

TEST(Exports, AnyIdentifierIsHandedBackUnchanged) {
    char16_t const moitie[] = {0xD83D, 0, u'~', 0xDE00};
    for (auto const& identificateur : {UniChaine(moitie, 4), U(u"no tilde"), U(u"é\U0001F600~ü"),
                                       U(std::u16string(100000, u'x'))}) {
        auto const infos = Infos(U(kOpenOffice3), identificateur);
        UniChaine id;
        EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id));
        EXPECT_EQ(identificateur, id);
    }
}

TEST(Exports, AWindowOfAnyOtherClassIsNotServedAndTheCallersStringStays) {
    char16_t const avecNul[] = u"VCLSalFrame:OpenOffice.org 4.0\0";
    UniChaine const classes[] = {
        U(u""),
        U(u"VCLSalFrame:OpenOffice.org 4.0 "),
        U(u" VCLSalFrame:OpenOffice.org 4.0"),
        U(u"VCLSalFrame:OpenOffice.org 4."),
        U(u"VCLSalFrame:OpenOffice.org 4"),
        U(u"VCLSalFrame:OpenOffice.org"),
        U(u"VCLSalFrame:OpenOffice.org 3"),
        U(u"VCLSalFrame"),
        U(u"V"),
        U(u"VCLSalFrame:OpenOffice.org 4.1"),
        U(u"VCLSalFrame:OpenOffice.org 5.0"),
        U(u"VCLSalFrame:OpenOffice.org 2.0"),
        U(u"VCLSalFrame:OpenOffice.org 3.00"),
        U(u"VCLSalFrame:OpenOffice.org 3.0 "),
        U(u"VCLSalFrame:OpenOffice.org 3.0\n"),
        U(u"vclsalframe:openoffice.org 4.0"),
        U(u"VCLSalFrame:OpenOffice.org  4.0"),
        U(u"VCLSalFrame:OpenOffice.org\u00A04.0"),
        U(u"VCLSalFrame\uFF1AOpenOffice.org 4.0"),
        U(u"\uFEFFVCLSalFrame:OpenOffice.org 4.0"),
        UniChaine(avecNul, 31),
        U(std::u16string(100000, u'V')),
    };
    for (auto const& classe : classes) {
        auto const infos = Infos(classe);
        auto id = U(u"before");
        EXPECT_EQ(0, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id))
            << testing::PrintToString(classe);
        EXPECT_EQ(U(u"before"), id) << testing::PrintToString(classe);
    }
}

TEST(Exports, OnlyTheWindowsClassDecides) {
    InfosApplication infos;
    infos.Application = infos.Id = infos.ClasseInitialisation = infos.NoVersion =
        infos.TexteFenetre = infos.Titre = U(kOpenOffice4);
    UniChaine id;
    EXPECT_EQ(0, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id));
    InfosApplication autre;
    autre.Genre = -7;
    autre.Classe = U(kOpenOffice4);
    EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&autre, &id));
}

TEST(Exports, TheRecordIsOnlyRead) {
    auto const infos = Infos(U(kOpenOffice4));
    auto const copie = infos;
    UniChaine id;
    GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &id);
    EXPECT_EQ(copie.Application, infos.Application);
    EXPECT_EQ(copie.Id, infos.Id);
    EXPECT_EQ(copie.ClasseInitialisation, infos.ClasseInitialisation);
    EXPECT_EQ(copie.NoVersion, infos.NoVersion);
    EXPECT_EQ(copie.Genre, infos.Genre);
    EXPECT_EQ(copie.Reserve, infos.Reserve);
    EXPECT_EQ(copie.Classe, infos.Classe);
    EXPECT_EQ(copie.TexteFenetre, infos.TexteFenetre);
    EXPECT_EQ(copie.Titre, infos.Titre);
}

TEST(Exports, TheCallersStringMayBeTheRecordsOwn) {
    auto infos = Infos(U(kOpenOffice4));
    EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &infos.Id));
    EXPECT_EQ(U(u"inst~doc"), infos.Id);
    EXPECT_EQ(1, GreffonCharge::Donne().DonneIdentificateurDocumentCourant(&infos, &infos.Classe));
    EXPECT_EQ(U(u"inst~doc"), infos.Classe);
}

TEST(Exports, ANullAddressIsAnsweredAsAWindowThatIsNotServed) {
    auto const& greffon = GreffonCharge::Donne();
    auto const infos = Infos(U(kOpenOffice4));
    auto id = U(u"before");
    greffon.DonneNomsTexteurs(nullptr);
    EXPECT_EQ(0, greffon.DonneIdentificateurDocumentCourant(nullptr, &id));
    EXPECT_EQ(0, greffon.DonneIdentificateurDocumentCourant(&infos, nullptr));
    EXPECT_EQ(0, greffon.DonneIdentificateurDocumentCourant(nullptr, nullptr));
    EXPECT_EQ(nullptr, greffon.CreeAgentTexteur(nullptr, &id));
    EXPECT_EQ(nullptr, greffon.CreeAgentTexteur(&infos, nullptr));
    EXPECT_EQ(U(u"before"), id);
}

} // namespace
