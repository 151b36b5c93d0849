// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Remarque.h"

#include <functional>
#include <vector>

namespace hote {

/// Is a remark one that the person has not asked for: a rule turned off, a word accepted? Any
/// thread. Given the remark and the text that it is about.
using EstRefusee = std::function<bool(Remarque const&, ParagrapheAExaminer const&)>;

/// What a person should see of an engine's remarks on a paragraph, in reading order: those that
/// stand in the text, touch no filler, stay in the languages that the engine judges, change
/// something, are not refused, and overlap neither each other (the surer, then the shorter is
/// kept) nor a remark already shown.
class Tri {
  public:
    Tri(ParagrapheAExaminer const& paragraphe, std::function<bool(QString const&)> juge,
        EstRefusee const& refuse)
        : paragraphe_(paragraphe)
        , juge_(std::move(juge))
        , refuse_(refuse) {}

    std::vector<Remarque> Trie(std::vector<Remarque> remarques,
                               std::vector<Remarque> const& montrees) const;

  private:
    bool EstBonne(Remarque& remarque) const;

    ParagrapheAExaminer const& paragraphe_;
    std::function<bool(QString const&)> juge_;
    EstRefusee const& refuse_;
};

} // namespace hote
