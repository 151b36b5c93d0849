// SPDX-License-Identifier: MPL-2.0
#include "ConnecteurEssai.h"

#include <gtest/gtest.h>

namespace {

struct Cas {
    char16_t const* lu;
    char16_t const* attendu;
};

UniChaine Normalise(ConnecteurEssai& connecteur, char16_t const* lu) {
    auto texte = A(lu);
    connecteur.NormaliseTexteLu(texte);
    return TexteDe(texte);
}

TEST(NoBreakSpaces, ThoseThatTouchASpaceAreReadAsSpaces) {
    Cas const cas[] = {
        {u"", u""},
        {u"\u00A0", u"\u00A0"},
        {u"a\u00A0b", u"a\u00A0b"},
        {u" \u00A0b", u"  b"},
        {u"a\u00A0 ", u"a  "},
        {u" \u00A0 ", u"   "},
        {u"\u00A0 b", u"  b"},
        {u"a \u00A0", u"a  "},
        // Going from left to right, each one is next to a space by then.
        {u" \u00A0\u00A0\u00A0x", u"    x"},
        // Going from left to right, only the last one is.
        {u"x\u00A0\u00A0\u00A0 ", u"x\u00A0\u00A0  "},
        {u"a\u202F b", u"a\u202F b"}, // another no-break space stays
        {u"a\u00A0\tb", u"a\u00A0\tb"},
    };
    ConnecteurEssai connecteur;
    connecteur.insecables = true;
    for (auto const& c : cas) {
        EXPECT_EQ(U(c.attendu), Normalise(connecteur, c.lu));
    }
}

TEST(NoBreakSpaces, StayUnlessTheConnectorWantsThemReplaced) {
    ConnecteurEssai connecteur;
    EXPECT_EQ(U(u" \u00A0 "), Normalise(connecteur, u" \u00A0 "));
}

TEST(NoBreakSpaces, KeepTheirAttributesWhenReplaced) {
    ConnecteurEssai connecteur;
    connecteur.insecables = true;
    auto texte = A(u" \u00A0a");
    texte.MetsAttribut(1, 1, 4);
    connecteur.NormaliseTexteLu(texte);
    EXPECT_EQ((TexteAvecAttributs::Plages{{1, 2, 4}}), texte.DonnePlages());
}

TEST(NoBreakSpaces, AreReplacedBeforeTheConnectorSeesTheText) {
    ConnecteurEssai connecteur;
    connecteur.insecables = true;
    UniChaine vu;
    connecteur.traite = [&](TexteAvecAttributs& texte) { vu = TexteDe(texte); };
    Normalise(connecteur, u"a \u00A0b");
    EXPECT_EQ(U(u"a  b"), vu);
}

TEST(NoBreakSpaces, AreLookedAtBlockByBlock) {
    ConnecteurEssai connecteur(u"ab \u00A0cd");
    connecteur.insecables = true;
    connecteur.tailleBloc = 4; // the space ends one block, the no-break space begins the next
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(U(u"ab \u00A0cd"), TexteDe(zones.DonneZone(0)->DonneTexte()));
    connecteur.tailleBloc = 32768;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(U(u"ab  cd"), TexteDe(zones.DonneZone(0)->DonneTexte()));
}

} // namespace
