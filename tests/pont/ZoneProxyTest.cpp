// SPDX-License-Identifier: MPL-2.0
// What a zone of a LibreOffice document answers from its own copy.
#include "ZoneDeTexteOOoProxy.h"

#include "AgentEssai.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace {

using Plages = TexteAvecAttributs::Plages;

ZoneDeTexteOOoProxy ZoneSeule(char16_t const* texte) {
    return {nullptr, nullptr, U(texte), U(u"nom"), 2, 5};
}

TEST(LibreOfficeZone, HoldsTextNameAndSelectionAsGiven) {
    ZoneDeTexteOOoProxy zone(nullptr, nullptr, U(u"a\U0001F600e\u0301"), U(u"nom"), -7, INT_MAX);
    EXPECT_EQ(U(u"a\U0001F600e\u0301"), TexteDe(zone.DonneTexte()));
    EXPECT_EQ(5, zone.DonneLongueur());
    EXPECT_EQ(U(u"nom"), zone.DonneNom());
    EXPECT_EQ(-7, zone.DonneDebutSelection());
    EXPECT_EQ(INT_MAX, zone.DonneFinSelection());
    EXPECT_TRUE(zone.DonneStyles().empty());
    EXPECT_TRUE(zone.DonneTexte().DonnePlages().empty());
}

TEST(LibreOfficeZone, AcceptsAllIntervalsOnPurpose) {
    auto zone = ZoneSeule(u"");
    EXPECT_TRUE(zone.AccepteIntervalles(0, 0, 0, 0));
    EXPECT_TRUE(zone.AccepteIntervalles(9, -9, INT_MIN, INT_MAX));
}

TEST(LibreOfficeZone, HasNoAuxiliaryTextAndIsNotMarked) {
    auto zone = ZoneSeule(u"texte");
    EXPECT_TRUE(zone.DonneChaineAuxiliaire().EstVide());
    EXPECT_FALSE(zone.EstMarquee());
}

TEST(LibreOfficeZone, AdjustsNoIntervalWhateverTheFlag) {
    auto zone = ZoneSeule(u"texte");
    for (bool const drapeau : {true, false}) {
        int debut = -1;
        int fin = -1;
        zone.AjusteIntervalle(5, 9, &debut, &fin, drapeau);
        EXPECT_EQ(5, debut);
        EXPECT_EQ(9, fin);
    }
}

TEST(LibreOfficeZone, WithoutProxyOrAgentRefusesAndStaysAsItIs) {
    AgentEssai agent(U(u"essai~doc"));
    struct Cas {
        VocalyneOpenOfficeProxyQDBUS* proxy;
        ModuleProxyOOo* agent;
    };
    for (auto const& c :
         {Cas{nullptr, nullptr}, {agent.DonneProxy(), nullptr}, {nullptr, &agent}}) {
        ZoneDeTexteOOoProxy zone(c.proxy, c.agent, U(u"texte"), U(u"nom"), 0, 0);
        EXPECT_FALSE(zone.PeutCorriger(0, 2, U(u"te")));
        EXPECT_FALSE(zone.CorrigeDansTexteur(0, 2, U(u"TE"), true));
        EXPECT_FALSE(zone.CorrigeDansTexteur(0, 2, U(u"TE"), false));
        EXPECT_FALSE(zone.SelectionneIntervalle(0, 2));
        EXPECT_EQ(U(u"texte"), TexteDe(zone.DonneTexte()));
    }
}

struct CasStyles {
    std::vector<contrat::PlageDeStyle> styles;
    Plages plages;
};

TEST(LibreOfficeZone, AppliesItsRunsInListOrder) {
    CasStyles const cas[] = {
        {{}, {}},
        {{{1, 3, 5}, {4, 6, 6}}, {{1, 3, 5}, {4, 6, 6}}},
        {{{0, 6, 1}, {2, 4, 2}}, {{0, 2, 1}, {2, 4, 2}, {4, 6, 1}}}, // the later one lies on top
        {{{2, 4, 2}, {0, 6, 1}}, {{0, 6, 1}}},
        {{{0, 6, 1}, {2, 4, 0}}, {{0, 2, 1}, {4, 6, 1}}}, // style 0 clears
        {{{4, 104, 3}}, {{4, 6, 3}}},
        {{{6, 7, 3}, {100, 105, 3}}, {}},
        {{{3, 3, 3}}, {}},
        {{{4, 2, 3}}, {}}, // ends before it starts
        {{{-1, 2, 3}}, {{0, 2, 3}}},
        {{{-1, -2, 3}}, {}},
        {{{0, INT_MAX, 65535}}, {{0, 6, 65535}}},
    };
    for (auto const& c : cas) {
        auto zone = ZoneSeule(u"abcdef");
        for (auto const& style : c.styles) {
            zone.AjouteStyle(style);
        }
        EXPECT_EQ(c.plages, zone.DonneTexte().DonnePlages());
        EXPECT_EQ(c.styles.size(), zone.DonneStyles().size());
        EXPECT_EQ(U(u"abcdef"), TexteDe(zone.DonneTexte()));
    }
}

TEST(LibreOfficeZone, ItsAgentSeesTheTextBeforeTheHostDoes) {
    class AgentQuiTraite : public AgentEssai {
      public:
        AgentQuiTraite()
            : InterfaceTexteur(U(u"essai~doc"))
            , AgentEssai(U(u"essai~doc")) {}
        void TraiteTexteLu(TexteAvecAttributs& texte) override {
            EXPECT_EQ(9, texte.DonnePlages().at(0).attribut) << "with its styles";
            texte.MetsUnite(0, u'!');
        }
    };
    AgentQuiTraite agent;
    ZoneDeTexteOOoProxy zone(nullptr, &agent, U(u"abc"), U(u"n"), 0, 0);
    zone.AjouteStyle({0, 1, 9});
    EXPECT_EQ(U(u"!bc"), TexteDe(zone.DonneTexte()));
    EXPECT_EQ(U(u"!bc"), TexteDe(zone.DonneTexte())) << "the zone's own copy stays as it was read";
}

TEST(LibreOfficeZone, ManyRunsInOrderAreAppliedInLinearTime) {
    constexpr int kNombre = 100000;
    ZoneDeTexteOOoProxy zone(nullptr, nullptr, sdd::T(sdd::ChaineN(3 * kNombre, u'x')), U(u"n"), 0,
                             0);
    for (int i = 0; i < kNombre; ++i) {
        zone.AjouteStyle({3 * i, 3 * i + 2, 1});
    }
    EXPECT_EQ(static_cast<std::size_t>(kNombre), zone.DonneTexte().DonnePlages().size());
}

} // namespace
