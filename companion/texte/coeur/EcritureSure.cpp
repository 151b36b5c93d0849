// SPDX-License-Identifier: MPL-2.0
#include "EcritureSure.h"

#include "Descripteur.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace compagnon {

namespace {

std::string Dossier(std::string const& chemin) {
    std::size_t const barre = chemin.find_last_of('/');
    return barre == 0 ? "/" : chemin.substr(0, barre);
}

std::string Nom(std::string const& chemin) {
    return chemin.substr(chemin.find_last_of('/') + 1);
}

/// Is the file there, and does it hold just that?
bool Contient(std::string const& chemin, std::string_view attendu) {
    Descripteur const fichier(::open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    std::string octets;
    return fichier && LisTout(fichier.Donne(), attendu.size(), octets) && octets == attendu;
}

/// Makes what was renamed in a folder last; only file systems without it fail, and harmlessly.
void SynchroniseDossier(std::string const& dossier) {
    Descripteur const descripteur(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descripteur) {
        ::fsync(descripteur.Donne());
    }
}

bool EcrisEtSynchronise(int descripteur, std::string_view octets) {
    return EcrisTout(descripteur, octets) && ::fsync(descripteur) == 0;
}

/// The new file gets what the old one had. Another's file keeps its owner only where we may give
/// it; the group's rights then go, as they would be another group's.
bool ReprendsDroits(int descripteur, struct stat const& etat) {
    mode_t mode = etat.st_mode & 07777;
    if (::fchown(descripteur, etat.st_uid, etat.st_gid) != 0 &&
        ::fchown(descripteur, static_cast<uid_t>(-1), etat.st_gid) != 0) {
        mode &= ~static_cast<mode_t>(S_IRWXG | S_ISUID | S_ISGID);
    }
    return ::fchmod(descripteur, mode) == 0;
}

/// A file of a name that nobody had, its name ending in six characters of the system's choice.
Descripteur CreeUnique(std::string& modele) {
    return Descripteur(::mkostemp(modele.data(), O_CLOEXEC));
}

/// No more than so many bytes of a name, whole UTF-8 sequences only: with what is added to it a
/// name may have 255.
std::string Raccourcis(std::string nom) {
    std::size_t fin = std::min<std::size_t>(nom.size(), 200);
    while (fin > 0 && fin < nom.size() && (static_cast<unsigned char>(nom[fin]) & 0xC0) == 0x80) {
        --fin;
    }
    nom.resize(fin);
    return nom;
}

/// "letter.txt" -> "letter.corrige-1.txt", the first number that is free.
Descripteur CreeCopie(std::string const& chemin, std::string& copie) {
    std::string const nom = Nom(chemin);
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

enum class Echange { Fait, Impossible, Echoue };

Echange EchangeNoms(std::string const& a, std::string const& b) {
    if (::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE) == 0) {
        return Echange::Fait;
    }
    bool const inconnu = errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
    return inconnu ? Echange::Impossible : Echange::Echoue;
}

} // namespace

Ecriture EcritureSure::Sauve(std::string_view nouveau, IssueEcriture issue,
                             int erreurSysteme) const {
    std::string copie;
    if (Descripteur const fichier = CreeCopie(chemin_, copie);
        fichier && EcrisEtSynchronise(fichier.Donne(), nouveau)) {
        SynchroniseDossier(Dossier(chemin_));
        return {issue, erreurSysteme, copie};
    } else if (fichier) {
        ::unlink(copie.c_str()); // a part of a text would be taken for the whole
    }
    char const* const temporaires = std::getenv("TMPDIR");
    std::string secours = std::string(temporaires && *temporaires ? temporaires : "/tmp") + "/" +
                          Raccourcis(Nom(chemin_)) + ".corrige-XXXXXX";
    if (Descripteur const fichier = CreeUnique(secours);
        fichier && EcrisEtSynchronise(fichier.Donne(), nouveau)) {
        return {issue, erreurSysteme, secours};
    } else if (fichier) {
        ::unlink(secours.c_str());
    }
    return {IssueEcriture::Perdue, erreurSysteme, {}};
}

Ecriture EcritureSure::Ecris(std::string_view nouveau) {
    if (!Contient(chemin_, lu_)) {
        return Sauve(nouveau, IssueEcriture::Conflit, 0);
    }
    std::string const dossier = Dossier(chemin_);
    std::string voisin = dossier + "/.vocalyne-XXXXXX";
    struct stat etat {};
    Descripteur const fichier = CreeUnique(voisin);
    if (!fichier) {
        return Sauve(nouveau, IssueEcriture::Echec, errno);
    }
    auto const renonce = [&](IssueEcriture issue, int erreur) {
        ::unlink(voisin.c_str());
        return Sauve(nouveau, issue, erreur);
    };
    if (::stat(chemin_.c_str(), &etat) != 0 || !ReprendsDroits(fichier.Donne(), etat) ||
        !EcrisEtSynchronise(fichier.Donne(), nouveau)) {
        return renonce(IssueEcriture::Echec, errno);
    }
    if (avantEchange) {
        avantEchange();
    }
    switch (EchangeNoms(voisin, chemin_)) {
    case Echange::Fait:
        if (!Contient(voisin, lu_)) {
            // Someone wrote it in the last instant. Theirs goes back to its place.
            if (EchangeNoms(voisin, chemin_) != Echange::Fait) {
                return {IssueEcriture::FaiteParDessus, errno, voisin};
            }
            return renonce(IssueEcriture::Conflit, 0);
        }
        ::unlink(voisin.c_str());
        break;
    case Echange::Impossible:
        if (!Contient(chemin_, lu_)) {
            return renonce(IssueEcriture::Conflit, 0);
        }
        if (::rename(voisin.c_str(), chemin_.c_str()) != 0) {
            return renonce(IssueEcriture::Echec, errno);
        }
        break;
    case Echange::Echoue: {
        int const erreur = errno;
        bool const change = !Contient(chemin_, lu_); // it may just have gone
        return renonce(change ? IssueEcriture::Conflit : IssueEcriture::Echec, erreur);
    }
    }
    SynchroniseDossier(dossier);
    return {};
}

} // namespace compagnon
