// SPDX-License-Identifier: MPL-2.0
#include "LigneDeTerminal.h"

namespace extension {

namespace {

// Around the host, and not an option of it: what the host says when it cannot even start must stay
// to be read too. First the window's title.
constexpr char kEnveloppe[] = R"(printf '\033]0;Vocalyne\007'
invite=$1
shift
"$@"
printf '\n%s ' "$invite"
read -r reponse
)";

} // namespace

std::vector<std::string> LigneDeTerminal(std::vector<std::string> const& terminal,
                                         std::string const& invite, std::string const& hote,
                                         std::vector<std::string> const& arguments) {
    std::vector<std::string> ligne = terminal;
    ligne.insert(ligne.end(), {"/bin/sh", "-c", kEnveloppe, "vocalyne", invite, hote});
    ligne.insert(ligne.end(), arguments.begin(), arguments.end());
    return ligne;
}

} // namespace extension
