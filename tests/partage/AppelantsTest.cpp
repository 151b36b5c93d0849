// SPDX-License-Identifier: MPL-2.0
#include "partage/Appelants.h"

#include "partage/ErreurDuService.h"

#include <gtest/gtest.h>

using compagnon::Appelants;
using compagnon::DocumentDonne;
using compagnon::ErreurDuService;
using compagnon::SelectionDite;
using compagnon::TexteSuivi;
using contrat::Erreur;

namespace {

DocumentDonne Donne(std::initializer_list<char const*> zones) {
    DocumentDonne donne;
    for (char const* const zone : zones) {
        donne.zones[zone].Donne(std::make_shared<std::u16string const>(u"texte"));
    }
    return donne;
}

/// Why it is not done; nothing where it is.
template <class Travail>
std::optional<Erreur> Refus(Travail const& travail) {
    try {
        travail();
        return std::nullopt;
    } catch (ErreurDuService const& erreur) {
        return erreur.DonneCode();
    }
}

class Callers : public testing::Test {
  protected:
    std::optional<Erreur> Nomme(char const* nom, char const* cle, char const* zone) {
        return Refus([&] { appelants.NommeZone(nom, cle, zone); });
    }
    std::optional<Erreur> Document(char const* nom) {
        return Refus([&] { appelants.DonneDocument(nom); });
    }

    Appelants appelants;
};

} // namespace

TEST_F(Callers, TheOneSilentLongestIsForgottenWhenThereAreTooMany) {
    for (std::size_t i = 0; i < Appelants::kMax; ++i) {
        appelants.Nomme(":1." + std::to_string(i), "doc1");
    }
    EXPECT_EQ(appelants.DonneDocument(":1.0"), "doc1"); // asking is no silence
    EXPECT_EQ(appelants.Nombre(), Appelants::kMax);
    appelants.Nomme(":2.0", "doc1");
    EXPECT_EQ(appelants.Nombre(), Appelants::kMax);
    EXPECT_TRUE(appelants.Connait(":1.0"));
    EXPECT_FALSE(appelants.Connait(":1.1"));
    EXPECT_TRUE(appelants.Connait(":2.0"));
    EXPECT_EQ(Document(":1.1"), Erreur::AucunDocument);
    EXPECT_FALSE(appelants.Connait(":1.1")) << "a question makes nobody known";
}

TEST_F(Callers, WhatIsKeptOfThemAllIsBounded) {
    DocumentDonne grand;
    for (std::size_t i = 0; i < Appelants::kZonesMax / 4; ++i) {
        grand.zones.emplace("z" + std::to_string(i), TexteSuivi());
    }
    for (int i = 0; i < 6; ++i) {
        appelants.Donne(":1." + std::to_string(i), "doc1", grand);
    }
    EXPECT_EQ(appelants.Nombre(), 4U);
    EXPECT_FALSE(appelants.Connait(":1.1"));
    EXPECT_EQ(Nomme(":1.5", "doc1", "z0"), std::nullopt);
}

TEST_F(Callers, AZoneThatOneWasGivenNamesItsDocumentAndNoOtherDoes) {
    appelants.Donne(":1.1", "doc1", Donne({"z1"}));
    appelants.Donne(":1.1", "doc2", Donne({"z2"}));
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc2");
    EXPECT_EQ(Nomme(":1.1", "doc1", "z1"), std::nullopt);
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc1");
    EXPECT_EQ(Nomme(":1.1", "doc2", "z1"), Erreur::ZoneInconnue);
    EXPECT_EQ(Nomme(":1.2", "doc2", "z2"), Erreur::ZoneInconnue);
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc1");
    EXPECT_FALSE(appelants.Connait(":1.2"));
}

TEST_F(Callers, LettingGoOfTheZonesKeepsTheDocumentNamed) {
    appelants.Donne(":1.1", "doc1", Donne({"z1"}));
    appelants.LacheZones(":1.1");
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc1");
    EXPECT_EQ(Nomme(":1.1", "doc1", "z1"), Erreur::ZoneInconnue);
}

TEST_F(Callers, MayLetGoOfTheZonesOfEveryDocument) {
    appelants.Donne(":1.1", "doc1", Donne({"z1"}));
    appelants.Donne(":1.1", "doc2", Donne({"z2"}));
    appelants.Donne(":1.2", "doc2", Donne({"z2"}));
    appelants.OublieZones(":1.1");
    appelants.OublieZones(":9.9");
    EXPECT_EQ(Nomme(":1.1", "doc1", "z1"), Erreur::ZoneInconnue);
    EXPECT_EQ(Nomme(":1.1", "doc2", "z2"), Erreur::ZoneInconnue);
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc2");
    EXPECT_EQ(Nomme(":1.2", "doc2", "z2"), std::nullopt);
}

TEST_F(Callers, CountOnNoCorrectionThatWasGivenUpAndNameNothingByIt) {
    appelants.Donne(":1.1", "doc1", Donne({"z1", "z2"}));
    appelants.Donne(":1.1", "doc2", Donne({"z3"}));
    appelants.NoteRefus(":1.1", "z1", {1, 3});
    appelants.NoteRefus(":1.1", "z9", {1, 3});
    appelants.NoteRefus(":9.9", "z1", {1, 3});
    EXPECT_EQ(appelants.DonneDocument(":1.1"), "doc2");
    EXPECT_FALSE(appelants.NommeZone(":1.1", "doc1", "z1").Localise({2, 3}, u"texte"));
    EXPECT_TRUE(appelants.NommeZone(":1.1", "doc1", "z1").Localise({0, 1}, u"texte"));
    EXPECT_TRUE(appelants.NommeZone(":1.1", "doc1", "z2").Localise({2, 3}, u"texte"));
}

