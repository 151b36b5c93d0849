// SPDX-License-Identifier: MPL-2.0
#include "IdentificateurDocument.h"

#include "outils/Textes.h"

#include <gtest/gtest.h>

namespace {

struct Cas {
    char16_t const* identificateur;
    char16_t const* instance;
    char16_t const* document;
};

TEST(DocumentIdentifier, IsSplitAtTheTildeWithEmptyPartsKept) {
    Cas const cas[] = {
        {u"7~doc3", u"7", u"doc3"},
        {u"a~b", u"a", u"b"},
        {u"~doc", u"", u"doc"}, // nothing after the last dot and slash
        {u"inst~", u"inst", u""},
        {u"~", u"", u""},
        {u"", u"", u""},
        {u"without", u"without", u""},
        {u"a~b~c", u"a", u"b"},
        {u"a~~c", u"a", u""},
        {u"A~a", u"A", u"a"},
        {u" a ~ b ", u" a ", u" b "},
        {u"é\U0001F600~ü", u"é\U0001F600", u"ü"},
        {u"a/../b~c", u"a/../b", u"c"},
        {u"a.b~c.d", u"a.b", u"c.d"},
        {u"a\uFF5Eb", u"a\uFF5Eb", u""}, // another tilde is no separator
    };
    for (auto const& c : cas) {
        IdentificateurDocument const id(U(c.identificateur));
        auto service = U(u"com.ombrel.vocalyne.texteurs.OpenOffice.");
        auto chemin = U(u"/com/ombrel/vocalyne/texteurs/OpenOffice/");
        service.Ajoute(U(c.instance));
        chemin.Ajoute(U(c.instance));
        EXPECT_EQ(service, UniChaine(id.DonneService()));
        EXPECT_EQ(chemin, UniChaine(id.DonneChemin()));
        EXPECT_EQ(U(c.document), UniChaine(id.DonneDocument()));
    }
}

} // namespace
