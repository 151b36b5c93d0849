// SPDX-License-Identifier: MPL-2.0
// Sizes and places that hosts and other connectors were built against, pinned at compile time. A
// pointer's size is the only thing that may differ between architectures.
#include "Contrat.h"
#include "ImplZoneDeTexteTEMP.h"
#include "InfosApplication.h"
#include "ModuleProxyOOo.h"
#include "ZoneDeTexteOOoProxy.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace {

constexpr std::size_t kPointeur = sizeof(void*);
constexpr std::size_t kChaine = sizeof(UniChaine);

constexpr std::size_t Arrondi(std::size_t taille) {
    return (taille + kPointeur - 1) / kPointeur * kPointeur;
}

constexpr std::size_t kListe = 3 * kPointeur;

static_assert(kChaine == kPointeur);
static_assert(sizeof(sdd::ChaineN) == kPointeur);
static_assert(sizeof(TexteAvecAttributs) == sizeof(sdd::ChaineN) + kListe);
static_assert(sizeof(int) == 4);
static_assert(sizeof(bool) == 1);

// The host's record: the fields in their order, nothing between them.
static_assert(std::is_standard_layout_v<InfosApplication>);
static_assert(offsetof(InfosApplication, Application) == 0);
static_assert(offsetof(InfosApplication, Id) == kChaine);
static_assert(offsetof(InfosApplication, ClasseInitialisation) == 2 * kChaine);
static_assert(offsetof(InfosApplication, NoVersion) == 3 * kChaine);
static_assert(offsetof(InfosApplication, Genre) == 4 * kChaine);
static_assert(offsetof(InfosApplication, Reserve) == 4 * kChaine + 4);
static_assert(offsetof(InfosApplication, Classe) == 4 * kChaine + 8);
static_assert(offsetof(InfosApplication, TexteFenetre) == 5 * kChaine + 8);
static_assert(offsetof(InfosApplication, Titre) == 6 * kChaine + 8);
static_assert(std::is_same_v<decltype(InfosApplication::Genre), std::int32_t>);

// A table pointer, the identifier, the state.
static_assert(sizeof(InterfaceTexteur) == Arrondi(kPointeur + kChaine + 4));
// A table pointer, and the one InterfaceTexteur behind it.
static_assert(sizeof(InterfaceAgentTexteur) == kPointeur + sizeof(InterfaceTexteur));
static_assert(sizeof(InterfaceZoneDeTexte) == kPointeur);
static_assert(sizeof(contrat::PlageDeStyle) == 12);

// A table pointer, two strings, the boundaries, the context's bounds, the zones, the last integer;
// then the one InterfaceTexteur, as in every agent.
constexpr std::size_t kAgent = Arrondi(3 * kPointeur + kListe + 8 + kListe + 4);
static_assert(sizeof(ImplAgentTexteur) == kAgent + sizeof(InterfaceTexteur));
// In front of that, a table pointer, the proxy, the reserved list.
static_assert(sizeof(ModuleProxyOOo) == 2 * kPointeur + kListe + sizeof(ImplAgentTexteur));
// Agent, text, start, end, the selection, the mark.
static_assert(sizeof(ImplZoneDeTexteTEMP) ==
              Arrondi(2 * kPointeur + sizeof(TexteAvecAttributs) + 16 + 1));
// Proxy, agent, text, the selection, the name, the runs.
static_assert(sizeof(ZoneDeTexteOOoProxy) == 3 * kPointeur + kChaine + 8 + kChaine + kListe);

} // namespace
