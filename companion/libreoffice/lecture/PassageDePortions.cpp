// SPDX-License-Identifier: MPL-2.0
#include "PassageDePortions.h"

#include "Ecritures.h"
#include "StyleDeLettres.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/container/XContentEnumerationAccess.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/XTextField.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::GenrePortion;
using rtl::OUString;

namespace extension {

namespace {

/// An image or frame in the line takes a step there; one that is only anchored takes none.
bool EstDansLaLigne(uno::Reference<uno::XInterface> const& objet) {
    text::TextContentAnchorType ancrage = text::TextContentAnchorType_AT_PARAGRAPH;
    uno::Reference<beans::XPropertySet> const proprietes(objet, uno::UNO_QUERY);
    return (ValeurSiConnue(proprietes, "AnchorType") >>= ancrage) &&
           ancrage == text::TextContentAnchorType_AS_CHARACTER;
}

/// A control whose text is chosen, not typed.
bool EstControleFerme(uno::Reference<beans::XPropertySet> const& controle) {
    if (!controle.is()) {
        return true;
    }
    for (char const* nom : {"Checkbox", "Picture", "Date"}) {
        if (EstVrai(Valeur(controle, nom))) {
            return true;
        }
    }
    uno::Sequence<uno::Sequence<beans::PropertyValue>> choix;
    Valeur(controle, "ListItems") >>= choix;
    return choix.getLength() > 0;
}

} // namespace

/// A portion as the office gives it, with the values of its letters' properties.
struct PassageDePortions::Vue {
    uno::Reference<text::XTextRange> etendue;
    uno::Any const* valeurs;
    bool exclue; ///< deleted with changes tracked, or hidden

