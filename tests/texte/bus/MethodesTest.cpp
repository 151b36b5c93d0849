// SPDX-License-Identifier: MPL-2.0
#include "Contrat.h"
#include "outils/bus/BureauTexte.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <climits>

namespace {

constexpr char kAucunDocument[] = "com.ombrel.vocalyne.texteurs.Erreur.AucunDocument";
constexpr char kDocumentInconnu[] = "com.ombrel.vocalyne.texteurs.Erreur.DocumentInconnu";
constexpr char kZoneInconnue[] = "com.ombrel.vocalyne.texteurs.Erreur.ZoneInconnue";
constexpr char kPlageRefusee[] = "com.ombrel.vocalyne.texteurs.Erreur.PlageRefusee";
constexpr char kSelectionImpossible[] = "com.ombrel.vocalyne.texteurs.Erreur.SelectionImpossible";

QString Q(std::string const& texte) {
    return QString::fromStdString(texte);
}

// A private bus, an office with one document, a caller that has named it and been given it.
class OfficeMethods : public testing::Test {
  protected:
    explicit OfficeMethods(std::string const& texte = "Les chat dort.\nUn \U0001F600 la.\n")
        : bureau({{"lettre.txt", texte}})
        , client(bureau.Instance()) {
        client.Initialise("doc1");
        zones = client.Synchronise(bureau.Identifiant());
    }

    void Selectionne(std::size_t zone, int debut, int fin) {
        EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zones.at(zone).nom), debut, fin}), "");
    }
    std::string Selection() { return client.Texte("DonneContenuSelection"); }
    /// The whole text as it stands now, told to another caller.
    std::string Document() {
        std::string texte;
        for (ZoneServie const& zone :
             ClientBureau(bureau.Instance()).Synchronise(bureau.Identifiant())) {
            texte += zone.texte + '\n';
        }
        return texte;
    }

    BusPrive bus;
    BureauTexte bureau;
    ClientBureau client;
    std::vector<ZoneServie> zones;
};

} // namespace

TEST_F(OfficeMethods, EachParagraphIsAZoneOfItsOwn) {
    ASSERT_EQ(zones.size(), 2U);
    EXPECT_EQ(zones[0].texte, "Les chat dort.");
    EXPECT_EQ(zones[1].texte, "Un \U0001F600 la.");
    EXPECT_NE(zones[0].nom, zones[1].nom);
}

TEST_F(OfficeMethods, ZoneKeysStayAcrossSynchronisationsAndCorrections) {
    EXPECT_EQ(client.Corrige(zones[0].nom, 4, 8, "chats"), "");
    std::vector<ZoneServie> const encore = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(encore.size(), 2U);
    EXPECT_EQ(encore[0].nom, zones[0].nom);
    EXPECT_EQ(encore[1].nom, zones[1].nom);
    EXPECT_EQ(encore[0].texte, "Les chats dort.");
}

TEST_F(OfficeMethods, ZoneKeysShowNeitherTextNorFile) {
    for (ZoneServie const& zone : zones) {
        EXPECT_EQ(zone.nom.find("lettre"), std::string::npos);
        EXPECT_EQ(zone.nom.find("chat"), std::string::npos);
    }
}

TEST_F(OfficeMethods, TitleAndPathAreThoseOfTheFile) {
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "lettre.txt");
    EXPECT_EQ(client.Texte("DonneCheminDocument"), bureau.Chemin().string());
}

TEST_F(OfficeMethods, ADocumentThatIsServedIsNotDeadAndAnyOtherIs) {
    EXPECT_FALSE(client.Appelle("DocEstMort", {QStringLiteral("doc1")}).arguments()[0].toBool());
    for (char const* const cle : {"doc2", "", "doc1 ", "DOC1", "doc"}) {
        EXPECT_TRUE(client.Appelle("DocEstMort", {QLatin1String(cle)}).arguments()[0].toBool())
            << cle;
    }
}

TEST_F(OfficeMethods, ACarriageReturnIsNeverAllowed) {
    QDBusMessage const reponse = client.Appelle("PermetsRetourDeCharriot");
    ASSERT_EQ(reponse.type(), QDBusMessage::ReplyMessage);
    EXPECT_FALSE(reponse.arguments()[0].toBool());
}

