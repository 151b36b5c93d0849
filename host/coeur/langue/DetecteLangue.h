// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include <QString>

#include <optional>

namespace hote {

/// Finds out in which language a text is written: the one of whose words the dictionary knows more,
/// the small words of each language ("les", "the") counting most. Texts are given one after the
/// other until there are enough.
class DetecteLangue {
  public:
    /// Both dictionaries must outlive the object.
    DetecteLangue(Lexique& francais, Lexique& anglais)
        : francais_(francais)
        , anglais_(anglais) {}

    /// Counts the words of a text; true when enough have been counted.
    bool Compte(QString const& texte);

    /// The language of what was counted; nothing when no word tells.
    std::optional<Langue> DonneLangue() const;

  private:
    Lexique& francais_;
    Lexique& anglais_;
    int mots_ = 0;
    int pointsFrancais_ = 0;
    int pointsAnglais_ = 0;
};

} // namespace hote
