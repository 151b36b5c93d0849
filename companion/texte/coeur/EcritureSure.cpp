// SPDX-License-Identifier: MPL-2.0
#include "EcritureSure.h"

#include "Attributs.h"
#include "Descripteur.h"
#include "Voisins.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>

namespace compagnon {

namespace {

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

/// A file of a name that nobody had, its name ending in six characters of the system's choice.
Descripteur CreeUnique(std::string& modele) {
    return Descripteur(::mkostemp(modele.data(), O_CLOEXEC));
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
        SynchroniseDossier(DonneDossier(chemin_));
        return {issue, erreurSysteme, copie};
    } else if (fichier) {
        ::unlink(copie.c_str()); // a part of a text would be taken for the whole
    }
    char const* const temporaires = std::getenv("TMPDIR");
    std::string secours = std::string(temporaires && *temporaires ? temporaires : "/tmp") + "/" +
                          Raccourcis(DonneNom(chemin_)) + ".corrige-XXXXXX";
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
    std::string const dossier = DonneDossier(chemin_);
    std::string voisin;
    Descripteur const fichier = CreeVoisin(chemin_, voisin);
    if (!fichier) {
        return Sauve(nouveau, IssueEcriture::Echec, errno);
    }
    auto const renonce = [&](IssueEcriture issue, int erreur) {
        ::unlink(voisin.c_str());
        return Sauve(nouveau, issue, erreur);
    };
    Descripteur const ancien(::open(chemin_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!ancien || !ReprendsAttributs(ancien.Donne(), fichier.Donne()) ||
        !EcrisEtSynchronise(fichier.Donne(), nouveau) || !Acheve(voisin)) {
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
