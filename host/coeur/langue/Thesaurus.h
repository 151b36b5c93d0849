// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <vector>

namespace hote {

struct Synonyme {
    QString mot;
    QString note; ///< what the dictionary says of it, such as "antonym"; mostly empty
};

/// One meaning of a word.
struct Sens {
    QString genre; ///< part of speech, in the dictionary's own words; may be empty
    std::vector<Synonyme> synonymes;
};

/// A dictionary of synonyms that can be asked. One thread at a time.
class Thesaurus {
  public:
    virtual ~Thesaurus() = default;
    /// The meanings of that very entry, in the dictionary's order; empty when it has none.
    virtual std::vector<Sens> Cherche(QString const& entree) = 0;
};

} // namespace hote
