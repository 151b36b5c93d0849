// SPDX-License-Identifier: MPL-2.0
#include "Voisins.h"

#include "LectureFichier.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

namespace compagnon {

namespace {

constexpr std::string_view kMarque = ".vocalyne-";
constexpr std::string_view kEnCours = ".part";

/// How a file's neighbours begin.
std::string DonneDebut(std::string const& chemin) {
    return "." + Raccourcis(DonneNom(chemin)) + std::string(kMarque);
}

bool FinitPar(std::string_view texte, std::string_view fin) {
    return texte.size() >= fin.size() && texte.substr(texte.size() - fin.size()) == fin;
}

bool TiennentLeMeme(std::string const& a, Descripteur const& b) {
    Descripteur const fichier(::open(a.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    std::string octetsA;
    std::string octetsB;
    return fichier && LisTout(fichier.Donne(), kTailleFichierMax, octetsA) &&
           LisTout(b.Donne(), kTailleFichierMax, octetsB) && octetsA == octetsB;
}

/// Ours, a file, and nobody is writing it.
bool EstAbandonne(Descripteur const& fichier) {
    struct stat etat {};
    return fichier && ::fstat(fichier.Donne(), &etat) == 0 && S_ISREG(etat.st_mode) &&
           etat.st_uid == ::geteuid() && ::flock(fichier.Donne(), LOCK_EX | LOCK_NB) == 0;
}

} // namespace

std::string DonneDossier(std::string const& chemin) {
    std::size_t const barre = chemin.find_last_of('/');
    return barre == 0 ? "/" : chemin.substr(0, barre);
}

std::string DonneNom(std::string const& chemin) {
    return chemin.substr(chemin.find_last_of('/') + 1);
}

std::string Raccourcis(std::string nom) {
    std::size_t fin = std::min<std::size_t>(nom.size(), 200);
    while (fin > 0 && fin < nom.size() && (static_cast<unsigned char>(nom[fin]) & 0xC0) == 0x80) {
        --fin;
    }
    nom.resize(fin);
    return nom;
}

Descripteur CreeCopie(std::string const& chemin, std::string& copie) {
    std::string const nom = DonneNom(chemin);
    std::size_t const point = nom.find_last_of('.');
    bool const avecSuffixe = point != std::string::npos && point > 0 && nom.size() - point < 20;
    std::string const suffixe = avecSuffixe ? nom.substr(point) : std::string();
    std::string const debut = chemin.substr(0, chemin.size() - nom.size()) +
                              Raccourcis(nom.substr(0, nom.size() - suffixe.size())) + ".corrige-";
    for (int numero = 1; numero < 1000; ++numero) {
        copie = debut;
        copie.append(std::to_string(numero)).append(suffixe);
        Descripteur fichier(
            ::open(copie.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (fichier || errno != EEXIST) {
            return fichier;
        }
    }
    return {};
}

Descripteur CreeVoisin(std::string const& chemin, std::string& voisin) {
    voisin = DonneDossier(chemin) + "/" + DonneDebut(chemin) + "XXXXXX" + std::string(kEnCours);
    Descripteur fichier(::mkostemps(voisin.data(), static_cast<int>(kEnCours.size()), O_CLOEXEC));
    if (fichier) {
        ::flock(fichier.Donne(), LOCK_EX | LOCK_NB); // nobody else knows the name
    }
    return fichier;
}

bool Acheve(std::string& voisin) {
    auto const entier = voisin.substr(0, voisin.size() - kEnCours.size());
    if (::renameat2(AT_FDCWD, voisin.c_str(), AT_FDCWD, entier.c_str(), RENAME_NOREPLACE) != 0 &&
        (errno != EINVAL || ::rename(voisin.c_str(), entier.c_str()) != 0)) {
        return false;
    }
    voisin = entier;
    return true;
}

std::vector<std::string> RangeLesRestes(std::string const& chemin) {
    std::vector<std::string> copies;
    std::string const debut = DonneDebut(chemin);
    std::error_code erreur;
    for (auto const& entree : std::filesystem::directory_iterator(DonneDossier(chemin), erreur)) {
        std::string const nom = entree.path().filename().string();
        if (nom.compare(0, debut.size(), debut) != 0) {
            continue;
        }
        std::string const reste = entree.path().string();
        Descripteur const fichier(
            ::open(reste.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
        if (!EstAbandonne(fichier)) {
            continue;
        }
        if (FinitPar(nom, kEnCours) || TiennentLeMeme(chemin, fichier)) {
            ::unlink(reste.c_str());
            continue;
        }
        std::string copie;
        if (CreeCopie(chemin, copie) && ::rename(reste.c_str(), copie.c_str()) == 0) {
            copies.push_back(copie);
        }
    }
    return copies;
}

} // namespace compagnon
