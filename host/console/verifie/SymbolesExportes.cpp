// SPDX-License-Identifier: MPL-2.0
#include "SymbolesExportes.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <cstdint>
#include <set>

namespace hote {

namespace {

struct TablesDynamiques {
    ElfW(Sym) const* symboles = nullptr;
    char const* noms = nullptr;
    std::uint32_t const* hachage = nullptr;
    std::uint32_t const* hachageGnu = nullptr;
};

TablesDynamiques LisTables(link_map const& carte) {
    TablesDynamiques tables;
    for (auto const* entree = carte.l_ld; entree->d_tag != DT_NULL; ++entree) {
        // The loader keeps addresses there as numbers.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        auto const* const adresse = reinterpret_cast<void const*>(entree->d_un.d_ptr);
        switch (entree->d_tag) {
        case DT_SYMTAB:
            tables.symboles = static_cast<ElfW(Sym) const*>(adresse);
            break;
        case DT_STRTAB:
            tables.noms = static_cast<char const*>(adresse);
            break;
        case DT_HASH:
            tables.hachage = static_cast<std::uint32_t const*>(adresse);
            break;
        case DT_GNU_HASH:
            tables.hachageGnu = static_cast<std::uint32_t const*>(adresse);
            break;
        default:
            break;
        }
    }
    return tables;
}

/// The GNU table does not tell how many symbols there are: the last one ends the longest chain.
std::uint32_t CompteGnu(std::uint32_t const* table) {
    std::uint32_t const nombreSeaux = table[0];
    std::uint32_t const premier = table[1];
    std::uint32_t const motsFiltre = table[2];
    auto const* const seaux = table + 4 + motsFiltre * (sizeof(ElfW(Addr)) / sizeof(std::uint32_t));
    auto const* const chaines = seaux + nombreSeaux;
    std::uint32_t dernier = 0;
    for (std::uint32_t i = 0; i < nombreSeaux; ++i) {
        dernier = std::max(dernier, seaux[i]);
    }
    if (dernier < premier) {
        return premier;
    }
    while ((chaines[dernier - premier] & 1U) == 0) {
        ++dernier;
    }
    return dernier + 1;
}

} // namespace

std::vector<std::string> DonneSymbolesExportes(void* bibliotheque) {
    link_map const* carte = nullptr;
    if (dlinfo(bibliotheque, RTLD_DI_LINKMAP, static_cast<void*>(&carte)) != 0) {
        return {};
    }
    TablesDynamiques const tables = LisTables(*carte);
    if (tables.symboles == nullptr || tables.noms == nullptr ||
        (tables.hachage == nullptr && tables.hachageGnu == nullptr)) {
        return {};
    }
    std::uint32_t const nombre =
        tables.hachage != nullptr ? tables.hachage[1] : CompteGnu(tables.hachageGnu);
    static std::set<std::string> const deLEditeur = {"_init", "_fini",       "_edata",
                                                     "_end",  "__bss_start", "_DYNAMIC"};
    std::vector<std::string> exportes;
    for (std::uint32_t i = 0; i < nombre; ++i) {
        auto const& symbole = tables.symboles[i];
        std::string nom = tables.noms + symbole.st_name;
        bool const defini = symbole.st_shndx != SHN_UNDEF;
        // The two classes share the layout of this byte.
        bool const local = ELF64_ST_BIND(symbole.st_info) == STB_LOCAL;
        if (defini && !local && deLEditeur.count(nom) == 0) {
            exportes.push_back(std::move(nom));
        }
    }
    std::sort(exportes.begin(), exportes.end());
    return exportes;
}

} // namespace hote
