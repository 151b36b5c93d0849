// SPDX-License-Identifier: MPL-2.0
#include "AgentEspion.h"
#include "Emplacement.h"
#include "ImageCommune.h"
#include "ModuleProxyOOo.h"

#include <gtest/gtest.h>

namespace {

/// What a slot answers, so that a table can say it.
enum class Genre { Rien, Vrai, Entier, Texte };

struct Rang {
    std::size_t rang;
    char const* operation;
    Genre genre;
};

/// Calls an operation without argument and returns the name that it left.
std::string Appelle(AgentEspion& espion, void* objet, Rang const& rang) {
    espion.nom.clear();
    switch (rang.genre) {
    case Genre::Rien:
        AppelleEmplacement<void>(objet, rang.rang + 1);
        break;
    case Genre::Vrai:
        EXPECT_TRUE(AppelleEmplacement<bool>(objet, rang.rang + 1));
        break;
    case Genre::Entier:
        EXPECT_EQ(77, AppelleEmplacement<int>(objet, rang.rang + 1));
        break;
    case Genre::Texte:
        EXPECT_EQ(UniChaine(rang.operation, UniChaine::kCodageLitteral),
                  AppelleEmplacement<UniChaine>(objet, rang.rang + 1));
        break;
    }
    return espion.nom;
}

TEST(WordProcessorSlots, EachNumberReachesItsOperationThroughTheBasePointer) {
    AgentEspion espion;
    void* const objet = static_cast<InterfaceTexteur*>(&espion);
    for (Rang const& rang :
         {Rang{1, "Capacite1", Genre::Vrai}, Rang{2, "Capacite2", Genre::Vrai},
          Rang{3, "Capacite3", Genre::Vrai}, Rang{4, "Capacite4", Genre::Vrai},
          Rang{5, "Capacite5", Genre::Vrai}, Rang{6, "Capacite6", Genre::Vrai},
          Rang{7, "Capacite7", Genre::Vrai}, Rang{9, "Requete10", Genre::Entier},
          Rang{10, "Requete11", Genre::Entier}, Rang{11, "Requete12", Genre::Entier}}) {
        EXPECT_EQ(rang.operation, Appelle(espion, objet, rang));
    }
    EXPECT_EQ(&espion, AppelleEmplacement<InterfaceAgentTexteur*>(objet, 9));
    EXPECT_EQ("DonneAgentTexteur", espion.nom);
}

TEST(AgentSlots, EachNumberWithoutArgumentReachesItsOperation) {
    AgentEspion espion;
    void* const objet = static_cast<InterfaceAgentTexteur*>(&espion);
    for (Rang const& rang : {Rang{2, "Crochet03", Genre::Rien},
                             Rang{3, "DocEstMort", Genre::Vrai},
                             Rang{4, "DonneCheminDocument", Genre::Texte},
                             Rang{6, "DonneChaineAgent7", Genre::Texte},
                             Rang{9, "DonneNomApplication", Genre::Texte},
                             Rang{10, "DonneFinDeParagraphe", Genre::Texte},
                             Rang{11, "DonneTitreDocument", Genre::Texte},
                             Rang{12, "Requete13", Genre::Entier},
                             Rang{13, "Requete14", Genre::Entier},
                             Rang{16, "Requete17", Genre::Vrai},
                             Rang{17, "EstLie", Genre::Vrai},
                             Rang{18, "Crochet19", Genre::Rien},
                             Rang{19, "PermetsRetourDeCharriot", Genre::Vrai},
                             Rang{20, "Requete21", Genre::Vrai},
                             Rang{22, "Crochet23", Genre::Rien},
                             Rang{23, "Crochet24", Genre::Rien},
                             Rang{24, "RompsLienCorrecteur", Genre::Rien},
                             Rang{25, "RompsLienTexteur", Genre::Rien},
                             Rang{26, "Suspends", Genre::Rien},
                             Rang{27, "Crochet28", Genre::Rien},
                             Rang{28, "Crochet29", Genre::Rien},
                             Rang{29, "Requete30", Genre::Vrai},
                             Rang{32, "Requete33", Genre::Vrai}}) {
        EXPECT_EQ(rang.operation, Appelle(espion, objet, rang));
    }
}

TEST(AgentSlots, EachNumberWithArgumentsReachesItsOperationWithThem) {
    AgentEspion espion;
    void* const objet = static_cast<InterfaceAgentTexteur*>(&espion);
    TexteAvecAttributs texte;
    AppelleEmplacement<void>(objet, 2, &texte);
    EXPECT_EQ("TraiteTexteLu", espion.nom);
    ImageCommune image;
    AppelleEmplacement<void>(objet, 6, &image);
    EXPECT_EQ("DonneImageApplication", espion.nom);
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 8, &zones));
    EXPECT_EQ("SynchronisePositions", espion.nom);
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 9, &zones));
    EXPECT_EQ("DonneZones", espion.nom);
    AppelleEmplacement<void>(objet, 15, 5);
    EXPECT_EQ("InitialisePour 5", espion.nom);
    UniChaine const classe;
    UniChaine message;
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 16, &classe, &message, 2));
    EXPECT_EQ("InitialiseTexteur 2", espion.nom);
    AppelleEmplacement<void>(objet, 22, -1);
    EXPECT_EQ("ActivePour -1", espion.nom);
    EXPECT_EQ(-3, AppelleEmplacement<int>(objet, 31, 4, 7));
    EXPECT_EQ("AjusteSelectionPourOutils", espion.nom);
    int debut = 0;
    int fin = 0;
    EXPECT_EQ(UniChaine("DonneContexte", UniChaine::kCodageLitteral),
              AppelleEmplacement<UniChaine>(objet, 32, &debut, &fin));
    EXPECT_EQ(3, debut);
    EXPECT_EQ(9, fin);
    UniChaine const mot("mot", UniChaine::kCodageLitteral);
    EXPECT_EQ(3, AppelleEmplacement<int>(objet, 34, &mot));
    EXPECT_EQ("RemplaceEtReselectionne", espion.nom);
}

