// SPDX-License-Identifier: MPL-2.0
#include "DemandeLigne.h"

namespace hote {

std::optional<QString> DemandeLigne(std::istream& entree, Sortie& sortie,
                                    std::string const& invite) {
    sortie.Ecris("      " + invite + " > ");
    std::string ligne;
    if (sortie.EstRompue() || !std::getline(entree, ligne)) {
        sortie.Ecris("\n");
        return std::nullopt;
    }
    return QString::fromStdString(ligne);
}

} // namespace hote
