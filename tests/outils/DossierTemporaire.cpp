// SPDX-License-Identifier: MPL-2.0
#include "DossierTemporaire.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

DossierTemporaire::DossierTemporaire() {
    std::string modele = (fs::temp_directory_path() / "vocalyne-essai-XXXXXX").string();
    if (!::mkdtemp(modele.data())) {
        throw std::runtime_error("cannot make a temporary folder");
    }
    chemin_ = fs::canonical(modele);
}

DossierTemporaire::~DossierTemporaire() {
    std::error_code sansErreur;
    fs::permissions(chemin_, fs::perms::owner_all, sansErreur); // a test may have locked it
    fs::remove_all(chemin_, sansErreur);
}

fs::path DossierTemporaire::Ecris(std::string const& nom, std::string_view octets) const {
    fs::path chemin = chemin_ / nom;
    std::ofstream fichier(chemin, std::ios::binary | std::ios::trunc);
    fichier.write(octets.data(), static_cast<std::streamsize>(octets.size()));
    if (!fichier.flush()) {
        throw std::runtime_error("cannot write " + chemin.string());
    }
    return chemin;
}

std::string LisOctets(fs::path const& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), std::istreambuf_iterator<char>()};
}
