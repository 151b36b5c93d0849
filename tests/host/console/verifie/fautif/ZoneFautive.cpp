// SPDX-License-Identifier: MPL-2.0
#include "ZoneFautive.h"

TexteAvecAttributs ZoneFautive::DonneTexte() {
    TexteAvecAttributs texte{sdd::ChaineN(texte_)};
    // The string of ours keeps its runs right; one of another maker's, or a bug, may not.
    auto& plages = const_cast<TexteAvecAttributs::Plages&>(texte.DonnePlages());
    if (Faute("styles-dehors")) {
        plages.push_back({5, 500, 1});
    }
    if (Faute("styles-en-desordre")) {
        plages.push_back({8, 10, 1});
        plages.push_back({2, 4, 2});
    }
    return texte;
}
