// SPDX-License-Identifier: MPL-2.0
#include "DossierTemporaire.h"

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr uid_t kPersonne = 65534;

void Cede(fs::path const& chemin) {
    if (::geteuid() == 0 && ::chown(chemin.c_str(), kPersonne, kPersonne) != 0) {
        throw std::runtime_error("cannot give away " + chemin.string());
    }
}

} // namespace

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

fs::path DossierTemporaire::Ecris(std::string_view nom, std::string_view octets) const {
    fs::path chemin = chemin_ / nom;
    std::ofstream fichier(chemin, std::ios::binary | std::ios::trunc);
    fichier.write(octets.data(), static_cast<std::streamsize>(octets.size()));
    if (!fichier.flush()) {
        throw std::runtime_error("cannot write " + chemin.string());
    }
    if (cede_) {
        Cede(chemin);
    }
    return chemin;
}

std::string DossierTemporaire::Lis(std::string_view nom) const {
    return LisOctets(chemin_ / nom);
}

std::string DossierTemporaire::Noms() const {
    std::vector<std::string> noms;
    for (auto const& entree : fs::directory_iterator(chemin_)) {
        noms.push_back(entree.path().filename().string());
    }
    std::sort(noms.begin(), noms.end());
    std::string resultat;
    for (std::string const& nom : noms) {
        resultat += (resultat.empty() ? "" : " ") + nom;
    }
    return resultat;
}

void DossierTemporaire::CedeAPersonne() {
    cede_ = true;
    Cede(chemin_);
}

void DossierTemporaire::DeviensPersonne() {
    if (::geteuid() == 0 &&
        (::setgroups(0, nullptr) != 0 || ::setgid(kPersonne) != 0 || ::setuid(kPersonne) != 0)) {
        ::_exit(99);
    }
}

DossierTemporaire::Interdit::Interdit(fs::path chemin)
    : chemin_(std::move(chemin)) {
    ::chmod(chemin_.c_str(), 0);
    // Root may read everything: it is nobody meanwhile.
    if (::geteuid() == 0 && ::seteuid(kPersonne) != 0) {
        throw std::runtime_error("cannot give up root");
    }
}

void DossierTemporaire::Interdit::Leve() noexcept {
    if (::seteuid(::getuid()) == 0) {
        ::chmod(chemin_.c_str(), S_IRUSR | S_IWUSR);
    }
}

std::string LisOctets(fs::path const& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), std::istreambuf_iterator<char>()};
}
