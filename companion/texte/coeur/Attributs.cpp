// SPDX-License-Identifier: MPL-2.0
#include "Attributs.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace compagnon {

namespace {

constexpr char kListeDAcces[] = "system.posix_acl_access"; // acl(5), as Linux keeps it

/// What `lis` writes into a buffer that it is given; nothing, with `errno` set, where it fails.
template <class Lecture>
std::optional<std::string> LisTampon(Lecture const& lis) {
    for (;;) {
        auto const taille = lis(nullptr, 0);
        if (taille < 0) {
            return std::nullopt;
        }
        std::string octets(static_cast<std::size_t>(taille), '\0');
        auto const lus = lis(octets.data(), octets.size());
        if (lus >= 0) {
            octets.resize(static_cast<std::size_t>(lus));
            return octets;
        }
        if (errno != ERANGE) { // it grew meanwhile
            return std::nullopt;
        }
    }
}

/// Empty on a file system that has none.
std::optional<std::vector<std::string>> DonneNoms(int fichier) {
    auto const liste = LisTampon(
        [&](char* tampon, std::size_t taille) { return ::flistxattr(fichier, tampon, taille); });
    if (!liste) {
        return errno == ENOTSUP ? std::make_optional<std::vector<std::string>>() : std::nullopt;
    }
    std::vector<std::string> noms;
    for (std::size_t debut = 0; debut < liste->size(); debut += noms.back().size() + 1) {
        noms.emplace_back(liste->c_str() + debut);
    }
    return noms;
}

bool Copie(int ancien, int nouveau, std::string const& nom) {
    auto const valeur = LisTampon([&](char* tampon, std::size_t taille) {
        return ::fgetxattr(ancien, nom.c_str(), tampon, taille);
    });
    if (!valeur) {
        return errno == ENODATA; // it has just gone
    }
    if (::fsetxattr(nouveau, nom.c_str(), valeur->data(), valeur->size(), 0) == 0) {
        return true;
    }
    // A security module labels files itself, and lets few programs do so.
    return nom.compare(0, std::strlen("security."), "security.") == 0;
}

} // namespace

bool ReprendsAttributs(int ancien, int nouveau) {
    struct stat etat {};
    auto const noms = DonneNoms(ancien);
    auto const siens = DonneNoms(nouveau);
    if (::fstat(ancien, &etat) != 0 || !noms || !siens) {
        return false;
    }
    auto const aUneListe = [](std::vector<std::string> const& liste) {
        return std::find(liste.begin(), liste.end(), kListeDAcces) != liste.end();
    };
    if (aUneListe(*siens) && ::fremovexattr(nouveau, kListeDAcces) != 0) {
        return false;
    }
    mode_t mode = etat.st_mode & 07777;
    if (::fchown(nouveau, etat.st_uid, etat.st_gid) != 0 &&
        ::fchown(nouveau, static_cast<uid_t>(-1), etat.st_gid) != 0) {
        if (aUneListe(*noms)) {
            return false; // with a list the mode's group is not the group
        }
        mode &= ~static_cast<mode_t>(S_IRWXG | S_ISUID | S_ISGID);
    }
    return ::fchmod(nouveau, mode) == 0 &&
           std::all_of(noms->begin(), noms->end(),
                       [&](std::string const& nom) { return Copie(ancien, nouveau, nom); });
}

} // namespace compagnon
