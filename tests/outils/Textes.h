// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceZoneDeTexte.h"
#include "UniChaine.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

/// A host string from UTF-16, NULs and lone surrogates included.
inline UniChaine U(std::u16string_view unites) {
    return UniChaine(unites.data(), static_cast<int>(unites.size()));
}

/// A text without attributes.
inline TexteAvecAttributs A(std::u16string_view unites) {
    return TexteAvecAttributs(sdd::T(U(unites)));
}

/// The text alone.
inline UniChaine TexteDe(TexteAvecAttributs const& texte) {
    return sdd::T(texte.DonneTexte());
}

/// The attribute at a position, 0 where no run holds it.
std::uint16_t AttributEn(TexteAvecAttributs const& texte, int position);

/// The first place of `motif` at or after `depuis`, or -1.
inline int Trouve(UniChaine const& texte, std::u16string_view motif, int depuis = 0) {
    return texte.VersQString().indexOf(U(motif).VersQString(), depuis);
}

/// `longueur` times the filler that stands for text that was not read.
UniChaine Bourre(int longueur);

// How GoogleTest shows them: with escapes, so that what differs can be seen.
void PrintTo(UniChaine const& texte, std::ostream* sortie);
namespace sdd {
void PrintTo(PlageAttribut const& plage, std::ostream* sortie);
} // namespace sdd
