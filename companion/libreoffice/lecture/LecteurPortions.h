// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/PlanDePortions.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/uno/Sequence.hxx>

#include <vector>

namespace extension {

/// Something met inside a paragraph that holds text of its own.
struct Rencontre {
    enum class Genre { Note, NoteDeFin, Cadre, Commentaire };
    Genre genre;
    css::uno::Reference<css::uno::XInterface> objet;
};

struct ParagrapheLu {
    compagnon::PlanDePortions plan;
    /// The document's range of each of the plan's portions.
    std::vector<css::uno::Reference<css::text::XTextRange>> etendues;
    std::vector<Rencontre> rencontres;
};

/// What a paragraph is read for. The text is the same for all.
enum class But {
    Lecture,          ///< its text alone
    Correction,       ///< also where links start and end: a question for each portion
    CorrectionSuivie, ///< the same while changes are recorded: what records none stays as it is
};

/// Turns a paragraph's portions, of Writer or of the drawing engine's texts, into a plan. Main
/// thread; operations may throw UNO exceptions.
class LecteurPortions {
  public:
    LecteurPortions();

    /// `suppressions`: how many tracked deletions are open where the paragraph starts; on return,
    /// where it ends. A deletion that goes on from an earlier paragraph shows in no portion.
    ParagrapheLu Lis(css::uno::Reference<css::container::XEnumerationAccess> const& paragraphe,
                     int& suppressions, But but = But::Lecture) const;

  private:
    css::uno::Sequence<rtl::OUString> proprietes_;
};

} // namespace extension