TEST_F(OfficeMethods, ASelectedRangeStandsInItsZoneAndItsContext) {
    Selectionne(1, 3, 5);
    EXPECT_EQ(Selection(), "\U0001F600");
    EXPECT_EQ(client.Texte("DonneContexteSelection"), "Un \U0001F600 la.");
    EXPECT_EQ(client.Entier("DonneDebutSelection"), 3);
    EXPECT_EQ(client.Entier("DonneFinSelection"), 5);
    EXPECT_EQ(client.Entier("DonneDebutSelectionDansSonContexte"), 3);
    EXPECT_EQ(client.Entier("DonneFinSelectionDansSonContexte"), 5);
    std::vector<ZoneServie> const encore = client.Synchronise(bureau.Identifiant());
    EXPECT_EQ(encore[1].debutSel, 3);
    EXPECT_EQ(encore[1].finSel, 5);
    EXPECT_EQ(encore[0].debutSel, 0);
    EXPECT_EQ(encore[0].finSel, 0);
}

TEST_F(OfficeMethods, ASelectionMovesByItsTwoShifts) {
    Selectionne(0, 4, 8);
    EXPECT_EQ(client.Erreur("AjusteSelectionPourOutils", {-4, 5}), "");
    EXPECT_EQ(Selection(), "Les chat dort");
    EXPECT_EQ(client.Erreur("AjusteSelectionPourOutils", {4, -9}), "");
    EXPECT_EQ(Selection(), "");
}

TEST_F(OfficeMethods, AShiftOutOfTheParagraphOrIntoACharacterChangesNothing) {
    Selectionne(1, 0, 3);
    for (auto const& [debut, fin] : {std::pair{-1, 0},
                                     {0, 7},
                                     {0, 1},
                                     {4, 0},
                                     {4, 1},
                                     {0, -4},
                                     {INT_MIN, INT_MAX},
                                     {INT_MAX, INT_MIN},
                                     {INT_MAX, INT_MAX},
                                     {INT_MIN, INT_MIN}}) {
        EXPECT_EQ(client.Erreur("AjusteSelectionPourOutils", {debut, fin}), kSelectionImpossible)
            << debut << ", " << fin;
    }
    EXPECT_EQ(Selection(), "Un ");
}

TEST_F(OfficeMethods, TheSelectionIsReplacedAndTheResultSelected) {
    Selectionne(0, 4, 8);
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QStringLiteral("félins")}), "");
    EXPECT_EQ(Selection(), "félins");
    EXPECT_EQ(Document(), "Les félins dort.\nUn \U0001F600 la.\n");
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QString()}), "");
    EXPECT_EQ(Selection(), "");
    EXPECT_EQ(Document(), "Les  dort.\nUn \U0001F600 la.\n");
}

TEST_F(OfficeMethods, AReplacementWithALineEndIsRefused) {
    Selectionne(0, 4, 8);
    for (char const* const mot : {"a\nb", "a\rb", "\r\n"}) {
        EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QLatin1String(mot)}),
                  "com.ombrel.vocalyne.texteurs.Erreur.FinDeLigne");
        client.Synchronise(bureau.Identifiant());
        EXPECT_EQ(client.Corrige(zones[1].nom, 0, 2, mot),
                  "com.ombrel.vocalyne.texteurs.Erreur.FinDeLigne");
    }
    EXPECT_EQ(Document(), "Les chat dort.\nUn \U0001F600 la.\n");
}

TEST_F(OfficeMethods, TheSelectionFollowsCorrectionsInItsZone) {
    Selectionne(0, 9, 13);
    EXPECT_EQ(client.Corrige(zones[0].nom, 4, 8, "chatons"), "");
    EXPECT_EQ(Selection(), "dort");
    EXPECT_EQ(client.Corrige(zones[0].nom, 12, 16, "dorment"), "");
    EXPECT_EQ(Selection(), "dorment");
    EXPECT_EQ(client.Corrige(zones[1].nom, 0, 2, "Une"), "");
    EXPECT_EQ(Selection(), "dorment");
}

TEST_F(OfficeMethods, SelectingAnImpossibleRangeIsAnErrorAndChangesNothing) {
    Selectionne(0, 4, 8);
    for (auto const& [debut, fin] : {std::pair{-1, 2}, {0, 15}, {8, 4}, {INT_MIN, INT_MAX}}) {
        EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zones[0].nom), debut, fin}),
                  kPlageRefusee);
    }
    EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zones[1].nom), 3, 4}), kPlageRefusee);
    EXPECT_EQ(Selection(), "chat");
}

