// SPDX-License-Identifier: MPL-2.0
#include "ServeurXFeint.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>

ServeurXFeint::ServeurXFeint(QByteArray reponse)
    : reponse_(std::move(reponse)) {
    prise_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    // Clients try the abstract address first; tests running beside this one have others.
    for (numero_ = 4000; numero_ < 5000; ++numero_) {
        sockaddr_un adresse{};
        adresse.sun_family = AF_UNIX;
        int const longueur = std::snprintf(adresse.sun_path + 1, sizeof adresse.sun_path - 1,
                                           "/tmp/.X11-unix/X%d", numero_);
        auto const taille = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + longueur);
        if (bind(prise_, reinterpret_cast<sockaddr const*>(&adresse), taille) == 0 &&
            listen(prise_, 16) == 0) {
            fil_ = std::thread([this] { Sers(); });
            return;
        }
    }
    throw std::runtime_error("no free display number");
}

ServeurXFeint::~ServeurXFeint() {
    shutdown(prise_, SHUT_RDWR); // ends the accept
    fil_.join();
    close(prise_);
}

void ServeurXFeint::Sers() {
    for (;;) {
        int const client = accept4(prise_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) {
            return;
        }
        ++connexions_;
        std::array<char, 256> demande;
        if (read(client, demande.data(), demande.size()) > 0 && !reponse_.isEmpty()) {
            static_cast<void>(
                !write(client, reponse_.constData(), static_cast<std::size_t>(reponse_.size())));
        }
        close(client);
    }
}
