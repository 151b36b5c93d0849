// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace hote {

/// What two versions of a text have in common, word by word: the longest sequence of words (and of
/// single characters between words) that stands in both. Words are compared whole: a piece of a
/// changed word has no place in the other version.
///
/// Where more than some two thousand words in a row differ, those are taken to have no counterpart.
class Alignement {
  public:
    Alignement(QString const& ancien, QString const& nouveau);

    /// Where [debut, fin) of the old version begins in the new one: when everything in it has a
    /// counterpart there, in one piece with that of a neighbour (a lone word could be another one
    /// that is spelt alike). Of an empty range, both neighbours must have one.
    std::optional<int> Retrouve(int debut, int fin) const;

    /// The place in the new version just behind the last thing before `position` that has a
    /// counterpart there; 0 when there is none.
    int RetrouveAvant(int position) const;

  private:
    struct Morceau {
        int debut;
        int fin;
        int correspondant; ///< rank in the other version, -1 for none
    };
    using Morceaux = std::vector<Morceau>;

    bool EstAppuye(std::size_t premier, std::size_t dernier) const;
    static Morceaux Decoupe(QString const& texte);
    void Apparie(QString const& ancien, QString const& nouveau);
    void ApparieMilieu(QString const& ancien, QString const& nouveau, int debut, int finAncien,
                       int finNouveau);

    Morceaux anciens_;
    Morceaux nouveaux_;
};

} // namespace hote