    uno::Reference<beans::XPropertySet> Proprietes() const {
        return uno::Reference<beans::XPropertySet>(etendue, uno::UNO_QUERY);
    }
    bool EstPonctuelle() const { return EstVrai(Valeur(Proprietes(), "IsCollapsed")); }
};

/// How a kind of portion, named as the office names it, is read.
struct PassageDePortions::Genre {
    std::u16string_view nom;
    bool memeExclue; ///< also where it is not to be read: it says where something starts or ends
    void (PassageDePortions::*lis)(Vue const&);
};

PassageDePortions::Genre const& PassageDePortions::DonneGenre(uno::Any const& nom) {
    using P = PassageDePortions;
    static constexpr Genre kGenres[] = {
        {u"Text", true, &P::Texte}, // first, as most are
        {u"Redline", true, &P::Revision},
        {u"SoftPageBreak", true, &P::Rien},
        {u"Bookmark", true, &P::Signet},
        {u"Ruby", true, &P::Bord},
        {u"ReferenceMark", true, &P::Marque},
        {u"DocumentIndexMark", true, &P::Marque},
        {u"Annotation", false, &P::Commentaire},
        {u"AnnotationEnd", false, &P::Commentaire},
        {u"Footnote", false, &P::Note},
        {u"Frame", false, &P::Cadres},
        {u"LineBreak", false, &P::SautDeLigne},
        {u"InContentMetadata", false, &P::Etiquette},
        {u"ContentControl", false, &P::Controle},
    };
    // A field, and whatever a later office may add: one thing, not letters.
    static constexpr Genre kAutre = {u"", false, &P::Chose};
    OUString genre;
    nom >>= genre;
    auto const* const trouve =
        std::find_if(std::begin(kGenres), std::end(kGenres),
                     [&](Genre const& connu) { return connu.nom == extension::Vue(genre); });
    return trouve == std::end(kGenres) ? kAutre : *trouve;
}

PassageDePortions::PassageDePortions(uno::Sequence<OUString> const& proprietes, int& suppressions,
                                     ParagrapheLu& lu)
    : proprietes_(proprietes)
    , suppressions_(suppressions)
    , lu_(lu) {}

void PassageDePortions::Lis(uno::Reference<container::XEnumerationAccess> const& portions) {
    uno::Reference<container::XEnumeration> const suite = portions->createEnumeration();
    while (suite->hasMoreElements()) {
        uno::Reference<text::XTextRange> etendue;
        suite->nextElement() >>= etendue; // as it comes: no query for what is there already
        uno::Reference<beans::XMultiPropertySet> const valeursDe(etendue, uno::UNO_QUERY_THROW);
        uno::Sequence<uno::Any> const valeurs = valeursDe->getPropertyValues(proprietes_);
        uno::Any const* const v = valeurs.getConstArray();
        Vue const vue{etendue, v, suppressions_ > 0 || EstVrai(v[kMasque])};
        Genre const& genre = DonneGenre(v[kGenre]);
        if (vue.exclue && !genre.memeExclue) {
            Ajoute(vue, GenrePortion::Exclue);
        } else {
            (this->*genre.lis)(vue);
        }
    }
}

void PassageDePortions::Ajoute(Vue const& vue, GenrePortion genre, std::u16string source,
                               std::uint16_t style) {
    lu_.plan.Ajoute(genre, std::move(source), style);
    lu_.etendues.push_back(vue.etendue);
}

void PassageDePortions::Texte(Vue const& vue) {
    OUString const texte = vue.etendue->getString();
    std::u16string source(extension::Vue(texte));
    if (vue.exclue) {
        Ajoute(vue, GenrePortion::Exclue, std::move(source));
    } else if (EstToutLatin(source)) {
        Ajoute(vue, GenrePortion::Texte, std::move(source), StyleDeLettres(vue.valeurs));
    } else {
        lu_.plan.Ajoute(std::move(source), StylesDeLettres(vue.etendue, vue.valeurs, texte));
        lu_.etendues.push_back(vue.etendue);
    }
}

void PassageDePortions::Revision(Vue const& vue) {
    uno::Reference<beans::XPropertySet> const portion = vue.Proprietes();
    OUString nature;
    Valeur(portion, "RedlineType") >>= nature;
    if (nature == "Delete" && !vue.EstPonctuelle()) {
        bool const commence = EstVrai(Valeur(portion, "IsStart"));
        suppressions_ = std::max(0, suppressions_ + (commence ? 1 : -1));
    }
}

/// Layout, not text.
void PassageDePortions::Rien(Vue const& /*vue*/) {}

void PassageDePortions::Signet(Vue const& vue) {
    Ajoute(vue, vue.EstPonctuelle() ? GenrePortion::Repere : GenrePortion::Limite);
}

void PassageDePortions::Marque(Vue const& vue) {
    Ajoute(vue, vue.EstPonctuelle() ? GenrePortion::Ancre : GenrePortion::Limite);
}

void PassageDePortions::Bord(Vue const& vue) {
    Ajoute(vue, GenrePortion::Limite);
}

void PassageDePortions::Commentaire(Vue const& vue) {
    Ajoute(vue, GenrePortion::Ancre);
    // Where a commented range ends there is a portion too, without the comment.
    uno::Reference<text::XTextField> champ;
    Valeur(vue.Proprietes(), "TextField") >>= champ;
    if (champ.is()) {
        lu_.rencontres.push_back({Rencontre::Genre::Commentaire, champ.get()});
    }
}

void PassageDePortions::Note(Vue const& vue) {
    Ajoute(vue, GenrePortion::Substitut, {}, StyleDeLettres(vue.valeurs));
    uno::Reference<uno::XInterface> note;
    Valeur(vue.Proprietes(), "Footnote") >>= note;
    uno::Reference<lang::XServiceInfo> const services(note, uno::UNO_QUERY);
    bool const deFin = services.is() && services->supportsService("com.sun.star.text.Endnote");
    lu_.rencontres.push_back({deFin ? Rencontre::Genre::NoteDeFin : Rencontre::Genre::Note, note});
}

void PassageDePortions::Cadres(Vue const& vue) {
    bool dansLaLigne = false;
    uno::Reference<container::XContentEnumerationAccess> const contenus(vue.etendue,
                                                                        uno::UNO_QUERY);
    uno::Reference<container::XEnumeration> const objets =
        contenus.is() ? contenus->createContentEnumeration("com.sun.star.text.TextContent")
                      : uno::Reference<container::XEnumeration>();
    while (objets.is() && objets->hasMoreElements()) {
        uno::Reference<uno::XInterface> const objet(objets->nextElement(), uno::UNO_QUERY);
        dansLaLigne = dansLaLigne || EstDansLaLigne(objet);
        lu_.rencontres.push_back({Rencontre::Genre::Cadre, objet});
    }
    Ajoute(vue, dansLaLigne ? GenrePortion::Substitut : GenrePortion::Ancre);
}

void PassageDePortions::SautDeLigne(Vue const& vue) {
    Ajoute(vue, GenrePortion::Substitut, u"\n", StyleDeLettres(vue.valeurs));
}

void PassageDePortions::Etiquette(Vue const& vue) {
    uno::Reference<container::XEnumerationAccess> interieur;
    Valeur(vue.Proprietes(), "InContentMetadata") >>= interieur;
    LisEntreBords(vue, interieur);
}

void PassageDePortions::Controle(Vue const& vue) {
    uno::Reference<container::XEnumerationAccess> interieur;
    Valeur(vue.Proprietes(), "ContentControl") >>= interieur;
    uno::Reference<beans::XPropertySet> const controle(interieur, uno::UNO_QUERY);
    if (EstControleFerme(controle)) {
        Ajoute(vue, GenrePortion::Substitut);
    } else {
        LisEntreBords(vue, interieur);
    }
}

void PassageDePortions::Chose(Vue const& vue) {
    Ajoute(vue, GenrePortion::Substitut, {}, StyleDeLettres(vue.valeurs));
}

void PassageDePortions::LisEntreBords(
    Vue const& vue, uno::Reference<container::XEnumerationAccess> const& interieur) {
    std::size_t const premiere = lu_.etendues.size();
    Bord(vue);
    if (interieur.is()) {
        Lis(interieur);
    }
    Bord(vue);
    if (lu_.etendues.size() > premiere + 2) {
        // The enclosing portion's own range will not do for its borders: a control's stands whole
        // behind what it encloses, and places are looked up in order.
        lu_.etendues[premiere] = lu_.etendues[premiere + 1]->getStart();
        lu_.etendues.back() = lu_.etendues[lu_.etendues.size() - 2]->getEnd();
    }
}

} // namespace extension
