// SPDX-License-Identifier: MPL-2.0
#include "Sortie.h"

#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

namespace hote {

bool Sortie::Ecris(std::string const& octets) {
    std::size_t ecrits = 0;
    while (erreur_ == 0 && ecrits < octets.size()) {
        ssize_t const nombre = write(descripteur_, octets.data() + ecrits, octets.size() - ecrits);
        if (nombre >= 0) {
            ecrits += static_cast<std::size_t>(nombre);
        } else if (errno == EAGAIN) {
            pollfd attente{descripteur_, POLLOUT, 0};
            poll(&attente, 1, -1);
        } else if (errno != EINTR) {
            erreur_ = errno;
        }
    }
    return erreur_ == 0;
}

void Sortie::Verifie() const {
    if (erreur_ != 0 && erreur_ != EPIPE) {
        throw ErreurHote(kSortieInterne,
                         Tr("La sortie ne s’écrit pas : {1}", std::strerror(erreur_)));
    }
}

int ReserveSortie() {
    int const copie = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    if (copie < 0 || dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
        throw ErreurHote(kSortieInterne,
                         Tr("La sortie ne s’écrit pas : {1}", std::strerror(errno)));
    }
    return copie;
}

void PrepareFluxStandard() {
    for (int descripteur = 0; descripteur <= 2; ++descripteur) {
        if (fcntl(descripteur, F_GETFD) >= 0) {
            continue;
        }
        // The lowest free number is the one that was found closed.
        if (open("/dev/null", O_RDWR) < 0) {
            _exit(kSortieInterne);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace hote
