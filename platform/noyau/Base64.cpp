// SPDX-License-Identifier: MPL-2.0
#include "Base64.h"

#include <QByteArray>

#include <algorithm>

namespace sdd {

void Base64::Encode(char const* octets, std::size_t taille, TamponMemoire& sortie) {
    // In pieces that end between groups of three: QByteArray counts in int.
    constexpr std::size_t kMorceau = std::size_t{3} << 20;
    while (taille != 0) {
        auto const morceau = std::min(taille, kMorceau);
        auto const code = QByteArray::fromRawData(octets, static_cast<int>(morceau)).toBase64();
        sortie.Ajoute(code.constData(), static_cast<std::size_t>(code.size()));
        octets += morceau;
        taille -= morceau;
    }
}

void Base64::Decode(char const* caracteres, std::size_t taille, TamponMemoire& sortie) {
    auto const octets =
        QByteArray::fromBase64(QByteArray::fromRawData(caracteres, static_cast<int>(taille)));
    sortie.Ajoute(octets.constData(), static_cast<std::size_t>(octets.size()));
}

} // namespace sdd
