// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "TexteNu.h"

#include <optional>
#include <string>

namespace hote {

/// The first line of an engine.
struct Accueil {
    QString moteur;
    QString version;
    QString absent; ///< why it cannot work here; empty when it can
};

/// An answer of an engine.
struct ReponseDeMoteur {
    qint64 id;
    QString erreur;                  ///< what it says went wrong; empty when nothing did
    std::vector<Remarque> remarques; ///< of the text that was asked about, ranges not looked at
};

/// The line that asks an engine about a text, with its line feed.
std::string FaisDemande(qint64 id, TexteNu const& texte);

/// Nothing for a line that is not what it should be.
std::optional<Accueil> LisAccueil(std::string const& ligne);
std::optional<ReponseDeMoteur> LisReponse(std::string const& ligne);

} // namespace hote
