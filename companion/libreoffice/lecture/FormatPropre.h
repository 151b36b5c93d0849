// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/beans/PropertyState.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Sequence.hxx>

namespace extension {

/// The format that letters have of their own, not from their paragraph or a style. Main thread;
/// operations may throw UNO exceptions.
class FormatPropre {
  public:
    /// None.
    FormatPropre() = default;
    /// That of these letters, which are all of one format. Keeps nothing of the office's.
    explicit FormatPropre(css::uno::Reference<css::text::XTextRange> const& lettres);

    /// Does it say something of all that the other one does?
    bool Couvre(FormatPropre const& autre) const;

    /// Gives it to other letters of the same kind of text. What they have beyond it stays: the
    /// drawing engine takes nothing away again.
    void Mets(css::uno::Reference<css::text::XTextRange> const& lettres) const;

  private:
    css::uno::Sequence<rtl::OUString> noms_;
    css::uno::Sequence<css::beans::PropertyState> etats_;
    css::uno::Sequence<css::uno::Any> valeurs_;
};

/// Has it any format of its own: letters of the drawing engine, or a paragraph (its letters not
/// asked)? Main thread.
bool AUnFormatPropre(css::uno::Reference<css::uno::XInterface> const& objet);

} // namespace extension