TEST_F(OfficeMethods, UnknownDocumentsAndZonesAreErrorsWithAMessage) {
    for (char const* const cle : {"doc2", "", "moi~doc1"}) {
        QDBusMessage const reponse = client.Appelle("InitialiseTexteur", {QLatin1String(cle)});
        EXPECT_EQ(reponse.errorName().toStdString(), kDocumentInconnu);
        EXPECT_FALSE(reponse.errorMessage().isEmpty());
    }
    for (std::string const& identifiant :
         {std::string("doc1"), bureau.Instance() + "~", bureau.Instance() + "~doc2",
          bureau.Instance(), std::string("~doc1"), std::string(), bureau.Identifiant() + "~doc1",
          "x" + bureau.Identifiant()}) {
        EXPECT_EQ(client.Erreur("SynchronisePositions", {Q(identifiant)}), kDocumentInconnu)
            << identifiant;
    }
    for (std::string const& zone :
         {std::string(), std::string("z"), std::string("z0"), std::string("z3"), "0" + zones[0].nom,
          zones[0].nom + " ", std::string("z01"), std::string("z-1"),
          std::string("z99999999999999999999999"), std::string("Z1")}) {
        EXPECT_FALSE(client.PeutCorriger(zone, 0, 0, "")) << zone;
        EXPECT_EQ(client.Corrige(zone, 0, 0, "a"), kZoneInconnue) << zone;
        EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zone), 0, 0}), kZoneInconnue) << zone;
    }
}

TEST_F(OfficeMethods, ACallerThatNamedNoDocumentIsToldSo) {
    ClientBureau const autre(bureau.Instance());
    for (char const* const methode :
         {"ActivePourCorrecteur", "ActivePourOutils", "DonneCheminDocument",
          "DonneContenuSelection", "DonneContexteSelection", "DonneDebutSelection",
          "DonneDebutSelectionDansSonContexte", "DonneFinSelection",
          "DonneFinSelectionDansSonContexte", "DonneTitreDocument", "InitialisePourCorrecteur",
          "PermetsRetourDeCharriot"}) {
        EXPECT_EQ(autre.Erreur(methode), kAucunDocument) << methode;
    }
    EXPECT_EQ(autre.Erreur("InitialisePourOutils", {true}), kAucunDocument);
    EXPECT_EQ(autre.Erreur("AjusteSelectionPourOutils", {0, 0}), kAucunDocument);
    EXPECT_EQ(autre.Erreur("RemplaceEtReselectionne", {QStringLiteral("x")}), kAucunDocument);
    // Letting go never fails.
    EXPECT_EQ(autre.Erreur("RompsLienCorrecteur"), "");
    EXPECT_EQ(autre.Erreur("RompsLienTexteur"), "");
    EXPECT_EQ(autre.Erreur("Suspends"), "");
}

TEST_F(OfficeMethods, MethodsWithoutAnIdentifierServeTheCallerThatHasNamedOne) {
    for (char const* const methode :
         {"ActivePourCorrecteur", "ActivePourOutils", "InitialisePourCorrecteur",
          "RompsLienCorrecteur", "Suspends"}) {
        EXPECT_EQ(client.Erreur(methode), "") << methode;
    }
    EXPECT_EQ(client.Erreur("InitialisePourOutils", {false}), "");
}

TEST_F(OfficeMethods, ArgumentsOfTheWrongTypeAreAnErrorAndNotACrash) {
    EXPECT_NE(client.Erreur("DocEstMort", {1}), "");
    EXPECT_NE(client.Erreur("DocEstMort"), "");
    EXPECT_NE(client.Erreur("PeutCorriger", {Q(zones[0].nom), QStringLiteral("4"), 8, QString()}),
              "");
    EXPECT_NE(client.Erreur("NImporteQuoi"), "");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "lettre.txt");
}

TEST_F(OfficeMethods, HavingLetGoOfTheDocumentItMustBeNamedAgain) {
    EXPECT_EQ(client.Erreur("RompsLienTexteur"), "");
    EXPECT_EQ(client.Erreur("DonneTitreDocument"), kAucunDocument);
    EXPECT_FALSE(client.PeutCorriger(zones[0].nom, 4, 8, "chat")); // no zone of this caller's
    EXPECT_EQ(client.Erreur("DonneTitreDocument"), kAucunDocument);
    client.Synchronise(bureau.Identifiant());
    EXPECT_TRUE(client.PeutCorriger(zones[0].nom, 4, 8, "chat"));
}

