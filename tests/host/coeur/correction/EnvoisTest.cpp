// SPDX-License-Identifier: MPL-2.0
#include "correction/Envois.h"

#include <gtest/gtest.h>

#include <random>

using namespace hote;

namespace {

Bilan DonneBilan(int nombre) {
    Bilan bilan;
    for (int i = 0; i < nombre; ++i) {
        bilan.fautes.push_back({0, {}, {}, {}, EtatFaute::Refusee});
    }
    return bilan;
}

} // namespace

TEST(Envois, CorrectionsThatTheDocumentShowsAreMadeWhateverElseWasTyped) {
    Bilan bilan = DonneBilan(2);
    Envois envois;
    envois.Ajoute(0, 1, {3, 7, QStringLiteral("chta")});
    envois.Ajoute(1, 1, {8, 12, QStringLiteral("nor")});
    std::vector<QString> const anciens{QStringLiteral("x"), QStringLiteral("le chat noir")};
    std::vector<QString> const nouveaux{QStringLiteral("x"), QStringLiteral("et le chat noire")};
    envois.Verifie(Recalage(anciens, nouveaux), anciens, nouveaux, bilan);
    EXPECT_EQ(bilan.fautes[0].etat, EtatFaute::Corrigee);
    EXPECT_EQ(bilan.fautes[1].etat, EtatFaute::Refusee);
    EXPECT_TRUE(envois.EstVide());
}

TEST(Envois, CorrectionsOfAZoneThatIsLostAreRefused) {
    Bilan bilan = DonneBilan(1);
    Envois envois;
    envois.Ajoute(0, 0, {0, 4, QStringLiteral("chta")});
    std::vector<QString> const anciens{QStringLiteral("chat")};
    envois.Verifie(Recalage(anciens, {}), anciens, {}, bilan);
    EXPECT_EQ(bilan.fautes[0].etat, EtatFaute::Refusee);
}

TEST(Envois, WhatCannotBeReadAgainIsNotVerified) {
    Bilan bilan = DonneBilan(1);
    Envois envois;
    envois.Ajoute(0, 0, {0, 4, QStringLiteral("chta")});
    envois.Abandonne(bilan);
    EXPECT_EQ(bilan.fautes[0].etat, EtatFaute::NonVerifiee);
    EXPECT_TRUE(envois.EstVide());
}

TEST(Envois, WhereTheTextCannotTellACorrectionIsNotTakenForMade) {
    // One of the two was made, and nobody can say which.
    Bilan bilan = DonneBilan(2);
    Envois envois;
    envois.Ajoute(0, 0, {0, 1, QStringLiteral("aa")});
    envois.Ajoute(1, 0, {1, 2, QStringLiteral("aa")});
    std::vector<QString> const anciens{QStringLiteral("aa")};
    std::vector<QString> const nouveaux{QStringLiteral("aaa")};
    envois.Verifie(Recalage(anciens, nouveaux), anciens, nouveaux, bilan);
    EXPECT_EQ(bilan.Compte(EtatFaute::Corrigee), 0);
}

TEST(Envois, OfAnyTextExactlyTheCorrectionsThatWereMadeCount) {
    std::mt19937 hasard(6);
    QStringList const mots{QStringLiteral("le"), QStringLiteral("lle"), QStringLiteral("l"),
                           QStringLiteral("chat"), QStringLiteral("chats")};
    for (int essai = 0; essai < 20000; ++essai) {
        Envois envois;
        QString ancien;
        QString nouveau;
        std::vector<bool> faites;
        for (auto i = 1 + hasard() % 12; i > 0; --i) {
            QString const& mot = mots.at(static_cast<int>(hasard() % 5));
            QString const& remplacement = mots.at(static_cast<int>(hasard() % 5));
            bool const envoyee = hasard() % 2 == 0 && mot != remplacement;
            bool const faite = envoyee && hasard() % 2 == 0;
            if (envoyee) {
                envois.Ajoute(faites.size(), 0,
                              {ancien.size(), ancien.size() + remplacement.size(), mot});
                faites.push_back(faite);
            }
            ancien += (envoyee ? remplacement : mot) + QLatin1Char(' ');
            nouveau += (faite ? remplacement : mot) + QLatin1Char(' ');
        }
        Bilan bilan = DonneBilan(static_cast<int>(faites.size()));
        std::vector<QString> const anciens{ancien};
        std::vector<QString> const nouveaux{nouveau};
        envois.Verifie(Recalage(anciens, nouveaux), anciens, nouveaux, bilan);
        for (std::size_t i = 0; i < faites.size(); ++i) {
            ASSERT_EQ(bilan.fautes[i].etat == EtatFaute::Corrigee, bool{faites[i]})
                << i << '\n'
                << ancien.toStdString() << '\n'
                << nouveau.toStdString();
        }
    }
}