TEST_F(Callers, LettingGoOfADocumentLeavesTheOthers) {
    appelants.Donne(":1.1", "doc1", Donne({"z1"}));
    appelants.Donne(":1.1", "doc2", Donne({"z2"}));
    appelants.LacheDocument(":1.1");
    EXPECT_EQ(Document(":1.1"), Erreur::AucunDocument);
    EXPECT_EQ(Nomme(":1.1", "doc2", "z2"), Erreur::ZoneInconnue);
    EXPECT_EQ(Nomme(":1.1", "doc1", "z1"), std::nullopt);
    // Never an error, whoever calls.
    appelants.LacheZones(":9.9");
    appelants.LacheDocument(":9.9");
    EXPECT_FALSE(appelants.Connait(":9.9"));
}

TEST_F(Callers, ADocumentThatIsClosedIsForgottenByAll) {
    for (char const* const nom : {":1.1", ":1.2"}) {
        appelants.Donne(nom, "doc1", Donne({"z1"}));
        appelants.Donne(nom, "doc2", Donne({"z2"}));
    }
    appelants.GardeDocuments([](std::string const& cle) { return cle == "doc2"; });
    for (char const* const nom : {":1.1", ":1.2"}) {
        EXPECT_EQ(Nomme(nom, "doc1", "z1"), Erreur::ZoneInconnue);
        EXPECT_EQ(Nomme(nom, "doc2", "z2"), std::nullopt);
    }
}

TEST_F(Callers, ARefusalIsTheCallersAndTheZonesOwnAndIsToldUntilTheNextSuccess) {
    appelants.Donne(":1.1", "doc1", Donne({"z1", "z2"}));
    appelants.Donne(":1.2", "doc1", Donne({"z1"}));
    ErreurDuService const protege(Erreur::Protege);
    appelants.NoteIssue(":1.1", "z1", protege);
    auto const refus = appelants.DonneRefus(":1.1", "z1");
    ASSERT_TRUE(refus);
    EXPECT_EQ(refus->code, Erreur::Protege);
    EXPECT_EQ(refus->phrase, protege.what());
    EXPECT_FALSE(appelants.DonneRefus(":1.1", "z2"));
    EXPECT_FALSE(appelants.DonneRefus(":1.2", "z1"));
    appelants.NoteIssue(":1.1", "z1", std::nullopt);
    EXPECT_FALSE(appelants.DonneRefus(":1.1", "z1"));
}

TEST_F(Callers, ARefusalSurvivesASynchronisationAsLongAsItsZoneDoes) {
    appelants.Donne(":1.1", "doc1", Donne({"z1", "z2"}));
    appelants.NoteIssue(":1.1", "z1", ErreurDuService(Erreur::Protege));
    appelants.NoteIssue(":1.1", "z2", ErreurDuService(Erreur::Frappe));
    appelants.Donne(":1.1", "doc1", Donne({"z2", "z3"}));
    EXPECT_EQ(appelants.DonneRefus(":1.1", "z2")->code, Erreur::Frappe);
    EXPECT_EQ(Refus([&] { appelants.DonneRefus(":1.1", "z1"); }), Erreur::ZoneInconnue);
    appelants.Donne(":1.1", "doc1", Donne({"z1", "z2"}));
    EXPECT_FALSE(appelants.DonneRefus(":1.1", "z1")) << "it was another zone's, long gone";
}

TEST_F(Callers, RefusalsInZonesThatOneWasNotGivenAreNeitherNotedNorTold) {
    appelants.Donne(":1.1", "doc1", Donne({"z1"}));
    appelants.NoteIssue(":1.1", "z2", ErreurDuService(Erreur::ZoneInconnue));
    appelants.NoteIssue(":9.9", "z1", ErreurDuService(Erreur::ZoneInconnue));
    EXPECT_EQ(Refus([&] { appelants.DonneRefus(":1.1", "z2"); }), Erreur::ZoneInconnue);
    EXPECT_EQ(Refus([&] { appelants.DonneRefus(":9.9", "z1"); }), Erreur::ZoneInconnue);
    EXPECT_FALSE(appelants.Connait(":9.9"));
    appelants.NoteIssue(":1.1", "z1", ErreurDuService(Erreur::Protege));
    appelants.LacheZones(":1.1");
    EXPECT_EQ(Refus([&] { appelants.DonneRefus(":1.1", "z1"); }), Erreur::ZoneInconnue);
}

TEST_F(Callers, ASelectionIsTheOneToldInZoneTextAndRange) {
    SelectionDite const dite{"z1", u"un chat", {3, 7}};
    auto const verifie = [&](SelectionDite const& actuelle) {
        return Refus([&] { appelants.VerifieSelection(":1.1", actuelle); });
    };
    EXPECT_EQ(verifie(dite), std::nullopt) << "told none, it may replace any";
    appelants.MetsSelection(":1.1", dite);
    EXPECT_EQ(verifie(dite), std::nullopt);
    EXPECT_EQ(verifie({"z2", u"un chat", {3, 7}}), Erreur::PlageRefusee);
    EXPECT_EQ(verifie({"z1", u"un chien", {3, 7}}), Erreur::PlageRefusee);
    EXPECT_EQ(verifie({"z1", u"un chat", {3, 6}}), Erreur::PlageRefusee);
    appelants.MetsSelection(":1.1", std::nullopt);
    EXPECT_EQ(verifie({"z2", u"un chat", {3, 7}}), std::nullopt);
}