TEST_F(OfficeMethods, HavingLetGoOfTheCorrectorItMustSynchroniseBeforeItCorrects) {
    EXPECT_EQ(client.Erreur("RompsLienCorrecteur"), "");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "lettre.txt");
    EXPECT_FALSE(client.PeutCorriger(zones[0].nom, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zones[0].nom, 4, 8, "chats"), kZoneInconnue);
    client.Synchronise(bureau.Identifiant());
    EXPECT_EQ(client.Corrige(zones[0].nom, 4, 8, "chats"), "");
}

TEST_F(OfficeMethods, TheSelectionIsReplacedOnlyIfItIsTheOneThatTheCallerWasTold) {
    Selectionne(0, 4, 8);
    EXPECT_EQ(client.Texte("DonneContexteSelection"), "Les chat dort.");
    ClientBureau const autre(bureau.Instance());
    autre.Synchronise(bureau.Identifiant());
    EXPECT_EQ(autre.Erreur("SelectionneIntervalle", {Q(zones[1].nom), 0, 2}), "");
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QStringLiteral("félins")}), kPlageRefusee);
    EXPECT_EQ(Document(), "Les chat dort.\nUn \U0001F600 la.\n");
    EXPECT_EQ(Selection(), "Un"); // told now
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QStringLiteral("Le")}), "");
    EXPECT_EQ(Document(), "Les chat dort.\nLe \U0001F600 la.\n");
}

TEST_F(OfficeMethods, ToolsThatStartAnewReplaceTheSelectionAsItStands) {
    Selectionne(0, 4, 8);
    ClientBureau const autre(bureau.Instance());
    autre.Synchronise(bureau.Identifiant());
    EXPECT_EQ(autre.Erreur("SelectionneIntervalle", {Q(zones[1].nom), 0, 2}), "");
    EXPECT_EQ(client.Erreur("InitialisePourOutils", {true}), "");
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QStringLiteral("Le")}), "");
    EXPECT_EQ(Selection(), "Le");
}

TEST_F(OfficeMethods, TheLongestTextMakesTheWholeWayThereAndBack) {
    std::string const morceau = "\U0001F600é"; // three units
    constexpr int kMorceaux = contrat::kUnitesRemplacementMax / 3;
    std::string texte;
    for (int i = 0; i < kMorceaux; ++i) {
        texte += morceau;
    }
    EXPECT_EQ(client.Corrige(zones[0].nom, 0, 14, texte), "");
    EXPECT_TRUE(client.PeutCorriger(zones[0].nom, 0, 3 * kMorceaux, texte));
    EXPECT_EQ(client.Synchronise(bureau.Identifiant())[0].texte, texte);
}

namespace {

class SeveralDocuments : public testing::Test {
  protected:
    QJsonArray Documents() {
        LienBus const lien(
            Q(bureau.Service()), Q(bureau.Objet()),
            QStringLiteral("com.ombrel.vocalyne.texteurs.openoffice.documents.interface"));
        return QJsonDocument::fromJson(lien.Appelle(QStringLiteral("DonneDocuments"))
                                           .arguments()
                                           .value(0)
                                           .toString()
                                           .toUtf8())
            .array();
    }

    BusPrive bus;
    BureauTexte bureau{{{"un.txt", "Un."}, {"deux été.txt", "Deux."}, {"trois.txt", "Trois."}}};
    ClientBureau client{bureau.Instance()};
};

} // namespace

TEST_F(SeveralDocuments, AreListedWithIdentifierTitleAndPath) {
    QJsonArray const liste = Documents();
    ASSERT_EQ(liste.size(), 3);
    for (int i = 0; i < 3; ++i) {
        auto const rang = static_cast<std::size_t>(i);
        QJsonObject const document = liste[i].toObject();
        EXPECT_EQ(document.keys().join(QLatin1Char(' ')), QStringLiteral("chemin genre id titre"));
        EXPECT_EQ(document[QLatin1String("id")].toString().toStdString(), bureau.Identifiant(rang));
        EXPECT_EQ(document[QLatin1String("chemin")].toString().toStdString(),
                  bureau.Chemin(rang).string());
        EXPECT_EQ(document[QLatin1String("titre")].toString().toStdString(),
                  bureau.Chemin(rang).filename().string());
    }
}

TEST_F(SeveralDocuments, TheOneBroughtToTheFrontIsListedFirst) {
    client.Initialise("doc3");
    EXPECT_EQ(client.Erreur("ActivePourCorrecteur"), "");
    EXPECT_EQ(Documents()[0].toObject()[QLatin1String("id")].toString().toStdString(),
              bureau.Identifiant(2));
    client.Initialise("doc2");
    EXPECT_EQ(client.Erreur("ActivePourOutils"), "");
    EXPECT_EQ(Documents()[0].toObject()[QLatin1String("id")].toString().toStdString(),
              bureau.Identifiant(1));
}

