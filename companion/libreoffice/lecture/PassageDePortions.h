// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "LecteurPortions.h"

namespace extension {

/// One walk over a paragraph's portions, each read in the way of its kind. Main thread; lives for
/// one paragraph. Operations may throw UNO exceptions.
class PassageDePortions {
  public:
    /// `proprietes`: those of letters; `suppressions`: how many tracked deletions are open, kept up
    /// to date; `lu` gets what is found. All three must outlive this.
    PassageDePortions(css::uno::Sequence<rtl::OUString> const& proprietes, int& suppressions,
                      ParagrapheLu& lu);

    /// Reads on through a paragraph, or through what a portion of it encloses.
    void Lis(css::uno::Reference<css::container::XEnumerationAccess> const& portions);

  private:
    struct Vue; // a portion
    struct Genre;

    static Genre const& DonneGenre(css::uno::Any const& nom);

    void Texte(Vue const& vue);
    void Revision(Vue const& vue);
    void Rien(Vue const& vue);
    void Signet(Vue const& vue);
    void Marque(Vue const& vue);
    void Bord(Vue const& vue);
    void Commentaire(Vue const& vue);
    void Note(Vue const& vue);
    void Cadres(Vue const& vue);
    void SautDeLigne(Vue const& vue);
    void Etiquette(Vue const& vue);
    void Controle(Vue const& vue);
    void Chose(Vue const& vue);

    void Ajoute(Vue const& vue, compagnon::GenrePortion genre, std::u16string source = {},
                std::uint16_t style = 0);
    void LisEntreBords(Vue const& vue,
                       css::uno::Reference<css::container::XEnumerationAccess> const& interieur);

    css::uno::Sequence<rtl::OUString> const& proprietes_;
    int& suppressions_;
    ParagrapheLu& lu_;
};

} // namespace extension
