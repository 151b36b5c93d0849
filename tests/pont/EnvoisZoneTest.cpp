// SPDX-License-Identifier: MPL-2.0
// What a zone sends, and what becomes of its own copy of the text meanwhile.
#include "AgentEssai.h"
#include "AppelsNotes.h"
#include "ZoneDeTexteOOoProxy.h"
#include "outils/Textes.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace {

using appelsNotes::Appel;
using Appels = std::vector<Appel>;

QString Q(char const* texte) {
    return QString::fromUtf8(texte);
}

Appel Vers(char const* methode, QList<QVariant> const& arguments) {
    return {QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.inst"),
            QString::fromLatin1(methode), arguments, -1};
}

class ZoneSends : public testing::Test {
  protected:
    ZoneSends() {
        zone_.AjouteStyle({1, 2, 9});
        appelsNotes::Prends();
    }
    ~ZoneSends() override { appelsNotes::Refuse(false); }

    BusPrive bus_; // only what could leave counts as sent
    AgentEssai agent_{U(u"inst~doc")};
    ZoneDeTexteOOoProxy zone_{agent_.DonneProxy(), &agent_, U(u"0123456789"), U(u"le nom é"), 4, 6};
};

TEST_F(ZoneSends, ACorrectionUnderItsNameAndReplacesItsOwnTextAtOnce) {
    EXPECT_TRUE(zone_.CorrigeDansTexteur(3, 7, U(u"ab"), true));
    EXPECT_EQ(Appels{Vers("CorrigeDansTexteur", {Q("le nom é"), 3, 7, Q("ab"), true})},
              appelsNotes::Prends());
    EXPECT_EQ(U(u"012ab789"), TexteDe(zone_.DonneTexte()));
    EXPECT_EQ(8, zone_.DonneLongueur()) << "two shorter";
}

TEST_F(ZoneSends, ACorrectionWithTheHostsFlag) {
    EXPECT_TRUE(zone_.CorrigeDansTexteur(0, 1, U(u"x"), false));
    EXPECT_EQ(Appels{Vers("CorrigeDansTexteur", {Q("le nom é"), 0, 1, Q("x"), false})},
              appelsNotes::Prends());
}

TEST_F(ZoneSends, SelectionAndRunsStayAfterACorrectionOnPurpose) {
    zone_.CorrigeDansTexteur(0, 9, U(u""), false);
    EXPECT_EQ(4, zone_.DonneDebutSelection());
    EXPECT_EQ(6, zone_.DonneFinSelection());
    ASSERT_EQ(1U, zone_.DonneStyles().size());
    EXPECT_EQ(1U, zone_.DonneStyles()[0].debut);
    EXPECT_EQ(U(u"9"), TexteDe(zone_.DonneTexte()));
}

TEST_F(ZoneSends, ACorrectionOfAnEmptyRangeInserts) {
    EXPECT_TRUE(zone_.CorrigeDansTexteur(5, 5, U(u"\U0001F600"), false));
    EXPECT_EQ(U(u"01234\U0001F60056789"), TexteDe(zone_.DonneTexte()));
    EXPECT_TRUE(zone_.CorrigeDansTexteur(12, 12, U(u"!"), false));
    EXPECT_EQ(U(u"01234\U0001F60056789!"), TexteDe(zone_.DonneTexte()));
}

struct CasIntervalle {
    int debut, fin;
    char16_t const* texte;
};

TEST_F(ZoneSends, ACorrectionOfAnyRangeAsItIsAndKeepsToItsOwnText) {
    CasIntervalle const cas[] = {
        {8, 99, u"01234567X"},   // an end past the text is cut
        {11, 12, u"0123456789"}, // a start past it changes nothing here
        {-1, 3, u"0123456789"},  // nor does a negative one
        {7, 3, u"0123456789"},   // nor an end before the start
        {INT_MAX, INT_MIN, u"0123456789"},
        {INT_MIN, INT_MAX, u"0123456789"},
        {0, INT_MAX, u"X"},
    };
    for (auto const& c : cas) {
        ZoneDeTexteOOoProxy zone(agent_.DonneProxy(), &agent_, U(u"0123456789"), U(u"n"), 0, 0);
        EXPECT_TRUE(zone.CorrigeDansTexteur(c.debut, c.fin, U(u"X"), false));
        EXPECT_EQ(U(c.texte), TexteDe(zone.DonneTexte())) << c.debut << ", " << c.fin;
        EXPECT_EQ(Appels{Vers("CorrigeDansTexteur", {Q("n"), c.debut, c.fin, Q("X"), false})},
                  appelsNotes::Prends());
    }
}

TEST_F(ZoneSends, ACorrectionThatCannotLeaveIsAnsweredFalseAndMadeHereAllTheSame) {
    appelsNotes::Refuse(true);
    EXPECT_FALSE(zone_.CorrigeDansTexteur(3, 7, U(u"ab"), true));
    EXPECT_EQ(U(u"012ab789"), TexteDe(zone_.DonneTexte()));
    EXPECT_FALSE(zone_.SelectionneIntervalle(1, 2));
}

TEST_F(ZoneSends, NeitherSendsNorMakesACorrectionThatTheBusCannotCarryUnchanged) {
    char16_t const moitie[] = {0xDE00};
    EXPECT_FALSE(zone_.CorrigeDansTexteur(0, 1, UniChaine(u"a\0b", 3), false));
    EXPECT_FALSE(zone_.CorrigeDansTexteur(0, 1, UniChaine(moitie, 1), false));
    EXPECT_FALSE(zone_.PeutCorriger(0, 1, UniChaine(u"\0", 1)));
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
    EXPECT_EQ(U(u"0123456789"), TexteDe(zone_.DonneTexte()));
}

TEST_F(ZoneSends, TheQuestionWhetherARangeMayBeCorrected) {
    EXPECT_FALSE(zone_.PeutCorriger(2, 4, U(u"23"))) << "the reply names no sender";
    EXPECT_EQ(Appels{Vers("PeutCorriger", {Q("le nom é"), 2, 4, Q("23")})}, appelsNotes::Prends());
}

TEST_F(ZoneSends, ARangeToSelect) {
    EXPECT_TRUE(zone_.SelectionneIntervalle(INT_MIN, INT_MAX));
    EXPECT_EQ(Appels{Vers("SelectionneIntervalle", {Q("le nom é"), INT_MIN, INT_MAX})},
              appelsNotes::Prends());
}

TEST_F(ZoneSends, NothingWithoutProxyOrAgent) {
    ZoneDeTexteOOoProxy sansAgent(agent_.DonneProxy(), nullptr, U(u"abc"), U(u"n"), 0, 0);
    ZoneDeTexteOOoProxy sansProxy(nullptr, &agent_, U(u"abc"), U(u"n"), 0, 0);
    for (auto* zone : {&sansAgent, &sansProxy}) {
        zone->PeutCorriger(0, 1, U(u"a"));
        zone->CorrigeDansTexteur(0, 1, U(u"a"), true);
        zone->SelectionneIntervalle(0, 1);
        zone->DonneTexte();
        zone->AccepteIntervalles(0, 1, 0, 1);
    }
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

TEST_F(ZoneSends, NothingForWhatItsOwnCopyAnswers) {
    int debut = 0;
    int fin = 0;
    zone_.DonneTexte();
    zone_.DonneLongueur();
    zone_.DonneDebutSelection();
    zone_.AjusteIntervalle(1, 2, &debut, &fin, true);
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

} // namespace
