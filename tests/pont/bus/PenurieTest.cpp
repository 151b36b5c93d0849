// SPDX-License-Identifier: MPL-2.0
// Memory that runs out, at each point in turn where this code asks for some.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <link.h>
#include <memory>
#include <new>
#include <string>
#include <string_view>

namespace {

/// How many more requests of this code's are met before one is not; none is refused at 0.
thread_local long avantLaPenurie = 0;

struct Etendue {
    std::uintptr_t debut;
    std::uintptr_t fin;
};

/// Where the code stands whose requests count: this program, which the bridge is linked into, our
/// libraries, and the standard library, which asks on behalf of both. Not Qt's: it has its own
/// ways.
struct Code {
    Etendue etendues[64];
    std::size_t nombre = 0;
};

int Retiens(dl_phdr_info* objet, std::size_t /*taille*/, void* donnees) {
    auto& code = *static_cast<Code*>(donnees);
    std::string_view const nom = objet->dlpi_name;
    if (!nom.empty() && nom.find("libOutils") == nom.npos && nom.find("libstdc++") == nom.npos) {
        return 0;
    }
    for (int i = 0; i < objet->dlpi_phnum; ++i) {
        auto const& segment = objet->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0 &&
            code.nombre < std::size(code.etendues)) {
            auto const debut = objet->dlpi_addr + segment.p_vaddr;
            code.etendues[code.nombre++] = {debut, debut + segment.p_memsz};
        }
    }
    return 0;
}

bool EstANous(void const* demandeur) {
    static Code const code = [] {
        Code tout;
        dl_iterate_phdr(Retiens, &tout);
        return tout;
    }();
    auto const ici = reinterpret_cast<std::uintptr_t>(demandeur);
    return std::any_of(code.etendues, code.etendues + code.nombre, [ici](Etendue const& etendue) {
        return ici >= etendue.debut && ici < etendue.fin;
    });
}

bool Manque(void const* demandeur) {
    return avantLaPenurie > 0 && EstANous(demandeur) && --avantLaPenurie == 0;
}

void* Alloue(std::size_t taille, void const* demandeur) {
    void* const place = Manque(demandeur) ? nullptr : std::malloc(taille == 0 ? 1 : taille);
    if (place == nullptr) {
        throw std::bad_alloc();
    }
    return place;
}

} // namespace

void* operator new(std::size_t taille) {
    return Alloue(taille, __builtin_return_address(0));
}
void* operator new[](std::size_t taille) {
    return Alloue(taille, __builtin_return_address(0));
}
void operator delete(void* place) noexcept {
    std::free(place);
}
void operator delete[](void* place) noexcept {
    std::free(place);
}
void operator delete(void* place, std::size_t /*taille*/) noexcept {
    std::free(place);
}
void operator delete[](void* place, std::size_t /*taille*/) noexcept {
    std::free(place);
}

namespace {

class BridgeShortOfMemory : public testing::Test {
  protected:
    /// One thing that a host asks for; memory may run out in it. What it throws then is the host's
    /// to catch.
    static void Essaie(std::function<void()> const& demande) {
        try {
            demande();
        } catch (std::bad_alloc const&) {
            ++manques_;
        }
    }

    /// A host's work, which goes on after whatever failed; memory runs out at the `rang`-th
    /// request. False when there were fewer.
    bool Travaille(long rang) {
        manques_ = 0;
        CollectionZonesDeTexte zones;
        std::unique_ptr<AgentDeTest> agent;
        auto const identifiant = bureau_.Identifiant();
        auto const apres = Uc("chien");
        auto const avant = Uc("chat");
        avantLaPenurie = rang;
        Essaie([&] { agent = std::make_unique<AgentDeTest>(identifiant); });
        if (agent) {
            Essaie([&] { agent->Initialise(); });
            Essaie([&] { agent->SynchronisePositions(zones); });
            if (zones.DonneNombre() > 0) {
                auto& zone = *zones.DonneZone(0);
                Essaie([&] { zone.PeutCorriger(4, 8, avant); });
                Essaie([&] { zone.CorrigeDansTexteur(4, 8, apres, false); });
                Essaie([&] { zone.SelectionneIntervalle(0, 3); });
            }
            Essaie([&] { agent->DonneTitreDocument(); });
            Essaie([&] { agent->AjusteSelectionPourOutils(0, 0); });
            Essaie([&] { agent->DonneContexteSelection(); });
        }
        bool const atteint = avantLaPenurie == 0;
        avantLaPenurie = 0;
        return atteint;
    }

    /// What the document holds, to an agent with all the memory that it wants; puts it back.
    std::string LisEtRetablis() {
        AgentDeTest agent(bureau_.Identifiant());
        CollectionZonesDeTexte zones;
        EXPECT_TRUE(agent.Initialise());
        EXPECT_TRUE(agent.SynchronisePositions(zones));
        EXPECT_EQ(zones.DonneNombre(), 1);
        auto& zone = *zones.DonneZone(0);
        auto texte = S(sdd::T(zone.DonneTexte().DonneTexte()));
        if (texte == "Les chien dort.") {
            EXPECT_TRUE(zone.CorrigeDansTexteur(4, 9, Uc("chat"), false));
        }
        return texte;
    }

    static inline int manques_ = 0;
    BusPrive bus_;
    BureauDeTest bureau_{{"lettre.txt", "Les chat dort.\n"}};
};

TEST_F(BridgeShortOfMemory, AtAnyPointThrowsOrDoesWithoutAndTheDocumentIsWhole) {
    long rang = 1;
    int entiers = 0;
    for (; Travaille(rang) && !HasFailure(); ++rang) {
        auto const texte = LisEtRetablis();
        EXPECT_TRUE(texte == "Les chat dort." || texte == "Les chien dort.")
            << texte << ", short of memory at request " << rang;
        entiers += texte == "Les chien dort." ? 1 : 0;
    }
    EXPECT_EQ(manques_, 0) << "nothing was missing in the last round";
    EXPECT_EQ(LisEtRetablis(), "Les chien dort.") << "and it did all its work";
    RecordProperty("requests", static_cast<int>(rang - 1));
    EXPECT_GT(rang, 20) << "the count finds this code's requests";
    EXPECT_GT(entiers, 0) << "what fails before or after a correction leaves it alone";
}

} // namespace
