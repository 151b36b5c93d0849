// SPDX-License-Identifier: MPL-2.0
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>

namespace {

// Calls of every method with arguments that are right, nearly right, or absurd.
class Appels {
  public:
    explicit Appels(std::string const& instance)
        : instance_(QString::fromStdString(instance)) {}

    QString Zone() {
        return QStringLiteral("z%1").arg(Parmi({"1", "2", "3", "3", "4", "", "-1", "01", "é"}));
    }
    QString Cle() { return Parmi({"doc1", "doc2", "doc3", "", "~", "doc1~"}); }
    QString Identifiant() {
        return Parmi({"", "x", ""}) + instance_ + Parmi({"~", "~", ""}) + Cle();
    }
    int Position() {
        static constexpr int kPositions[] = {0, 1, 2, 3, 4, 5, 8, 13, -1, INT_MIN, INT_MAX};
        return kPositions[moteur_() % std::size(kPositions)];
    }
    QString Texte() {
        return Parmi(
            {"", "a", "chat", "Un", "\U0001F600", "e\u0301", "\u0301", "\n", "\a", "\uFFFD\uFFFF"});
    }
    /// A method and its arguments.
    std::pair<char const*, QVariantList> Suivant() {
        switch (moteur_() % 14) {
        case 0:
            return {"AjusteSelectionPourOutils", {Position(), Position()}};
        case 1:
        case 2:
            return {"CorrigeDansTexteur", {Zone(), Position(), Position(), Texte(), true}};
        case 3:
            return {"PeutCorriger", {Zone(), Position(), Position(), Texte()}};
        case 4:
            return {"RemplaceEtReselectionne", {Texte()}};
        case 5:
            return {"SelectionneIntervalle", {Zone(), Position(), Position()}};
        case 6:
            return {"InitialiseTexteur", {Cle()}};
        case 7:
        case 8:
            return {"SynchronisePositions", {Identifiant()}};
        case 9:
            return {"DocEstMort", {Cle()}};
        case 10:
            return {"DonneContenuSelection", {}};
        case 11:
            return {"DonneFinSelectionDansSonContexte", {}};
        case 12:
            return {"RompsLienTexteur", {}};
        default:
            return {"ActivePourOutils", {}};
        }
    }

  private:
    QString Parmi(std::initializer_list<char const*> choix) {
        return QString::fromUtf8(choix.begin()[moteur_() % choix.size()]);
    }

    std::mt19937 moteur_{2024};
    QString instance_;
};

} // namespace

TEST(OfficeUnderRandomCalls, AnswersEachAndItsSelectionIsAlwaysOneOfItsText) {
    BusPrive bus;
    BureauDeTest bureau({{"a.txt", "Un chat \U0001F600.\r\ncafe\u0301"}, {"b.txt", ""}});
    ClientBureau const clients[] = {ClientBureau(bureau.Instance()),
                                    ClientBureau(bureau.Instance())};
    Appels appels(bureau.Instance());
    int reussis = 0;
    for (int i = 0; i < 4000; ++i) {
        auto const [methode, arguments] = appels.Suivant();
        QDBusMessage const reponse = clients[i % 2].Appelle(methode, arguments);
        if (reponse.type() == QDBusMessage::ReplyMessage) {
            ++reussis;
        } else {
            ASSERT_EQ(reponse.errorName().toStdString().substr(0, 36),
                      "com.ombrel.vocalyne.texteurs.Erreur.")
                << methode << ": " << reponse.errorMessage().toStdString();
            ASSERT_FALSE(reponse.errorMessage().isEmpty());
        }
        if (i % 100 == 0) {
            clients[0].Initialise("doc1");
            QString const contexte =
                QString::fromStdString(clients[0].Texte("DonneContexteSelection"));
            int const debut = clients[0].Entier("DonneDebutSelectionDansSonContexte");
            int const fin = clients[0].Entier("DonneFinSelectionDansSonContexte");
            ASSERT_TRUE(0 <= debut && debut <= fin && fin <= contexte.size());
            ASSERT_EQ(clients[0].Texte("DonneContenuSelection"),
                      contexte.mid(debut, fin - debut).toStdString());
            ASSERT_FALSE(debut < contexte.size() && contexte[debut].isLowSurrogate());
            ASSERT_FALSE(fin < contexte.size() && contexte[fin].isLowSurrogate());
        }
    }
    EXPECT_GT(reussis, 1000);
    std::string const texte = bureau.DonneCommande().DonneTexte("doc1");
    EXPECT_NE(texte.find("\r\n"), std::string::npos);
    EXPECT_EQ(texte.find('\n'), texte.rfind('\n'));
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu(), texte);
}
