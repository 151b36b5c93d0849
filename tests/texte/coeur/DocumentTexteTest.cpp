// SPDX-License-Identifier: MPL-2.0
#include "coeur/Bureau.h"
#include "outils/DossierEssai.h"
#include "outils/bureau/Personne.h"

using compagnon::Bureau;
using compagnon::DocumentTexte;
using compagnon::Intervalle;
using compagnon::IssueEcriture;
using compagnon::LisFichier;
using contrat::Erreur;

namespace {

class TextDocument : public DossierEssai {
  protected:
    DocumentTexte& Ouvre(std::string const& nom, std::string_view octets) {
        std::string const chemin = Ecris(nom, octets);
        return bureau.Ouvre(chemin, LisFichier(chemin));
    }
    void Corrige(std::string const& zone, Intervalle plage, std::u16string_view texte) {
        bureau.SynchronisePositions("qui", "moi~doc1");
        bureau.CorrigeDansTexteur("qui", zone, plage, texte);
    }

    Bureau bureau{"moi"};
    Personne personne{bureau};
};

/// Why it is not done; nothing where it is.
template <class Travail>
std::optional<Erreur> Refus(Travail const& travail) {
    try {
        travail();
        return std::nullopt;
    } catch (compagnon::ErreurDuService const& erreur) {
        return erreur.DonneCode();
    }
}

} // namespace

TEST_F(TextDocument, OnlyTheChangedLettersDifferInTheFile) {
    std::string const avant = "\xEF\xBB\xBF"
                              "un\r\n\r\ndeux \U0001F600 e\u0301\n\rtrois\u2028\n\nfin";
    DocumentTexte& document = Ouvre("a.txt", avant);
    EXPECT_EQ(document.DonneOctets(), avant);
    Corrige("z3", {0, 4}, u"DEUX");
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Faite);
    std::string apres = avant;
    apres.replace(apres.find("deux"), 4, "DEUX");
    EXPECT_EQ(Lis(dossier / "a.txt"), apres);
}

TEST_F(TextDocument, AnUnchangedTextIsNotWritten) {
    DocumentTexte& document = Ouvre("a.txt", "un\n");
    EXPECT_FALSE(document.Enregistre().has_value());
    Corrige("z1", {0, 2}, u"deux");
    Corrige("z1", {0, 4}, u"un");
    EXPECT_FALSE(document.Enregistre().has_value());
}

TEST_F(TextDocument, IsSavedEachTimeItHasChangedSince) {
    DocumentTexte& document = Ouvre("a.txt", "un\n");
    Corrige("z1", {0, 2}, u"deux");
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Faite);
    EXPECT_FALSE(document.Enregistre().has_value());
    Corrige("z1", {0, 4}, u"trois");
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Faite);
    EXPECT_EQ(Lis(dossier / "a.txt"), "trois\n");
}

TEST_F(TextDocument, AConflictIsSavedBesideOnceAndToldEachTime) {
    DocumentTexte& document = Ouvre("a.txt", "un\n");
    Corrige("z1", {0, 2}, u"deux");
    Ecris("a.txt", "leur version\n");
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Conflit);
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Conflit);
    EXPECT_EQ(Noms(), "a.corrige-1.txt a.txt");
    EXPECT_EQ(Lis(dossier / "a.txt"), "leur version\n");
}

TEST_F(TextDocument, ThroughALinkTheTargetIsReplacedAndTheLinkStays) {
    Ecris("vrai.txt", "un\n");
    std::filesystem::create_symlink("vrai.txt", dossier / "lien.txt");
    std::string const lien = (dossier / "lien.txt").string();
    DocumentTexte& document = bureau.Ouvre(lien, LisFichier(lien));
    EXPECT_EQ(document.DonneTitre(), "lien.txt");
    Corrige("z1", {0, 2}, u"deux");
    EXPECT_EQ(document.Enregistre()->issue, IssueEcriture::Faite);
    EXPECT_TRUE(std::filesystem::is_symlink(lien));
    EXPECT_EQ(Lis(dossier / "vrai.txt"), "deux\n");
}

TEST_F(TextDocument, ThatMayNotBeWrittenRefusesEveryChange) {
    std::string const chemin = Ecris("a.txt", "un\n");
    compagnon::LectureFichier lecture = LisFichier(chemin);
    lecture.inscriptible = false;
    bureau.Ouvre(chemin, std::move(lecture));
    bureau.SynchronisePositions("qui", "moi~doc1");
    EXPECT_FALSE(bureau.PeutCorriger("qui", "z1", {0, 2}, u"un"));
    bureau.SelectionneIntervalle("qui", "z1", {0, 2});
    EXPECT_EQ(Refus([&] {
                  bureau.CorrigeDansTexteur("qui", "z1", {0, 2}, u"x");
              }),
              Erreur::LectureSeule);
    EXPECT_EQ(Refus([&] { bureau.RemplaceEtReselectionne("qui", u"x"); }), Erreur::LectureSeule);
    EXPECT_EQ(Refus([&] { personne.Tape("z1", {0, 2}, u"x"); }), Erreur::LectureSeule);
}

TEST_F(TextDocument, DoesNotGrowPastItsLimit) {
    DocumentTexte& document = Ouvre("a.txt", "un\n");
    std::u16string const enorme(compagnon::kUnitesMax - 1, u'a');
    EXPECT_EQ(Refus([&] { document.Remplace(0, {0, 0}, enorme); }), Erreur::TropGrand);
    EXPECT_EQ(*document.DonneTexte(0), u"un");
    document.Remplace(0, {0, 2}, enorme);
    EXPECT_EQ(Refus([&] { document.Remplace(0, {0, 0}, u"ab"); }), Erreur::TropGrand);
    document.Remplace(0, {0, 2}, u"b"); // shorter is always possible
}

TEST_F(TextDocument, ANewParagraphTakesItsNeighboursLineEnd) {
    DocumentTexte& document = Ouvre("a.txt", "un\r\ndeux");
    personne.InsereApres("z1", u"bis");
    EXPECT_EQ(document.DonneOctets(), "un\r\nbis\r\ndeux");
    personne.InsereApres("z2", u"fin");
    EXPECT_EQ(document.DonneOctets(), "un\r\nbis\r\ndeux\r\nfin");
}

TEST_F(TextDocument, TheLastParagraphIsEmptiedAndTheSelectionStaysSomewhere) {
    DocumentTexte& document = Ouvre("a.txt", "un\ndeux\n");
    personne.Selectionne("z2", {1, 3});
    personne.Supprime("z2");
    EXPECT_EQ(document.DonneSelection().zone, 0U);
    EXPECT_EQ(document.DonneSelection().plage, Intervalle{});
    personne.Supprime("z1");
    personne.Supprime("z1");
    EXPECT_EQ(document.DonneOctets(), "\n");
}
