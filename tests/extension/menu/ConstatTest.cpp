// SPDX-License-Identifier: MPL-2.0
#include "menu/Constat.h"

#include "partage/Messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using extension::Constat;
using extension::Dite;
using extension::EtatDuBus;
using extension::Manques;
using extension::Rapport;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// Both languages; the language goes back to English.
class Diagnostic : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override { compagnon::MetsFrancais(GetParam()); }
    void TearDown() override { compagnon::MetsFrancais(false); }

    static Constat ToutVaBien() {
        return {"com.x.lo1",
                {EtatDuBus::Genre::Sert, {}},
                2,
                "lo1~d1",
                {"/usr/bin/vocalyne-hote", {}, {}},
                false,
                {{"/usr/bin/xterm", "-e"}, {}},
                std::nullopt};
    }
    char const* Selon(char const* francais, char const* anglais) const {
        return GetParam() ? francais : anglais;
    }
};

TEST_P(Diagnostic, WhereNothingIsMissingItSaysSoAndNamesEverything) {
    Constat const constat = ToutVaBien();
    EXPECT_THAT(Manques(constat), IsEmpty());
    EXPECT_THAT(Rapport(constat),
                AllOf(HasSubstr("com.x.lo1"), HasSubstr("lo1~d1"),
                      HasSubstr("/usr/bin/vocalyne-hote"), HasSubstr("/usr/bin/xterm"),
                      HasSubstr(Selon("Tout va bien.", "All is well.")), Not(HasSubstr("•"))));
}

TEST_P(Diagnostic, EachThingMissingHasASentenceOfItsOwnInTheReportToo) {
    Constat constat = ToutVaBien();
    constat.bus.genre = EtatDuBus::Genre::SansBus;
    constat.idDocument.clear();
    constat.hote = {{}, {}, {"/a", "/b"}};
    constat.terminal = {};
    auto const manques = Manques(constat);
    EXPECT_THAT(manques, ElementsAre(HasSubstr("DBUS_SESSION_BUS_ADDRESS"),
                                     HasSubstr(Selon("ne sait pas lire", "cannot read")),
                                     AllOf(HasSubstr("vocalyne-hote"), HasSubstr("/a, /b.")),
                                     HasSubstr("xterm")));
    for (std::string const& manque : manques) {
        EXPECT_THAT(Rapport(constat), HasSubstr("• " + manque));
    }
}

TEST_P(Diagnostic, NoTerminalIsMissingWhereTheHostHasAWindow) {
    Constat constat = ToutVaBien();
    constat.ecran = true;
    constat.terminal = {};
    EXPECT_THAT(Manques(constat), IsEmpty());
    EXPECT_THAT(Rapport(constat), Not(HasSubstr("Terminal")));
}

TEST_P(Diagnostic, WhatTheHostSaysOfItselfStandsInTheReport) {
    Constat constat = ToutVaBien();
    constat.hoteDit = Dite{true, 0, "plug-in ready"};
    EXPECT_THAT(Rapport(constat), HasSubstr("plug-in ready"));
    EXPECT_THAT(Manques(constat), IsEmpty());
    constat.hoteDit = Dite{true, 4, "no plug-in"};
    EXPECT_THAT(Rapport(constat), AllOf(HasSubstr("no plug-in"),
                                        Not(HasSubstr(Selon("Tout va bien", "All is well")))));
    EXPECT_THAT(Manques(constat), ElementsAre(HasSubstr("vocalyne-hote diagnostic")));
}

TEST_P(Diagnostic, AHostThatDoesNotRunIsNotWell) {
    Constat constat = ToutVaBien();
    for (Dite const& dite : {Dite{false, -1, "no such library"}, Dite{true, -1, {}}}) {
        constat.hoteDit = dite;
        EXPECT_THAT(Manques(constat), ElementsAre(HasSubstr("/usr/bin/vocalyne-hote")));
    }
}

TEST_P(Diagnostic, WhatTheEnvironmentNamesWronglyIsQuoted) {
    Constat constat = ToutVaBien();
    constat.hote = {{}, "/faux/hote", {}};
    constat.terminal = {{}, "faux --terminal"};
    EXPECT_THAT(Manques(constat),
                ElementsAre(AllOf(HasSubstr("VOCALYNE_HOTE"), HasSubstr("/faux/hote")),
                            AllOf(HasSubstr("VOCALYNE_TERMINAL"), HasSubstr("faux --terminal"))));
}

TEST_P(Diagnostic, EveryStateOfTheBusButServingHasItsRemedy) {
    using Genre = EtatDuBus::Genre;
    for (Genre genre : {Genre::Demarre, Genre::SansBus, Genre::BusMuet, Genre::BusParti,
                        Genre::NonPublie, Genre::NomPris}) {
        Constat constat = ToutVaBien();
        constat.bus = {genre, ":1.7"};
        auto const manques = Manques(constat);
        ASSERT_EQ(manques.size(), 1U);
        bool const cite =
            genre == Genre::BusMuet || genre == Genre::NonPublie || genre == Genre::NomPris;
        EXPECT_EQ(manques[0].find(":1.7") != std::string::npos, cite) << manques[0];
    }
}

TEST_P(Diagnostic, AnExtensionThatDidNotStartHasNoServiceToName) {
    EXPECT_THAT(Rapport(Constat{}),
                HasSubstr(Selon("Service\u00a0: introuvable", "Service: not found")));
}

INSTANTIATE_TEST_SUITE_P(BothLanguages, Diagnostic, testing::Bool(),
                         [](testing::TestParamInfo<bool> const& langue) {
                             return langue.param ? "French" : "English";
                         });

} // namespace
