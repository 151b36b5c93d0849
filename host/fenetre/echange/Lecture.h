// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

#include <QString>

#include <vector>

namespace hote {

/// A paragraph as it was read. Positions are UTF-16 units of its text.
struct ParagrapheDuDocument {
    QString texte;
    std::vector<EtendueDeLangue> langues; ///< in order, without gaps

    friend bool operator==(ParagrapheDuDocument const& a, ParagrapheDuDocument const& b) noexcept {
        return a.texte == b.texte && a.langues == b.langues;
    }
};

/// Where the person is in the document.
struct PlaceDuCurseur {
    int zone = -1; ///< -1: not known
    int debut = 0;
    int fin = 0;
};

/// A whole document, read.
struct Lecture {
    std::vector<ParagrapheDuDocument> paragraphes;
    PlaceDuCurseur endroit;
};

/// What a reading changes in the one before it: of that one the first `gardesAuDebut` paragraphs
/// and the last `gardesALaFin` stay, and between them stands `milieu`.
struct Ecart {
    int gardesAuDebut = 0;
    int gardesALaFin = 0;
    std::vector<ParagrapheDuDocument> milieu;
};

/// The difference between two readings, and a reading brought up to date by one. `Applique` answers
/// false, and changes nothing, where the difference does not fit.
Ecart Compare(std::vector<ParagrapheDuDocument> const& avant,
              std::vector<ParagrapheDuDocument> const& apres);
bool Applique(Ecart const& ecart, std::vector<ParagrapheDuDocument>& paragraphes);

} // namespace hote