TEST(AgentSlots, TheSecondEntryDeletesTheWholeAgentThroughEitherPointer) {
    for (bool const parAgent : {true, false}) {
        bool detruit = false;
        auto* const espion = new AgentEspion;
        espion->aDetruire = &detruit;
        AppelleEmplacement<void>(
            parAgent ? static_cast<void*>(static_cast<InterfaceAgentTexteur*>(espion))
                     : static_cast<void*>(static_cast<InterfaceTexteur*>(espion)),
            1);
        EXPECT_TRUE(detruit);
    }
}

TEST(AgentSlots, TheLibreOfficeAgentGivesItsFixedAnswersThroughBothPointers) {
    auto* const agent = new ModuleProxyOOo(UniChaine("a~b", UniChaine::kCodageLitteral));
    void* const commeAgent = static_cast<InterfaceAgentTexteur*>(agent);
    void* const commeTexteur = static_cast<InterfaceTexteur*>(agent);
    EXPECT_EQ(UniChaine("LibreOffice", UniChaine::kCodageLitteral),
              AppelleEmplacement<UniChaine>(commeAgent, 10));
    EXPECT_EQ(UniChaine("\n", UniChaine::kCodageLitteral),
              AppelleEmplacement<UniChaine>(commeAgent, 11));
    EXPECT_EQ(0, AppelleEmplacement<int>(commeAgent, 13));
    for (std::size_t const vrai : {20, 29, 32}) {
        EXPECT_TRUE(AppelleEmplacement<bool>(commeAgent, vrai + 1)) << vrai;
    }
    bool const capacites[] = {true, false, false, false, true, true, true};
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_EQ(capacites[i], AppelleEmplacement<bool>(commeTexteur, i + 2)) << i + 1;
    }
    EXPECT_EQ(static_cast<InterfaceAgentTexteur*>(agent),
              AppelleEmplacement<InterfaceAgentTexteur*>(commeTexteur, 9));
    AppelleEmplacement<void>(commeAgent, 1);
}

} // namespace
