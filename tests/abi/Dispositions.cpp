// SPDX-License-Identifier: MPL-2.0
// Sizes and places that hosts and other connectors were built against, pinned at compile time. A
// pointer's size is the only thing that may differ between architectures.
#include "InfosApplication.h"
#include "ModuleProxyOOo.h"
#include "PlageStyle.h"

#include <cstddef>

namespace {

constexpr std::size_t kPointeur = sizeof(void*);
constexpr std::size_t kChaine = sizeof(UniChaine);

constexpr std::size_t Arrondi(std::size_t taille) {
    return (taille + kPointeur - 1) / kPointeur * kPointeur;
}

static_assert(kChaine == kPointeur);

// The host's record: the fields in their order, nothing between them.
static_assert(offsetof(InfosApplication, Id) == kChaine);
static_assert(offsetof(InfosApplication, ClasseInitialisation) == 2 * kChaine);
static_assert(offsetof(InfosApplication, NoVersion) == 3 * kChaine);
static_assert(offsetof(InfosApplication, Genre) == 4 * kChaine);
static_assert(offsetof(InfosApplication, Reserve) == 4 * kChaine + 4);
static_assert(offsetof(InfosApplication, Classe) == 4 * kChaine + 8);

// A table pointer, the identifier, the state.
static_assert(sizeof(InterfaceTexteur) == Arrondi(kPointeur + kChaine + 4));
// A table pointer, and the one InterfaceTexteur behind it.
static_assert(sizeof(InterfaceAgentTexteur) == kPointeur + sizeof(InterfaceTexteur));
static_assert(sizeof(InterfaceZoneDeTexte) == kPointeur);
static_assert(sizeof(PlageStyle) == 12);
static_assert(sizeof(InfosApplication::Genre) == 4);

} // namespace
