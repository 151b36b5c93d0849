// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/echange/MotsDuCurseur.h"
#include "langue/Lexique.h"
#include "langue/Thesaurus.h"

#include <map>
#include <memory>

namespace hote {

/// Looks words up in dictionaries, which it opens when they are first needed. One thread.
class ChercheMots {
  public:
    /// What is known of [debut, fin) of `texte`, or of the word at a caret there. `langue`: a BCP
    /// 47 tag; in one that has no dictionary nothing is known.
    MotsDuCurseur Cherche(QString const& texte, int debut, int fin, QString const& langue);

  private:
    /// Null where a dictionary is missing.
    struct Livres {
        std::unique_ptr<Lexique> lexique;
        std::unique_ptr<Thesaurus> thesaurus;
    };
    Livres& Ouvre(Langue langue);

    std::map<Langue, Livres> livres_;
};

} // namespace hote
