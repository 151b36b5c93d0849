// SPDX-License-Identifier: MPL-2.0
#include "partage/ErreurDuService.h"

#include "partage/Messages.h"

#include <gtest/gtest.h>

#include <set>

using compagnon::ErreurDuService;
using compagnon::Refus;
using contrat::Erreur;

TEST(ServiceErrors, EachHasItsNameOnTheBusAndAMessageOfItsOwnInBothLanguages) {
    std::set<std::string> messages;
    for (bool const francais : {false, true}) {
        compagnon::MetsFrancais(francais);
        for (contrat::ErreurNommee const& nommee : contrat::kErreurs) {
            ErreurDuService const erreur(nommee.erreur, "SUJET");
            EXPECT_EQ(erreur.DonneCode(), nommee.erreur);
            EXPECT_EQ(erreur.DonneNomDBus(),
                      std::string("com.ombrel.vocalyne.texteurs.Erreur.") + nommee.nom);
            std::string const message = erreur.what();
            EXPECT_FALSE(message.empty()) << nommee.nom;
            EXPECT_EQ(message.find("{1}"), std::string::npos) << message;
            if (nommee.erreur != Erreur::Enregistrement) { // the subject is all of its message
                EXPECT_TRUE(messages.insert(message).second) << message;
            }
        }
    }
}

TEST(ServiceErrors, ASubjectOfMegabytesIsCutBetweenTwoCharacters) {
    compagnon::MetsFrancais(false);
    std::string const message =
        ErreurDuService(
            Erreur::DocumentInconnu, "a" +
                                         [] {
                                             std::string accents;
                                             for (int i = 0; i < 1'000'000; ++i) {
                                                 accents += "\u00e9";
                                             }
                                             return accents;
                                         }())
            .what();
    EXPECT_LT(message.size(), 20'000U);
    EXPECT_NE(message.find("\u00e9\u2026\" here"), std::string::npos);
}

TEST(ServiceErrors, AZoneNeverGivenIsUnknownAndAnyOtherRefusalIsTheRanges) {
    EXPECT_EQ(compagnon::RefusDe(Refus::Inconnu, "z1").DonneCode(), Erreur::ZoneInconnue);
    for (Refus const refus :
         {Refus::HorsLimites, Refus::CoupePaire, Refus::Different, Refus::Incertain}) {
        EXPECT_EQ(compagnon::RefusDe(refus, "z1").DonneCode(), Erreur::PlageRefusee);
    }
}
