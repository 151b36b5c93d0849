// SPDX-License-Identifier: MPL-2.0
// A connector's own operations, which follow those of the host's interface in its table.
#include "ConnecteurEspion.h"
#include "Emplacement.h"
#include "ModuleProxyOOo.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A class's own operations follow the 33 of the interface, which follow the destructor's two.
constexpr std::size_t kApresInterface = 34;

UniChaine L(char const* texte) {
    return {texte, UniChaine::kCodageLitteral};
}

TEST(ExtensionSlots, FollowThoseOfTheInterfaceInOrder) {
    ConnecteurEspion connecteur;
    void* const vue = static_cast<ImplAgentTexteur*>(&connecteur);
    auto const place = [](std::size_t numero) { return kApresInterface + numero; };
    auto const texte = L("mot");

    EXPECT_EQ(std::string("\x07\x11"), AppelleEmplacement<char const*>(vue, place(1)));
    EXPECT_EQ(110, AppelleEmplacement<int>(vue, place(2)));
    EXPECT_EQ("Requete10", connecteur.nom);
    EXPECT_EQ(static_cast<InterfaceAgentTexteur*>(&connecteur),
              AppelleEmplacement<void*>(vue, place(3)));
    EXPECT_TRUE(AppelleEmplacement<bool>(vue, place(4), 1, 2, 3, 4));
    EXPECT_EQ("AccepteIntervallesZone 1 2 3 4", connecteur.nom);
    AppelleEmplacement<void>(vue, place(5), 1, 2, 3, &texte, true);
    EXPECT_EQ("RemplaceDansTexteur 1 2 3 mot 1", connecteur.nom);
    EXPECT_EQ(2, AppelleEmplacement<TexteAvecAttributs>(vue, place(6), 5, 7).Longueur());
    EXPECT_EQ("DonneTexteAvecAttributs 5 7", connecteur.nom);
    EXPECT_EQ(L("selection"), AppelleEmplacement<UniChaine>(vue, place(7)));
    EXPECT_EQ(108, AppelleEmplacement<int>(vue, place(8)));
    EXPECT_EQ("DonneDebutSelectionTexte", connecteur.nom);
    EXPECT_EQ(109, AppelleEmplacement<int>(vue, place(9)));
    EXPECT_EQ("DonneLongueurTexte", connecteur.nom);
    EXPECT_EQ(110, AppelleEmplacement<int>(vue, place(10)));
    EXPECT_EQ("DonneFinSelectionTexte", connecteur.nom);
    EXPECT_EQ(111, AppelleEmplacement<int>(vue, place(11), 8));
    EXPECT_EQ("DonneFinZone 8", connecteur.nom);
    int nombres[] = {1, 2, 3, 4};
    UniChaine contexte;
    AppelleEmplacement<void>(vue, place(12), &nombres[0], &nombres[1], &contexte, &nombres[2],
                             &nombres[3]);
    EXPECT_EQ("DonneTexteContexte 1 2 3 4", connecteur.nom);
    EXPECT_TRUE(AppelleEmplacement<bool>(vue, place(13)));
    EXPECT_EQ("PeutModifier", connecteur.nom);
    EXPECT_TRUE(AppelleEmplacement<bool>(vue, place(14), 1, 2, &texte));
    EXPECT_EQ("PeutCorrigerZone 1 2 mot", connecteur.nom);
    AppelleEmplacement<void>(vue, place(15), 1, 2, 3, &nombres[0], &nombres[1], false);
    EXPECT_EQ("AjusteIntervalleZone 1 2 3 1 2 0", connecteur.nom);
    AppelleEmplacement<void>(vue, place(16), &texte);
    EXPECT_EQ("AvantRemplacement mot", connecteur.nom);
    EXPECT_EQ(117, AppelleEmplacement<int>(vue, place(17), 6));
    EXPECT_EQ("ApresRemplacement 6", connecteur.nom);
    EXPECT_EQ(118, AppelleEmplacement<int>(vue, place(18), 6, 7));
    EXPECT_EQ("SelectionneDansTexteur 6 7", connecteur.nom);
    AppelleEmplacement<void>(vue, place(19));
    EXPECT_EQ("PrepareLecture", connecteur.nom);
    EXPECT_EQ(120, AppelleEmplacement<int>(vue, place(20)));
    EXPECT_EQ("DonneTailleBloc", connecteur.nom);
    EXPECT_TRUE(AppelleEmplacement<bool>(vue, place(21)));
    EXPECT_EQ("RemplaceEspacesInsecables", connecteur.nom);
}

TEST(OwnSlots, CapabilitiesAndTheAgentsOwnThreeFollowTheInterface) {
    ModuleProxyOOo agent(L("a~b"));
    void* const vue = &agent;
    bool const attendues[] = {true, false, false, false, true, true, true};
    for (std::size_t numero = 1; numero <= 7; ++numero) {
        EXPECT_EQ(attendues[numero - 1], AppelleEmplacement<bool>(vue, kApresInterface + numero))
            << numero;
    }
    EXPECT_EQ(UniChaine(), AppelleEmplacement<UniChaine>(vue, kApresInterface + 8));
    EXPECT_EQ(0, AppelleEmplacement<int>(vue, kApresInterface + 9));
    EXPECT_EQ(0, AppelleEmplacement<int>(vue, kApresInterface + 10));
}

} // namespace
