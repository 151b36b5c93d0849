// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/TexteSuivi.h"

#include <memory>
#include <string>
#include <string_view>

inline compagnon::TextePartage Partage(std::u16string_view texte) {
    return std::make_shared<std::u16string const>(texte);
}

/// A host that was just given the text.
inline compagnon::TexteSuivi Suivi(std::u16string_view texte) {
    compagnon::TexteSuivi suivi;
    suivi.Donne(Partage(texte));
    return suivi;
}
