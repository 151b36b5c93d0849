// SPDX-License-Identifier: MPL-2.0
#include "Textes.h"

#include <iomanip>

std::uint16_t AttributEn(TexteAvecAttributs const& texte, int position) {
    for (auto const& plage : texte.DonnePlages()) {
        if (plage.debut <= position && position < plage.fin) {
            return plage.attribut;
        }
    }
    return 0;
}

UniChaine Bourre(int longueur) {
    return sdd::T(sdd::ChaineN(longueur, u'\x07'));
}

void PrintTo(UniChaine const& texte, std::ostream* sortie) {
    *sortie << texte.Longueur() << " units \"";
    for (int i = 0; i < texte.Longueur(); ++i) {
        auto const unite = static_cast<unsigned>(texte.VersQString().at(i).unicode());
        if (unite >= ' ' && unite < 0x7F) {
            *sortie << static_cast<char>(unite);
        } else {
            *sortie << "\\u" << std::hex << std::setw(4) << std::setfill('0') << unite << std::dec;
        }
    }
    *sortie << '"';
}

void sdd::PrintTo(PlageAttribut const& plage, std::ostream* sortie) {
    *sortie << '[' << plage.debut << ", " << plage.fin << ") " << plage.attribut;
}
