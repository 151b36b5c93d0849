// SPDX-License-Identifier: MPL-2.0
#include "SondeDuBus.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>

// Addresses and authentication: the D-Bus specification, "Server Addresses" and "Authentication
// Protocol".
namespace {

using Horloge = std::chrono::steady_clock;

/// Closes itself.
class Prise {
  public:
    Prise()
        : descripteur_(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {}
    ~Prise() {
        if (descripteur_ >= 0) {
            ::close(descripteur_);
        }
    }
    Prise(Prise const&) = delete;
    Prise& operator=(Prise const&) = delete;

    int Donne() const noexcept { return descripteur_; }

  private:
    int descripteur_;
};

int ResteMs(Horloge::time_point echeance) {
    using std::chrono::milliseconds;
    auto const reste = std::chrono::duration_cast<milliseconds>(echeance - Horloge::now());
    return static_cast<int>(std::max(reste, milliseconds(0)).count());
}

/// Takes what stands before the separator off the text, and the separator.
std::string_view PrendsJusqua(char separateur, std::string_view& texte) {
    auto const fin = std::min(texte.find(separateur), texte.size());
    auto const debut = texte.substr(0, fin);
    texte.remove_prefix(std::min(fin + 1, texte.size()));
    return debut;
}

/// A value as it was before "%" and two hexadecimal digits stood for some of its bytes.
std::string Decode(std::string_view valeur) {
    std::string octets;
    for (std::size_t i = 0; i < valeur.size(); ++i) {
        if (valeur[i] == '%' && i + 2 < valeur.size()) {
            octets += static_cast<char>(
                std::strtol(std::string(valeur.substr(i + 1, 2)).c_str(), nullptr, 16));
            i += 2;
        } else {
            octets += valeur[i];
        }
    }
    return octets;
}

/// The socket's name in the kernel, an abstract one behind a NUL; nothing for another kind of
/// address.
std::optional<std::string> DonneNomDePrise(std::string_view adresse) {
    if (PrendsJusqua(':', adresse) != "unix") {
        return std::nullopt;
    }
    while (!adresse.empty()) {
        auto valeur = PrendsJusqua(',', adresse);
        auto const cle = PrendsJusqua('=', valeur);
        if (cle == "path") {
            return Decode(valeur);
        }
        if (cle == "abstract") {
            return '\0' + Decode(valeur);
        }
    }
    return std::nullopt;
}

bool EstReliee(Prise const& prise, std::string const& nom, Horloge::time_point echeance) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    if (nom.size() >= sizeof adresse.sun_path) {
        return false;
    }
    std::memcpy(adresse.sun_path, nom.data(), nom.size());
    bool const estAbstrait = nom.empty() || nom[0] == '\0';
    auto const taille = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + nom.size() +
                                               (estAbstrait ? 0 : 1));
    constexpr int kPauseMs = 5;
    while (::connect(prise.Donne(), reinterpret_cast<sockaddr const*>(&adresse), taille) != 0) {
        // EAGAIN: too many wait for this bus to take them. It cannot be polled for.
        if ((errno != EAGAIN && errno != EINTR) || ResteMs(echeance) == 0) {
            return false;
        }
        ::poll(nullptr, 0, std::min(kPauseMs, ResteMs(echeance)));
    }
    return true;
}

/// Any answer will do: whoever answers is awake.
bool EstEveille(std::string const& nom, Horloge::time_point echeance) {
    Prise const prise;
    if (prise.Donne() < 0 || !EstReliee(prise, nom, echeance)) {
        return false;
    }
    // A NUL comes first, with which the kernel tells who we are.
    static constexpr char kPremiersMots[] = "\0AUTH\r\n";
    constexpr auto kTaille = sizeof kPremiersMots - 1;
    if (::send(prise.Donne(), kPremiersMots, kTaille, MSG_NOSIGNAL) !=
        static_cast<ssize_t>(kTaille)) {
        return false;
    }
    pollfd attente{prise.Donne(), POLLIN, 0};
    int prets = 0;
    do {
        prets = ::poll(&attente, 1, ResteMs(echeance));
    } while (prets < 0 && errno == EINTR);
    std::array<char, 64> reponse{};
    return prets > 0 && ::recv(prise.Donne(), reponse.data(), reponse.size(), 0) > 0;
}

} // namespace

namespace sondeDuBus {

std::string DonneAdresse() {
    char const* const adresse = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (adresse != nullptr && *adresse != '\0') {
        return adresse;
    }
    char const* const dossier = std::getenv("XDG_RUNTIME_DIR");
    if (dossier == nullptr || *dossier == '\0') {
        return {};
    }
    auto const chemin = std::string(dossier) + "/bus";
    struct stat fiche {};
    return ::stat(chemin.c_str(), &fiche) == 0 && S_ISSOCK(fiche.st_mode) ? "unix:path=" + chemin
                                                                          : std::string();
}

bool Repond(std::string const& adresses, std::chrono::milliseconds delai) {
    auto const echeance = Horloge::now() + delai;
    std::string_view reste = adresses;
    if (reste.empty()) {
        return true;
    }
    while (!reste.empty()) {
        auto const nom = DonneNomDePrise(PrendsJusqua(';', reste));
        if (!nom || EstEveille(*nom, echeance)) {
            return true;
        }
    }
    return false;
}

} // namespace sondeDuBus
