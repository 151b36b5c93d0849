// SPDX-License-Identifier: MPL-2.0
#include "DocumentsJson.h"

#include "ZoneDirecte.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

/// The same zone as the parser gives it: a comment in front keeps the list from being taken apart.
ZoneRecue ParLAnalyseur(std::string const& zone) {
    auto const lecture = LisTout("/**/" + Liste(zone));
    EXPECT_EQ("", lecture.erreur) << zone;
    EXPECT_EQ(1U, lecture.zones.size()) << zone;
    return lecture.zones.empty() ? ZoneRecue() : lecture.zones.front();
}

TEST(ZoneReadDirectly, IsWhatTheParserGives) {
    for (std::string const& zone : {
             std::string("{}"),
             Zone("nom", "Un texte \xC3\xA9t\xC3\xA9."),
             Zone("", "", R"("DebutSel":3,"FinSel":-4)"),
             Zone("n", "t", R"("DebutSel":999999999,"FinSel":-999999999)"),
             Zone("n", "t", R"("DebutSel":007,"FinSel":-0)"),
             Zone("n", "t", R"("InfosStyle":[])"),
             Zone("n", "t", R"("InfosStyle":[{"Debut":1,"Fin":2,"Style":65535},{}])"),
             Zone("n", "t", R"("InfosStyle":[{"Fin":5,"Style":65537,"Debut":-1,"Autre":[1,{}]}])"),
             std::string("{ \"Texte\" : \"dA==\"\t,\r\n\"InfosStyle\" : [ { \"Fin\" : 1 } ] }"),
             // What a companion of tomorrow may add.
             Zone("n", "t", R"("Autre":{"a":[true,false,null,"x\n"]},"Et":null)"),
             // Of one name the last counts, whole.
             Zone("n", "t", R"("DebutSel":1,"DebutSel":2,"Texte":"dQ==")"),
             Zone("n", "t", R"("InfosStyle":[{"Fin":1},{"Fin":2}],"InfosStyle":[{"Debut":7}])"),
             Zone("n", "t", R"("InfosStyle":[{"Fin":1,"Fin":2}])"),
         }) {
        ZoneRecue lue;
        ASSERT_TRUE(LisZoneDirecte(zone, lue)) << zone;
        auto const attendue = ParLAnalyseur(zone);
        EXPECT_EQ(attendue.nom, lue.nom) << zone;
        EXPECT_EQ(attendue.texte, lue.texte) << zone;
        EXPECT_EQ(attendue.debutSel, lue.debutSel) << zone;
        EXPECT_EQ(attendue.finSel, lue.finSel) << zone;
        EXPECT_EQ(attendue.styles, lue.styles) << zone;
    }
}

TEST(ZoneReadDirectly, LeavesToTheParserWhatOnlyItCanJudge) {
    for (char const* const zone : {
             R"({"Nom":3})",
             R"({"Nom":null})",
             R"({"Texte":["dA=="]})",
             R"({"Texte":"dA\u003D="})",
             R"({"Te\u0078te":"dA=="})",
             R"({"DebutSel":1234567890})",
             R"({"DebutSel":1.5})",
             R"({"DebutSel":"1"})",
             R"({"FinSel":null})",
             R"({"FinSel":true})",
             R"({"InfosStyle":null})",
             R"({"InfosStyle":{}})",
             R"({"InfosStyle":[1]})",
             R"({"InfosStyle":[{"Debut":99999999999}]})",
             R"({"Autre":1e5})",
             R"({"Autre":"\u0041"})",
         }) {
        ZoneRecue lue;
        EXPECT_FALSE(LisZoneDirecte(zone, lue)) << zone;
    }
}

} // namespace
