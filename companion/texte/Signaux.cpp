// SPDX-License-Identifier: MPL-2.0
#include "Signaux.h"

#include <csignal>
#include <sys/signalfd.h>

namespace compagnon {

namespace {

sigset_t SignauxDeFin() {
    sigset_t ensemble;
    sigemptyset(&ensemble);
    for (int const numero : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        sigaddset(&ensemble, numero);
    }
    return ensemble;
}

} // namespace

void Signaux::Bloque() {
    sigset_t const ensemble = SignauxDeFin();
    pthread_sigmask(SIG_BLOCK, &ensemble, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

Signaux::Signaux() {
    sigset_t const ensemble = SignauxDeFin();
    descripteur_ = Descripteur(::signalfd(-1, &ensemble, SFD_NONBLOCK | SFD_CLOEXEC));
    guetteur_ = std::make_unique<QSocketNotifier>(descripteur_.Donne(), QSocketNotifier::Read);
    connect(guetteur_.get(), &QSocketNotifier::activated, this, [this] {
        signalfd_siginfo recu{};
        while (::read(descripteur_.Donne(), &recu, sizeof recu) == ssize_t{sizeof recu}) {
            Q_EMIT FinDemandee();
        }
    });
}

} // namespace compagnon
