// SPDX-License-Identifier: MPL-2.0
#include "EnvironnementEnfant.h"

#include <glib.h>

#include <algorithm>
#include <iterator>

namespace extension {

namespace {

constexpr char kBus[] = "DBUS_SESSION_BUS_ADDRESS";

/// Set by the office's launcher, or for the office alone: another program would load the office's
/// libraries by them, or take the office's start-up for its own.
constexpr char const* kDuBureau[] = {
    "LD_LIBRARY_PATH", "LD_PRELOAD",         "LD_BIND_NOW",
    "LIBPATH",         "PYTHONHOME",         "PYTHONPATH",
    "UNO_PATH",        "DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"};
constexpr char const* kPrefixesDuBureau[] = {"SAL_", "URE_", "OOO_"};

bool EstDuBureau(std::string const& nom) {
    return std::find(std::begin(kDuBureau), std::end(kDuBureau), nom) != std::end(kDuBureau) ||
           std::any_of(std::begin(kPrefixesDuBureau), std::end(kPrefixesDuBureau),
                       [&](char const* prefixe) { return nom.rfind(prefixe, 0) == 0; });
}

} // namespace

std::vector<std::string> EnvironnementEnfant(std::vector<std::string> const& herite,
                                             std::string const& bus) {
    std::vector<std::string> enfant;
    for (std::string const& variable : herite) {
        std::string const nom = variable.substr(0, variable.find('='));
        if (!EstDuBureau(nom) && (bus.empty() || nom != kBus)) {
            enfant.push_back(variable);
        }
    }
    if (!bus.empty()) {
        enfant.push_back(std::string(kBus) + '=' + bus);
    }
    return enfant;
}

std::vector<std::string> EnvironnementHerite() {
    std::vector<std::string> herite;
    char** const variables = g_get_environ();
    for (char** variable = variables; *variable != nullptr; ++variable) {
        herite.emplace_back(*variable);
    }
    g_strfreev(variables);
    return herite;
}

} // namespace extension
