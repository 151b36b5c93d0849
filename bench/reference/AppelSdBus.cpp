// SPDX-License-Identifier: MPL-2.0
#include "AppelSdBus.h"

#include "Contrat.h"

#include <systemd/sd-bus.h>

#include <cstring>
#include <stdexcept>

namespace banc {

namespace {

int Verifie(int resultat) {
    if (resultat < 0) {
        throw std::runtime_error(std::string("sd-bus: ") + std::strerror(-resultat));
    }
    return resultat;
}

struct Rends {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};
using Message = std::unique_ptr<sd_bus_message, Rends>;

} // namespace

AppelSdBus::AppelSdBus(std::string const& instance)
    : service_(contrat::kPrefixeService + instance)
    , chemin_(contrat::kPrefixeChemin + instance) {
    Verifie(sd_bus_open_user(&bus_));
}

AppelSdBus::~AppelSdBus() {
    sd_bus_flush_close_unref(bus_);
}

bool AppelSdBus::PermetsRetourDeCharriot() {
    sd_bus_message* reponse = nullptr;
    Verifie(sd_bus_call_method(bus_, service_.c_str(), chemin_.c_str(), contrat::kInterfaceProxy,
                               "PermetsRetourDeCharriot", nullptr, &reponse, ""));
    Message const tenue(reponse);
    int permis = 0;
    Verifie(sd_bus_message_read(reponse, "b", &permis));
    return permis != 0;
}

void AppelSdBus::SynchronisePositions(std::string const& identifiant,
                                      std::function<void(std::string_view)> const& lis) {
    sd_bus_message* reponse = nullptr;
    Verifie(sd_bus_call_method(bus_, service_.c_str(), chemin_.c_str(), contrat::kInterfaceProxy,
                               "SynchronisePositions", nullptr, &reponse, "s",
                               identifiant.c_str()));
    Message const tenue(reponse);
    char const* texte = nullptr;
    Verifie(sd_bus_message_read(reponse, "s", &texte));
    lis(texte);
}

} // namespace banc
