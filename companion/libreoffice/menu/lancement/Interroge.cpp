// SPDX-License-Identifier: MPL-2.0
#include "Interroge.h"

#include "PourC.h"

#include <glib.h>

#include <csignal>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace extension {

namespace {

constexpr std::size_t kTexteMax = 65536;
constexpr gint64 kMicroParMilli = 1000;

/// Reads to the end of the stream, or to `echeance` (monotonic, in µs): false then.
bool LisJusquALaFin(int tuyau, gint64 echeance, std::string& texte) {
    std::array<char, 4096> octets{};
    for (;;) {
        gint64 const reste = (echeance - g_get_monotonic_time()) / kMicroParMilli;
        pollfd attente{tuyau, POLLIN, 0};
        if (reste <= 0 || poll(&attente, 1, static_cast<int>(reste)) == 0) {
            return false;
        }
        ssize_t const lus = read(tuyau, octets.data(), octets.size());
        if (lus == 0) {
            return true;
        }
        if (lus < 0 && errno != EINTR) {
            return false;
        }
        // What comes beyond is read all the same, so that the program can go on.
        std::size_t const place = kTexteMax - texte.size();
        texte.append(octets.data(),
                     std::min(place, static_cast<std::size_t>(std::max<ssize_t>(lus, 0))));
    }
}

} // namespace

Dite Interroge(std::vector<std::string> const& ligne, std::vector<std::string> const& environnement,
               int delaiMs) {
    Dite dite;
    GPid enfant = 0;
    int tuyau = -1;
    GError* erreur = nullptr;
    if (g_spawn_async_with_pipes("/", PourC(ligne).data(), PourC(environnement).data(),
                                 G_SPAWN_DO_NOT_REAP_CHILD, nullptr, nullptr, &enfant, nullptr,
                                 &tuyau, nullptr, &erreur) == FALSE) {
        dite.texte = erreur->message;
        g_error_free(erreur);
        return dite;
    }
    dite.finie =
        LisJusquALaFin(tuyau, g_get_monotonic_time() + delaiMs * kMicroParMilli, dite.texte);
    close(tuyau);
    if (!dite.finie) {
        kill(enfant, SIGKILL);
    }
    int etat = 0;
    while (waitpid(enfant, &etat, 0) < 0 && errno == EINTR) {
    }
    g_spawn_close_pid(enfant);
    dite.code = WIFEXITED(etat) ? WEXITSTATUS(etat) : -1;
    return dite;
}

} // namespace extension
