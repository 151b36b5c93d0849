// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "LecteurPortions.h"
#include "commun/Proprietes.h"

#include <cstddef>
#include <map>
#include <vector>

namespace extension {

/// One walk over a paragraph's portions, each read in the way of its kind. Main thread; lives for
/// one paragraph. Operations may throw UNO exceptions.
class PassageDePortions {
  public:
    /// `proprietes`: those of letters; `suppressions`: how many tracked deletions are open, kept up
    /// to date; `lu` gets what is found. All three must outlive this.
    PassageDePortions(css::uno::Sequence<rtl::OUString> const& proprietes, But but,
                      int& suppressions, ParagrapheLu& lu);

    /// Reads a paragraph.
    void LisTout(css::uno::Reference<css::container::XEnumerationAccess> const& portions);

  private:
    /// A portion as the office gives it, with the values of its letters' properties.
    struct Vue {
        css::uno::Reference<css::text::XTextRange> etendue;
        css::uno::Any const* valeurs;
        bool exclue; ///< deleted with changes tracked, or hidden

        css::uno::Reference<css::beans::XPropertySet> Proprietes() const {
            return css::uno::Reference<css::beans::XPropertySet>(etendue, css::uno::UNO_QUERY);
        }
        bool EstPonctuelle() const { return EstVrai(Valeur(Proprietes(), "IsCollapsed")); }
    };
    struct Genre;

    static Genre const& DonneGenre(css::uno::Any const& nom);

    /// Reads on, through a paragraph or through what a portion of it encloses.
    void Lis(css::uno::Reference<css::container::XEnumerationAccess> const& portions);

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
    void Champ(Vue const& vue);
    void Saisie(Vue const& vue, rtl::OUString const& lettres);
    void DebutDeChamp(Vue const& vue);
    void MilieuDeChamp(Vue const& vue);
    void FinDeChamp(Vue const& vue);
    void Borne(Vue const& vue);
    void Chose(Vue const& vue);

    void Ajoute(Vue const& vue, compagnon::GenrePortion genre, std::u16string source = {},
                std::uint16_t style = 0);
    void LisEntreBords(Vue const& vue,
                       css::uno::Reference<css::container::XEnumerationAccess> const& interieur);

    /// Is this the inside of what tells a field what to show?
    bool EstDansUneCommande() const;
    /// Letters of another link than those before end the one and start the other.
    void SuisLien(Vue const& vue);
    void TermineLien();

    css::uno::Sequence<rtl::OUString> const& proprietes_;
    But but_;
    rtl::OUString lien_;                              // the one that goes on; empty outside of all
    std::map<rtl::OUString, std::ptrdiff_t> signets_; // portion where each one met starts
    std::vector<bool> commandes_; // of each field that goes on: is this still its command?
    int& suppressions_;
    ParagrapheLu& lu_;
};

} // namespace extension
