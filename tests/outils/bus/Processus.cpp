// SPDX-License-Identifier: MPL-2.0
#include "Processus.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::vector<std::string> Environnement(std::map<std::string, std::string> const& ajouts) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable) {
        std::string const texte = *variable;
        if (ajouts.count(texte.substr(0, texte.find('='))) == 0) {
            variables.push_back(texte);
        }
    }
    for (auto const& [nom, valeur] : ajouts) {
        if (!valeur.empty()) {
            variables.emplace_back(nom).append("=").append(valeur);
        }
    }
    return variables;
}

std::vector<char*> Pointeurs(std::vector<std::string>& textes) {
    std::vector<char*> pointeurs;
    pointeurs.reserve(textes.size() + 1);
    for (std::string& texte : textes) {
        pointeurs.push_back(texte.data());
    }
    pointeurs.push_back(nullptr);
    return pointeurs;
}

int Code(int statut) {
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -WTERMSIG(statut);
}

} // namespace

Processus::Processus(std::vector<std::string> const& commande,
                     std::map<std::string, std::string> const& environnement) {
    std::vector<std::string> arguments = commande;
    std::vector<std::string> variables = Environnement(environnement);
    std::vector<char*> const argv = Pointeurs(arguments);
    std::vector<char*> const envp = Pointeurs(variables);
    int tube[2];
    erreurs_ = ::memfd_create("stderr", MFD_CLOEXEC);
    if (erreurs_ < 0 || ::pipe2(tube, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe for a child process");
    }
    pid_t const parent = ::getpid();
    pid_ = ::fork();
    if (pid_ == 0) { // only system calls from here on: the test may have threads
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) {
            ::_exit(127);
        }
        sigset_t aucun;
        sigemptyset(&aucun);
        ::sigprocmask(SIG_SETMASK, &aucun, nullptr);
        ::dup2(tube[1], STDOUT_FILENO);
        ::dup2(erreurs_, STDERR_FILENO);
        ::execve(argv[0], argv.data(), envp.data());
        ::_exit(127);
    }
    ::close(tube[1]);
    sortie_ = tube[0];
    if (pid_ < 0) {
        throw std::runtime_error("cannot start a child process");
    }
}

Processus::~Processus() {
    if (!EstFini()) {
        ::kill(pid_, SIGKILL);
        Attends();
    }
    std::string const erreurs = Erreurs();
    for (char const* const marque : {"Sanitizer", "runtime error:"}) {
        if (erreurs.find(marque) != std::string::npos) {
            ADD_FAILURE() << "process " << pid_ << " reported:\n" << erreurs;
            break;
        }
    }
    ::close(sortie_);
    ::close(erreurs_);
}

std::optional<std::string> Processus::LisLigne(int delaiMs) {
    auto const fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(delaiMs);
    for (;;) {
        if (std::size_t const longueur = tampon_.find('\n'); longueur != std::string::npos) {
            std::string ligne = tampon_.substr(0, longueur);
            tampon_.erase(0, longueur + 1);
            return ligne;
        }
        auto const reste = std::chrono::duration_cast<std::chrono::milliseconds>(
            fin - std::chrono::steady_clock::now());
        pollfd attente{sortie_, POLLIN, 0};
        if (reste.count() < 0 || ::poll(&attente, 1, static_cast<int>(reste.count())) <= 0) {
            return std::nullopt;
        }
        char bloc[4096];
        ssize_t const nombre = ::read(sortie_, bloc, sizeof bloc);
        if (nombre <= 0) {
            return std::nullopt;
        }
        tampon_.append(bloc, static_cast<std::size_t>(nombre));
    }
}

void Processus::Signale(int numero) {
    if (!EstFini()) {
        ::kill(pid_, numero);
    }
}

bool Processus::EstFini() {
    int statut = 0;
    if (!code_ && ::waitpid(pid_, &statut, WNOHANG) == pid_) {
        code_ = Code(statut);
    }
    return code_.has_value();
}

int Processus::Attends(int delaiMs) {
    if (EstFini()) {
        return *code_;
    }
    // A process descriptor becomes readable at the process's end: no polling.
    int const descripteur = static_cast<int>(::syscall(SYS_pidfd_open, pid_, 0));
    pollfd attente{descripteur, POLLIN, 0};
    int pret = 0;
    do {
        pret = ::poll(&attente, 1, delaiMs);
    } while (pret < 0 && errno == EINTR);
    ::close(descripteur);
    if (pret == 0) {
        ADD_FAILURE() << "process " << pid_ << " did not end in time:\n" << Erreurs();
        ::kill(pid_, SIGKILL);
    }
    int statut = 0;
    ::waitpid(pid_, &statut, 0);
    code_ = Code(statut);
    return *code_;
}

std::string Processus::Erreurs() const {
    std::string texte;
    char bloc[4096];
    off_t position = 0;
    for (ssize_t nombre = 0; (nombre = ::pread(erreurs_, bloc, sizeof bloc, position)) > 0;) {
        texte.append(bloc, static_cast<std::size_t>(nombre));
        position += nombre;
    }
    return texte;
}
