// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

#include <utility>

namespace hote {

/// A mistake in a zone's text: a remark, and the units of its range as they stand.
struct Faute : Remarque {
    QString mot;

    Faute() = default;
    Faute(Remarque remarque, QString const& texte)
        : Remarque(std::move(remarque))
        , mot(texte.mid(debut, fin - debut)) {}
};

} // namespace hote
