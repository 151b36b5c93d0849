// SPDX-License-Identifier: MPL-2.0
#include "LecteurPortions.h"

#include "Ecritures.h"
#include "StyleDeLettres.h"
#include "commun/ChainesUno.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XContentEnumerationAccess.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/XTextField.hpp>

using namespace com::sun::star;
using compagnon::GenrePortion;
using rtl::OUString;

namespace extension {

namespace {

uno::Any Valeur(uno::Reference<beans::XPropertySet> const& objet, char const* nom) {
    return objet.is() ? objet->getPropertyValue(OUString::createFromAscii(nom)) : uno::Any();
}

bool Vrai(uno::Any const& valeur) {
    bool vrai = false;
    return (valeur >>= vrai) && vrai;
}

/// An image or frame in the line takes a step there; one that is only anchored takes none.
bool EstDansLaLigne(uno::Reference<uno::XInterface> const& objet) {
    text::TextContentAnchorType ancrage = text::TextContentAnchorType_AT_PARAGRAPH;
    uno::Reference<beans::XPropertySet> const proprietes(objet, uno::UNO_QUERY);
    return (Valeur(proprietes, "AnchorType") >>= ancrage) &&
           ancrage == text::TextContentAnchorType_AS_CHARACTER;
}

/// A control whose text is chosen, not typed.
bool EstControleFerme(uno::Reference<beans::XPropertySet> const& controle) {
    if (!controle.is()) {
        return true;
    }
    for (char const* nom : {"Checkbox", "Picture", "Date"}) {
        if (Vrai(Valeur(controle, nom))) {
            return true;
        }
    }
    uno::Sequence<uno::Sequence<beans::PropertyValue>> choix;
    Valeur(controle, "ListItems") >>= choix;
    return choix.getLength() > 0;
}

} // namespace

LecteurPortions::LecteurPortions()
    : proprietes_(NomsDesProprietesDeLettres()) {}

ParagrapheLu LecteurPortions::Lis(uno::Reference<container::XEnumerationAccess> const& paragraphe,
                                  int& suppressions) const {
    ParagrapheLu lu;
    lu.etendues.reserve(8);
    LisSuite(paragraphe, suppressions, lu);
    return lu;
}

void LecteurPortions::LisInterieur(uno::Reference<container::XEnumerationAccess> const& interieur,
                                   uno::Reference<text::XTextRange> const& etendue,
                                   int& suppressions, ParagrapheLu& lu) const {
    auto const borne = [&lu](uno::Reference<text::XTextRange> const& ou) {
        lu.plan.Ajoute(GenrePortion::Limite, {}, 0);
        lu.etendues.push_back(ou);
    };
    std::size_t const premiere = lu.etendues.size();
    borne(etendue);
    if (interieur.is()) {
        LisSuite(interieur, suppressions, lu);
    }
    if (lu.etendues.size() == premiere + 1) {
        borne(etendue);
        return;
    }
    // The enclosing portion's own range will not do for its borders: a control's stands whole
    // behind what it encloses, and places are looked up in order.
    lu.etendues[premiere] = lu.etendues[premiere + 1]->getStart();
    borne(lu.etendues.back()->getEnd());
}

void LecteurPortions::LisSuite(uno::Reference<container::XEnumerationAccess> const& portions,
                               int& suppressions, ParagrapheLu& lu) const {
    uno::Reference<container::XEnumeration> const suite = portions->createEnumeration();
    auto const ajoute = [&lu](GenrePortion genre, uno::Reference<text::XTextRange> const& etendue,
                              std::u16string source = {}, std::uint16_t style = 0) {
        lu.plan.Ajoute(genre, std::move(source), style);
        lu.etendues.push_back(etendue);
    };
    while (suite->hasMoreElements()) {
        uno::Reference<text::XTextRange> etendue;
        suite->nextElement() >>= etendue; // as it comes: no query for what is there already
        uno::Reference<beans::XMultiPropertySet> const valeursDe(etendue, uno::UNO_QUERY_THROW);
        uno::Sequence<uno::Any> const valeurs = valeursDe->getPropertyValues(proprietes_);
        uno::Any const* v = valeurs.getConstArray();
        OUString genre;
        v[kGenre] >>= genre;
        bool const exclue = suppressions > 0 || Vrai(v[kMasque]);

        if (genre == "Text") {
            OUString const texte = etendue->getString();
            std::u16string source(Vue(texte));
            if (exclue) {
                ajoute(GenrePortion::Exclue, etendue, std::move(source));
            } else if (EstToutLatin(source)) {
                ajoute(GenrePortion::Texte, etendue, std::move(source), StyleDeLettres(v));
            } else {
                lu.plan.Ajoute(std::move(source), StylesDeLettres(etendue, v, texte));
                lu.etendues.push_back(etendue);
            }
            continue;
        }
        uno::Reference<beans::XPropertySet> const portion(etendue, uno::UNO_QUERY);
        if (genre == "Redline") {
            OUString nature;
            Valeur(portion, "RedlineType") >>= nature;
            if (nature == "Delete" && !Vrai(Valeur(portion, "IsCollapsed"))) {
                bool const commence = Vrai(Valeur(portion, "IsStart"));
                suppressions = std::max(0, suppressions + (commence ? 1 : -1));
            }
        } else if (genre == "SoftPageBreak") {
            // Layout, not text.
        } else if (genre == "Bookmark") {
            bool const ponctuel = Vrai(Valeur(portion, "IsCollapsed"));
            ajoute(ponctuel ? GenrePortion::Repere : GenrePortion::Limite, etendue);
        } else if (genre == "Ruby") {
            ajoute(GenrePortion::Limite, etendue);
        } else if (genre == "ReferenceMark" || genre == "DocumentIndexMark") {
            bool const ponctuel = Vrai(Valeur(portion, "IsCollapsed"));
            ajoute(ponctuel ? GenrePortion::Ancre : GenrePortion::Limite, etendue);
        } else if (exclue) {
            ajoute(GenrePortion::Exclue, etendue);
        } else if (genre == "Annotation" || genre == "AnnotationEnd") {
            ajoute(GenrePortion::Ancre, etendue);
            // Where a commented range ends there is a portion too, without the comment.
            uno::Reference<text::XTextField> champ;
            Valeur(portion, "TextField") >>= champ;
            if (champ.is()) {
                lu.rencontres.push_back({Rencontre::Genre::Commentaire, champ.get()});
            }
        } else if (genre == "Footnote") {
            ajoute(GenrePortion::Substitut, etendue, {}, StyleDeLettres(v));
            uno::Reference<uno::XInterface> note;
            Valeur(portion, "Footnote") >>= note;
            uno::Reference<lang::XServiceInfo> const services(note, uno::UNO_QUERY);
            bool const deFin =
                services.is() && services->supportsService("com.sun.star.text.Endnote");
            lu.rencontres.push_back(
                {deFin ? Rencontre::Genre::NoteDeFin : Rencontre::Genre::Note, note});
        } else if (genre == "Frame") {
            bool dansLaLigne = false;
            uno::Reference<container::XContentEnumerationAccess> const contenus(etendue,
                                                                                uno::UNO_QUERY);
            if (contenus.is()) {
                uno::Reference<container::XEnumeration> const objets =
                    contenus->createContentEnumeration("com.sun.star.text.TextContent");
                while (objets.is() && objets->hasMoreElements()) {
                    uno::Reference<uno::XInterface> const objet(objets->nextElement(),
                                                                uno::UNO_QUERY);
                    dansLaLigne = dansLaLigne || EstDansLaLigne(objet);
                    lu.rencontres.push_back({Rencontre::Genre::Cadre, objet});
                }
            }
            ajoute(dansLaLigne ? GenrePortion::Substitut : GenrePortion::Ancre, etendue);
        } else if (genre == "LineBreak") {
            ajoute(GenrePortion::Substitut, etendue, u"\n", StyleDeLettres(v));
        } else if (genre == "InContentMetadata") {
            uno::Reference<container::XEnumerationAccess> interieur;
            Valeur(portion, "InContentMetadata") >>= interieur;
            LisInterieur(interieur, etendue, suppressions, lu);
        } else if (genre == "ContentControl") {
            uno::Reference<container::XEnumerationAccess> interieur;
            Valeur(portion, "ContentControl") >>= interieur;
            uno::Reference<beans::XPropertySet> const controle(interieur, uno::UNO_QUERY);
            if (!interieur.is() || EstControleFerme(controle)) {
                ajoute(GenrePortion::Substitut, etendue);
            } else {
                LisInterieur(interieur, etendue, suppressions, lu);
            }
        } else {
            // A field, and whatever a later office may add: one thing, not letters.
            ajoute(GenrePortion::Substitut, etendue, {}, StyleDeLettres(v));
        }
    }
}

} // namespace extension
