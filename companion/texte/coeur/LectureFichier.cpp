// SPDX-License-Identifier: MPL-2.0
#include "LectureFichier.h"

#include "Descripteur.h"
#include "Paragraphes.h"
#include "modele/Utf.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace compagnon {

namespace {

LectureFichier Echec(ProblemeFichier probleme, int erreurSysteme = 0, std::size_t position = 0) {
    LectureFichier lecture;
    lecture.probleme = probleme;
    lecture.erreurSysteme = erreurSysteme;
    lecture.position = position;
    return lecture;
}

LectureFichier EchecSysteme(int erreur) {
    bool const absent = erreur == ENOENT || erreur == ENOTDIR;
    return Echec(absent ? ProblemeFichier::Introuvable : ProblemeFichier::Illisible, erreur);
}

std::string CheminReel(std::string const& chemin) {
    struct Liberation {
        void operator()(char* texte) const noexcept { std::free(texte); }
    };
    std::unique_ptr<char, Liberation> const reel(::realpath(chemin.c_str(), nullptr));
    return reel ? std::string(reel.get()) : std::string();
}

} // namespace

LectureFichier LisFichier(std::string const& chemin, std::size_t tailleMax) {
    LectureFichier lecture;
    lecture.cheminReel = CheminReel(chemin);
    if (lecture.cheminReel.empty()) {
        return EchecSysteme(errno);
    }
    struct stat etat {};
    // Looked at before opening, as opening a device can do something, and again after, as the name
    // may have been given to something else meanwhile.
    if (::stat(lecture.cheminReel.c_str(), &etat) != 0) {
        return EchecSysteme(errno);
    }
    if (S_ISDIR(etat.st_mode)) {
        return Echec(ProblemeFichier::Dossier);
    }
    if (!S_ISREG(etat.st_mode)) {
        return Echec(ProblemeFichier::PasUnFichier);
    }
    Descripteur const fichier(
        ::open(lecture.cheminReel.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!fichier || ::fstat(fichier.Donne(), &etat) != 0) {
        return EchecSysteme(errno);
    }
    if (!S_ISREG(etat.st_mode)) {
        return Echec(ProblemeFichier::PasUnFichier);
    }
    if (!LisTout(fichier.Donne(), tailleMax, lecture.octets)) {
        return EchecSysteme(errno);
    }
    if (lecture.octets.size() > tailleMax) {
        return Echec(ProblemeFichier::TropGrand);
    }
    std::size_t const nul = lecture.octets.find('\0');
    if (nul != std::string::npos) {
        return Echec(ProblemeFichier::Binaire, 0, nul);
    }
    std::size_t const faux = PremierOctetNonUtf8(lecture.octets);
    if (faux != std::string::npos) {
        return Echec(ProblemeFichier::PasUtf8, 0, faux);
    }
    if (CompteParagraphes(lecture.octets) > kParagraphesMax) {
        return Echec(ProblemeFichier::TropDeLignes);
    }
    lecture.inscriptible = ::access(lecture.cheminReel.c_str(), W_OK) == 0;
    lecture.peripherique = etat.st_dev;
    lecture.numero = etat.st_ino;
    return lecture;
}

} // namespace compagnon