TEST_F(SeveralDocuments, TheOneMeantIsTheLastThatThisConnectionNamed) {
    ClientBureau autre(bureau.Instance());
    client.Initialise("doc1");
    autre.Initialise("doc2");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "un.txt");
    EXPECT_EQ(autre.Texte("DonneTitreDocument"), "deux été.txt");
    std::string const zone3 = client.Synchronise(bureau.Identifiant(2)).at(0).nom;
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "trois.txt");
    client.Initialise("doc1");
    EXPECT_TRUE(client.PeutCorriger(zone3, 0, 5, "Trois")); // a zone of it names it too
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "trois.txt");
    EXPECT_EQ(autre.Texte("DonneTitreDocument"), "deux été.txt");
}

TEST_F(SeveralDocuments, WhatACallerWasGivenOfOneStaysWhenItIsGivenAnother) {
    std::string const zone1 = client.Synchronise(bureau.Identifiant(0)).at(0).nom;
    std::string const zone2 = client.Synchronise(bureau.Identifiant(1)).at(0).nom;
    EXPECT_EQ(client.Erreur("RompsLienTexteur"), ""); // of the second
    EXPECT_TRUE(client.PeutCorriger(zone1, 0, 2, "Un"));
    EXPECT_FALSE(client.PeutCorriger(zone2, 0, 4, "Deux"));
}

TEST_F(SeveralDocuments, EachKeepsItsOwnSelectionAndText) {
    std::string const zone1 = client.Synchronise(bureau.Identifiant(0)).at(0).nom;
    std::string const zone2 = client.Synchronise(bureau.Identifiant(1)).at(0).nom;
    EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zone1), 0, 2}), "");
    EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zone2), 1, 4}), "");
    EXPECT_EQ(client.Texte("DonneContenuSelection"), "eux");
    client.Initialise("doc1");
    EXPECT_EQ(client.Texte("DonneContenuSelection"), "Un");
    EXPECT_EQ(client.Corrige(zone2, 0, 4, "2"), "");
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(0), "Un.");
    EXPECT_EQ(bureau.Contenu(1), "2.");
}

TEST(OfficeWithAByteOrderMarkInALine, KeepsTheOffsetsBehindIt) {
    BusPrive bus;
    BureauTexte const bureau({{"marque.txt", "un\n\uFEFFdeux\n"}});
    ClientBureau const client(bureau.Instance());
    std::vector<ZoneServie> const zones = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(zones.size(), 2U);
    EXPECT_EQ(zones[1].texte, "\uFEFFdeux");
    EXPECT_EQ(client.Erreur("SelectionneIntervalle", {Q(zones[1].nom), 1, 5}), "");
    // A reader as ours would drop the mark from a bare reply, and its text be one unit short.
    EXPECT_EQ(client.Texte("DonneContexteSelection"), "\adeux");
    EXPECT_EQ(client.Texte("DonneContenuSelection"), "deux");
    EXPECT_EQ(client.Entier("DonneDebutSelectionDansSonContexte"), 1);
}

TEST(OfficeWithAnEmptyFile, ServesOneEmptyZoneInWhichTextCanBePut) {
    BusPrive bus;
    BureauTexte bureau({{"vide.txt", ""}});
    ClientBureau const client(bureau.Instance());
    std::vector<ZoneServie> const zones = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(zones.size(), 1U);
    EXPECT_EQ(zones[0].texte, "");
    EXPECT_EQ(client.Texte("DonneContexteSelection"), "");
    EXPECT_TRUE(client.PeutCorriger(zones[0].nom, 0, 0, ""));
    EXPECT_EQ(client.Corrige(zones[0].nom, 0, 0, "Bonjour"), "");
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), "Bonjour");
}

TEST(OfficeWithManyZones, ServesAHundredThousandOfThem) {
    BusPrive bus;
    std::string texte;
    for (int i = 0; i < 100000; ++i) {
        texte += "Paragraphe.\n";
    }
    BureauTexte bureau({{"grand.txt", texte}});
    ClientBureau const client(bureau.Instance());
    std::vector<ZoneServie> const zones = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(zones.size(), 100000U);
    EXPECT_EQ(client.Corrige(zones[99999].nom, 0, 10, "Fin"), "");
    EXPECT_EQ(bureau.Finis(), 0);
    texte.replace(texte.size() - 12, 10, "Fin");
    EXPECT_EQ(bureau.Contenu(), texte);
}
