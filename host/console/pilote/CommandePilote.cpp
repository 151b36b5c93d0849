// SPDX-License-Identifier: MPL-2.0
#include "Pilote.h"
#include "commun/MessagesHote.h"
#include "console/Commandes.h"
#include "console/Sortie.h"
#include "greffon/LocaliseGreffon.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace hote {

namespace {

/// Waits until standard input has something to read, and lets the application's events run
/// meanwhile, as in any host.
void AttendsEntree() {
    QEventLoop boucle;
    QSocketNotifier guetteur(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&guetteur, &QSocketNotifier::activated, &boucle, &QEventLoop::quit);
    boucle.exec();
}

/// The next bytes of standard input; 0 at its end.
std::size_t LisEntree(std::array<char, 65536>& octets) {
    for (;;) {
        AttendsEntree();
        ssize_t const nombre = read(STDIN_FILENO, octets.data(), octets.size());
        if (nombre >= 0) {
            return static_cast<std::size_t>(nombre);
        }
        if (errno != EINTR && errno != EAGAIN) {
            throw ErreurHote(kSortieInterne,
                             Tr("L’entrée ne se lit pas : {1}", std::strerror(errno)));
        }
    }
}

void Dialogue(Pilote& pilote, Sortie& sortie) {
    LecteurDeLignes lecteur(Pilote::kLigneMax);
    std::array<char, 65536> octets{};
    bool fini = false;
    while (!fini && !sortie.EstRompue()) {
        std::size_t const nombre = LisEntree(octets);
        fini = nombre == 0;
        if (fini) {
            lecteur.Termine();
        } else {
            lecteur.Ajoute(octets.data(), nombre);
        }
        while (auto const ligne = lecteur.PrendsSuivante()) {
            if (!sortie.Ecris(pilote.Reponds(*ligne))) {
                break;
            }
        }
    }
}

} // namespace

eCodeSortie ExecutePilote(OptionsHote const& options) {
    auto const greffon = Greffon::Charge(LocaliseGreffon(options.greffon));
    Sortie sortie(ReserveSortie());
    {
        Pilote pilote(*greffon);
        Dialogue(pilote, sortie);
    }
    sortie.Verifie();
    return kSortieReussie;
}

} // namespace hote
