// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include <optional>
#include <vector>

namespace extension {

/// Where the bookmarks of a paragraph start and end, as it is when this is made. The office's undo
/// moves those beside what was deleted, and takes along those that span no more than that. Main
/// thread; operations may throw UNO exceptions.
class SignetsDuParagraphe {
  public:
    SignetsDuParagraphe(css::uno::Reference<css::frame::XModel> const& modele,
                        css::uno::Reference<css::text::XText> const& texte,
                        css::uno::Reference<css::text::XTextRange> const& paragraphe);

    bool EstVide() const noexcept { return signets_.empty(); }

    /// Puts each where it was, in the paragraph as it was; no undo step holds that. For an undo
    /// step that brings the paragraph back to it.
    void Retablis() const;

  private:
    /// Steps of a cursor from the paragraph's start; nothing for an end that lies outside of it.
    using Place = std::optional<std::size_t>;
    struct Signet {
        rtl::OUString nom;
        Place debut;
        Place fin;
        css::uno::Any cache;     ///< is it hidden?
        css::uno::Any condition; ///< and when
    };

    Place PlaceDe(css::uno::Reference<css::text::XTextRange> const& position) const;
    /// What the bookmark is to span; null where that cannot be told any more.
    css::uno::Reference<css::text::XTextRange>
    EtendueDe(Signet const& signet,
              css::uno::Reference<css::text::XTextRange> const& actuelle) const;
    void Retablis(Signet const& signet) const;

    css::uno::Reference<css::frame::XModel> modele_;
    css::uno::Reference<css::text::XText> texte_;
    css::uno::Reference<css::text::XTextRange> paragraphe_;
    std::vector<Signet> signets_;
};

} // namespace extension
