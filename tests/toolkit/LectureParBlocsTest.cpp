// SPDX-License-Identifier: MPL-2.0
#include "ConnecteurEssai.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <vector>

namespace {

using Lectures = std::vector<ConnecteurEssai::Intervalle>;

/// The text of the one zone that covers the connector's document.
TexteAvecAttributs ZoneUnique(ConnecteurEssai& connecteur) {
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(1, zones.DonneNombre());
    return zones.DonneZone(0)->DonneTexte();
}

TEST(ZoneFilling, ABlockHoldsOneCharacterLessThanTheBlockSize) {
    ConnecteurEssai connecteur;
    connecteur.document = TexteAvecAttributs(sdd::ChaineN(70000, u'x'));
    auto const texte = ZoneUnique(connecteur);
    EXPECT_EQ((Lectures{{0, 32767}, {32767, 65534}, {65534, 70000}}), connecteur.lectures);
    EXPECT_EQ(connecteur.document, texte);
}

TEST(ZoneFilling, ATextOfExactlyOneBlockIsReadOnce) {
    for (int const longueur : {32766, 32767}) {
        ConnecteurEssai connecteur;
        connecteur.document = TexteAvecAttributs(sdd::ChaineN(longueur, u'x'));
        ZoneUnique(connecteur);
        EXPECT_EQ((Lectures{{0, longueur}}), connecteur.lectures);
    }
}

TEST(ZoneFilling, AZoneOfLengthOneReadsOneBlockOfOneCharacter) {
    ConnecteurEssai connecteur(u"a");
    EXPECT_EQ(A(u"a"), ZoneUnique(connecteur));
    EXPECT_EQ((Lectures{{0, 1}}), connecteur.lectures);
}

TEST(ZoneFilling, ABlockSizeOfTwoReadsCharacterByCharacter) {
    ConnecteurEssai connecteur(u"abc");
    connecteur.tailleBloc = 2;
    EXPECT_EQ(A(u"abc"), ZoneUnique(connecteur));
    EXPECT_EQ((Lectures{{0, 1}, {1, 2}, {2, 3}}), connecteur.lectures);
}

TEST(ZoneFilling, ABlockSizeThatHoldsNothingReadsNothingAndKeepsTheFiller) {
    for (int const taille : {1, 0, -1, INT_MIN}) {
        ConnecteurEssai connecteur(u"abc");
        connecteur.tailleBloc = taille;
        EXPECT_EQ(Bourre(3), TexteDe(ZoneUnique(connecteur))) << taille;
        EXPECT_TRUE(connecteur.lectures.empty()) << taille;
    }
}

TEST(ZoneFilling, TheLargestBlockSizeReadsTheZoneInOnePiece) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.Bornes() = {2, 6};
    connecteur.tailleBloc = INT_MAX;
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Lectures{{0, 2}, {2, 6}}), connecteur.lectures);
}

TEST(ZoneFilling, TextThatReadsEmptyStaysFillerOfFullLength) {
    ConnecteurEssai connecteur(u"abcde");
    connecteur.lis = [](int, int) { return TexteAvecAttributs(); };
    EXPECT_EQ(Bourre(5), TexteDe(ZoneUnique(connecteur)));
    EXPECT_EQ((Lectures{{0, 5}}), connecteur.lectures) << "nothing placed: reading stops";
}

TEST(ZoneFilling, ReadingThatStopsEarlyLeavesFillerBehindIt) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.tailleBloc = 3;
    connecteur.lis = [&](int debut, int fin) {
        return debut < 4 ? connecteur.Extrait(debut, fin) : TexteAvecAttributs();
    };
    EXPECT_EQ(U(u"abcd\x07\x07"), TexteDe(ZoneUnique(connecteur)));
}

TEST(ZoneFilling, AShorterBlockIsGoneOnFromWhereItEnded) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.tailleBloc = 5;
    connecteur.lis = [&](int debut, int fin) {
        return connecteur.Extrait(debut, debut == 0 ? 1 : fin);
    };
    EXPECT_EQ(A(u"abcdef"), ZoneUnique(connecteur));
    EXPECT_EQ((Lectures{{0, 4}, {1, 5}, {5, 6}}), connecteur.lectures);
}

TEST(ZoneFilling, ALongerBlockIsCutToTheLengthAsked) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.tailleBloc = 4;
    connecteur.lis = [](int debut, int) {
        return debut == 0 ? A(u"ABCxxxxxxxxxx") : A(u"DEFyyyyyyyyyy");
    };
    EXPECT_EQ(A(u"ABCDEF"), ZoneUnique(connecteur));
}

TEST(ZoneFilling, ABlockCutInTheMiddleOfAPairKeepsItsHalf) {
    ConnecteurEssai connecteur(u"a\U0001F600b");
    connecteur.tailleBloc = 3; // blocks end between the two halves
    EXPECT_EQ(A(u"a\U0001F600b"), ZoneUnique(connecteur));
}

