// SPDX-License-Identifier: MPL-2.0
#include "partage/EcritureDocuments.h"

#include <gtest/gtest.h>

using compagnon::EcritureDocuments;

TEST(DocumentList, IsAnArrayInTheOrderGiven) {
    EXPECT_EQ(EcritureDocuments().Termine(), "[]");
    EcritureDocuments liste;
    liste.Ajoute({"lo1~d1", u"Sans nom 1", u"", "", ""});
    liste.Ajoute({"lo1~d2", u"\u00e9t\u00e9", u"/tmp/\u00e9t\u00e9.odt", "writer", "fr-FR"});
    EXPECT_EQ(liste.Termine(), "[{\"id\":\"lo1~d1\",\"titre\":\"Sans nom 1\",\"chemin\":\"\"},"
                               "{\"id\":\"lo1~d2\",\"titre\":\"\u00e9t\u00e9\","
                               "\"chemin\":\"/tmp/\u00e9t\u00e9.odt\","
                               "\"genre\":\"writer\",\"langue\":\"fr-FR\"}]");
}

TEST(DocumentList, EscapesWhatJsonCannotHold) {
    EcritureDocuments liste;
    liste.Ajoute({"i~d", u"\"a\\b\"\n\t\x01", u"", "", ""});
    EXPECT_EQ(liste.Termine(),
              R"([{"id":"i~d","titre":"\"a\\b\"\u000a\u0009\u0001","chemin":""}])");
}
