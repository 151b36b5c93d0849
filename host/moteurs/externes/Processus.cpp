// SPDX-License-Identifier: MPL-2.0
#include "Processus.h"

#include "commun/MessagesHote.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

extern char** environ;

namespace hote {

namespace {

using Horloge = std::chrono::steady_clock;

// How soon a request to stop is seen.
constexpr int kTrancheMs = 20;
constexpr auto kFinMs = std::chrono::milliseconds(500);
constexpr std::size_t kPlainteMax = 4096;

void Ferme(int& descripteur) {
    if (descripteur >= 0) {
        close(descripteur);
        descripteur = -1;
    }
}

struct Tuyau {
    int lecture = -1;
    int ecriture = -1;

    Tuyau() {
        std::array<int, 2> bouts{};
        if (pipe2(bouts.data(), O_CLOEXEC) != 0) {
            throw ErreurDeMoteur(false, std::strerror(errno));
        }
        lecture = bouts[0];
        ecriture = bouts[1];
    }
    ~Tuyau() {
        Ferme(lecture);
        Ferme(ecriture);
    }
    Tuyau(Tuyau const&) = delete;
    Tuyau& operator=(Tuyau const&) = delete;

    int PrendsLecture() { return Prends(lecture); }
    int PrendsEcriture() { return Prends(ecriture); }

  private:
    static int Prends(int& descripteur) {
        int const pris = descripteur;
        descripteur = -1;
        fcntl(pris, F_SETFL, fcntl(pris, F_GETFL) | O_NONBLOCK);
        return pris;
    }
};

void BloqueSigpipe() {
    sigset_t signaux;
    sigemptyset(&signaux);
    sigaddset(&signaux, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signaux, nullptr);
}

} // namespace

Processus::Processus(std::vector<std::string> const& commande) {
    BloqueSigpipe();
    Tuyau entree;
    Tuyau sortie;
    Tuyau erreur;
    Lance(commande, entree.lecture, sortie.ecriture, erreur.ecriture);
    entree_ = entree.PrendsEcriture();
    sortie_ = sortie.PrendsLecture();
    erreur_ = erreur.PrendsLecture();
}

void Processus::Lance(std::vector<std::string> const& commande, int entree, int sortie,
                      int erreur) {
    std::vector<char*> arguments;
    arguments.reserve(commande.size() + 1);
    for (std::string const& argument : commande) {
        arguments.push_back(const_cast<char*>(argument.c_str())); // only read
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, entree, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, sortie, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, erreur, STDERR_FILENO);
    posix_spawnattr_t attributs;
    posix_spawnattr_init(&attributs);
    posix_spawnattr_setflags(&attributs, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    sigset_t aucun;
    sigemptyset(&aucun);
    posix_spawnattr_setsigmask(&attributs, &aucun);
    sigset_t ordinaires;
    sigemptyset(&ordinaires);
    for (int const signal : {SIGPIPE, SIGINT, SIGTERM}) {
        sigaddset(&ordinaires, signal);
    }
    posix_spawnattr_setsigdefault(&attributs, &ordinaires);
    int const issue = commande.empty() ? ENOENT
                                       : posix_spawnp(&pid_, arguments[0], &actions, &attributs,
                                                      arguments.data(), environ);
    posix_spawnattr_destroy(&attributs);
    posix_spawn_file_actions_destroy(&actions);
    if (issue != 0) {
        pid_ = -1;
        throw ErreurDeMoteur(issue == ENOENT,
                             Tr("{1} ne démarre pas : {2}",
                                commande.empty() ? std::string() : commande.front(),
                                std::strerror(issue)));
    }
}

Processus::~Processus() {
    Ferme(entree_);
    // Its output ends when it ends: no need to look again and again.
    auto const echeance = Horloge::now() + kFinMs;
    while (!finie_ && Horloge::now() < echeance) {
        AttendsFlux(false, echeance);
        lu_.clear();
    }
    kill(pid_, SIGKILL);
    while (waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) {
    }
    Ferme(sortie_);
    Ferme(erreur_);
}

Processus::Issue Processus::Ecris(std::string const& octets, Instant echeance, Arret const& arret) {
    std::size_t ecrits = 0;
    while (ecrits < octets.size()) {
        if (arret.EstDemande()) {
            return Issue::Arretee;
        }
        if (lu_.size() > kLigneMax) {
            return Issue::TropLongue;
        }
        if (Horloge::now() >= echeance) {
            return Issue::EnRetard;
        }
        if (!AttendsFlux(true, echeance)) {
            continue;
        }
        ssize_t const n = write(entree_, octets.data() + ecrits, octets.size() - ecrits);
        if (n > 0) {
            ecrits += static_cast<std::size_t>(n);
        } else if (n < 0 && errno != EAGAIN && errno != EINTR) {
            return Issue::Finie;
        }
    }
    return Issue::Faite;
}

Processus::Issue Processus::LisLigne(std::string& ligne, Instant echeance, Arret const& arret) {
    std::size_t cherche = 0;
    for (;;) {
        auto const fin = lu_.find('\n', cherche);
        if (fin != std::string::npos) {
            ligne = lu_.substr(0, fin);
            lu_.erase(0, fin + 1);
            return Issue::Faite;
        }
        cherche = lu_.size();
        if (lu_.size() > kLigneMax) {
            return Issue::TropLongue;
        }
        if (finie_) {
            return Issue::Finie;
        }
        if (arret.EstDemande()) {
            return Issue::Arretee;
        }
        if (Horloge::now() >= echeance) {
            return Issue::EnRetard;
        }
        AttendsFlux(false, echeance);
    }
}

bool Processus::AttendsFlux(bool ecriture, Instant echeance) {
    auto const reste =
        std::chrono::duration_cast<std::chrono::milliseconds>(echeance - Horloge::now());
    int const attente = std::clamp(static_cast<int>(reste.count()), 0, kTrancheMs);
    std::array<pollfd, 3> flux{{{finie_ ? -1 : sortie_, POLLIN, 0},
                                {erreur_, POLLIN, 0},
                                {ecriture ? entree_ : -1, POLLOUT, 0}}};
    if (poll(flux.data(), flux.size(), attente) <= 0) {
        return false;
    }
    if (flux[0].revents != 0) {
        LisSortie();
    }
    if (flux[1].revents != 0) {
        LisErreur();
    }
    return flux[2].revents != 0;
}

void Processus::LisSortie() {
    std::array<char, 65536> octets{};
    ssize_t const n = read(sortie_, octets.data(), octets.size());
    if (n > 0) {
        lu_.append(octets.data(), static_cast<std::size_t>(n));
    } else if (n == 0 || (errno != EAGAIN && errno != EINTR)) {
        finie_ = true;
    }
}

void Processus::LisErreur() {
    std::array<char, kPlainteMax> octets{};
    ssize_t const n = read(erreur_, octets.data(), octets.size());
    if (n > 0) {
        plainte_.append(octets.data(), static_cast<std::size_t>(n));
        plainte_.erase(0, plainte_.size() - std::min(plainte_.size(), kPlainteMax));
    } else if (n == 0 || (errno != EAGAIN && errno != EINTR)) {
        Ferme(erreur_);
    }
}

std::string Processus::DonneDerniereErreur() const {
    auto const fin = plainte_.find_last_not_of("\r\n ");
    if (fin == std::string::npos) {
        return {};
    }
    auto const saut = plainte_.find_last_of("\r\n", fin);
    auto const debut = saut == std::string::npos ? 0 : saut + 1;
    return plainte_.substr(debut, fin - debut + 1);
}

} // namespace hote