TEST(ZoneFilling, WhateverThrowsWhileAZoneIsReadAnswersFalseAndTheZonesBeforeItStay) {
    std::vector<std::function<void(ConnecteurEssai&)>> const cas{
        [](ConnecteurEssai& c) {
            c.lis = [&c](int debut, int fin) {
                if (debut == 4) {
                    Echoue();
                }
                return c.Extrait(debut, fin);
            };
        },
        [](ConnecteurEssai& c) {
            c.traite = [](TexteAvecAttributs& texte) {
                if (TexteDe(texte) == U(u"e")) {
                    throw 42; // not even a std::exception
                }
            };
        },
        [](ConnecteurEssai& c) {
            c.donneTailleBloc = [&c]() -> int { return c.lectures.size() < 4 ? 2 : (Echoue(), 0); };
        },
        [](ConnecteurEssai& c) {
            c.remplaceInsecables = [&c] {
                return c.lectures.size() < 5 ? false : (Echoue(), false);
            };
        },
    };
    for (auto const& casse : cas) {
        ConnecteurEssai connecteur(u"abcdefghi");
        connecteur.Bornes() = {3, 6, 9};
        connecteur.donneTailleBloc = [] { return 2; };
        casse(connecteur);
        CollectionZonesDeTexte zones;
        EXPECT_FALSE(connecteur.SynchronisePositions(zones));
        EXPECT_EQ(std::vector<UniChaine>{U(u"abc")}, TextesDe(zones));
        EXPECT_GE(5U, connecteur.lectures.size()) << "nothing is read behind it";
    }
}

TEST(ZoneFilling, AConnectorThatCanReadAgainGivesEveryZoneAgain) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.Bornes() = {3, 6};
    bool casse = true;
    connecteur.traite = [&](TexteAvecAttributs& /*texte*/) {
        if (casse && connecteur.lectures.size() == 2) {
            Echoue();
        }
    };
    CollectionZonesDeTexte zones;
    EXPECT_FALSE(connecteur.SynchronisePositions(zones));
    casse = false;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((std::vector<UniChaine>{U(u"abc"), U(u"def")}), TextesDe(zones));
}

TEST(ZoneFilling, AttributesOfTheBlocksStandAtTheirPlaceInTheZone) {
    ConnecteurEssai connecteur(u"0123456789abcdef");
    connecteur.document.MetsAttribut(1, 2, 5);
    connecteur.document.MetsAttribut(6, 6, 9); // across blocks
    connecteur.Bornes() = {4, 16};
    connecteur.tailleBloc = 6;
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    auto const premiere = zones.DonneZone(0)->DonneTexte();
    auto const seconde = zones.DonneZone(1)->DonneTexte();
    EXPECT_EQ(connecteur.Extrait(0, 4), premiere);
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(AttributEn(connecteur.document, i + 4), AttributEn(seconde, i)) << i;
    }
}

TEST(ZoneFilling, AttributesOfWhatIsCutAwayGoWithIt) {
    ConnecteurEssai connecteur(u"ab");
    connecteur.lis = [](int, int) {
        auto texte = A(u"abcdef");
        texte.MetsAttribut(1, 5, 3);
        return texte;
    };
    auto const texte = ZoneUnique(connecteur);
    EXPECT_EQ((TexteAvecAttributs::Plages{{1, 2, 3}}), texte.DonnePlages());
}

TEST(ZoneFilling, TextThatWasReadOrNotStartsWithoutAttributes) {
    ConnecteurEssai connecteur(u"abc");
    connecteur.lis = [](int, int) { return TexteAvecAttributs(); };
    EXPECT_TRUE(ZoneUnique(connecteur).DonnePlages().empty());
}

TEST(ZoneFilling, EachReadBlockPassesThroughTheConnectorBeforeItIsStored) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.tailleBloc = 4;
    std::vector<UniChaine> traites;
    connecteur.traite = [&](TexteAvecAttributs& texte) {
        traites.push_back(TexteDe(texte));
        texte.MetsUnite(0, u'!');
        texte.MetsAttribut(0, 1, 7);
    };
    auto const texte = ZoneUnique(connecteur);
    EXPECT_EQ((std::vector<UniChaine>{U(u"abc"), U(u"def")}), traites);
    EXPECT_EQ(U(u"!bc!ef"), TexteDe(texte));
    EXPECT_EQ((TexteAvecAttributs::Plages{{0, 1, 7}, {3, 4, 7}}), texte.DonnePlages());
}

TEST(ZoneFilling, AConnectorThatChangesABlocksLengthCannotMoveWhatFollows) {
    ConnecteurEssai connecteur(u"abcdef");
    connecteur.tailleBloc = 4;
    connecteur.traite = [](TexteAvecAttributs& texte) {
        texte.Remplace(0, 1, A(u"longer than it was"));
    };
    EXPECT_EQ(U(u"lonlon"), TexteDe(ZoneUnique(connecteur)));

    connecteur.traite = [](TexteAvecAttributs& texte) { texte.CoupeA(2); };
    EXPECT_EQ(U(u"abcdef"), TexteDe(ZoneUnique(connecteur))) << "shorter: read on from its end";

    connecteur.traite = [](TexteAvecAttributs& texte) { texte = {}; };
    EXPECT_EQ(Bourre(6), TexteDe(ZoneUnique(connecteur)));
}

} // namespace
