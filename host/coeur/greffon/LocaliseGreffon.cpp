// SPDX-License-Identifier: MPL-2.0
#include "LocaliseGreffon.h"

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <sys/auxv.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace hote {

namespace {

namespace fs = std::filesystem;

constexpr char const* kNomGreffon = "libTexteurOOo.so";

/// The program's own folder, through symbolic links.
fs::path DonneDossierProgramme() {
    std::error_code erreur;
    fs::path programme = fs::read_symlink("/proc/self/exe", erreur);
    if (erreur) { // a root without /proc
        // The kernel hands the name's address over as a number.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        programme = fs::weakly_canonical(reinterpret_cast<char const*>(getauxval(AT_EXECFN)));
    }
    return programme.parent_path();
}

/// Where the plug-in may be, best first.
std::vector<std::string> DonneCheminsGreffon(std::string const& demande) {
    if (!demande.empty()) {
        return {demande};
    }
    char const* const environnement = std::getenv("VOCALYNE_GREFFON");
    if (environnement != nullptr && *environnement != '\0') {
        return {environnement};
    }
    std::vector<std::string> chemins;
    fs::path const dossier = DonneDossierProgramme();
    // The configured place first; then the others, for a program moved to another distribution's
    // layout.
    for (char const* relatif : {VOCALYNE_RELATIF_GREFFONS, "../lib/vocalyne", "../lib64/vocalyne",
                                "../lib/" VOCALYNE_TRIPLET "/vocalyne"}) {
        std::string const chemin = (dossier / relatif / kNomGreffon).lexically_normal().string();
        if (std::find(chemins.begin(), chemins.end(), chemin) == chemins.end()) {
            chemins.push_back(chemin);
        }
    }
    return chemins;
}

} // namespace

std::string LocaliseGreffon(std::string const& demande) {
    auto const chemins = DonneCheminsGreffon(demande);
    for (std::string const& chemin : chemins) {
        std::error_code erreur;
        if (fs::exists(chemin, erreur)) {
            return chemin;
        }
    }
    std::string liste;
    for (std::string const& chemin : chemins) {
        liste += (liste.empty() ? "" : ", ") + chemin;
    }
    throw ErreurHote(kSortieGreffon,
                     Tr("Connecteur introuvable : {1}. Indiquez-le par --greffon FICHIER ou par la "
                        "variable VOCALYNE_GREFFON.",
                        liste));
}

} // namespace hote
