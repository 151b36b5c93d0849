// SPDX-License-Identifier: MPL-2.0
#include "Descripteur.h"

#include <algorithm>
#include <cerrno>

namespace compagnon {

bool LisTout(int descripteur, std::size_t max, std::string& sortie) {
    constexpr std::size_t kBloc = std::size_t{64} << 10;
    std::size_t const depart = sortie.size();
    for (;;) {
        std::size_t const lus = sortie.size();
        if (lus - depart > max) {
            return true;
        }
        sortie.resize(lus + kBloc);
        ssize_t const nombre = ::read(descripteur, sortie.data() + lus, kBloc);
        sortie.resize(lus + static_cast<std::size_t>(std::max<ssize_t>(nombre, 0)));
        if (nombre == 0) {
            return true;
        }
        if (nombre < 0 && errno != EINTR) {
            return false;
        }
    }
}

bool EcrisTout(int descripteur, std::string_view octets) {
    while (!octets.empty()) {
        ssize_t const nombre = ::write(descripteur, octets.data(), octets.size());
        if (nombre < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        octets.remove_prefix(static_cast<std::size_t>(nombre));
    }
    return true;
}

} // namespace compagnon
