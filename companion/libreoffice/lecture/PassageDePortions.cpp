// SPDX-License-Identifier: MPL-2.0
#include "PassageDePortions.h"

#include "Ecritures.h"
#include "StyleDeLettres.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/container/XContentEnumerationAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/XTextField.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::GenrePortion;
using compagnon::RaisonNonLu;
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

} // namespace

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
        {u"Annotation", true, &P::Commentaire},
        {u"AnnotationEnd", true, &P::Commentaire},
        {u"Footnote", false, &P::Note},
        {u"Frame", false, &P::Cadres},
        {u"LineBreak", false, &P::SautDeLigne},
        {u"InContentMetadata", false, &P::Etiquette},
        {u"ContentControl", false, &P::Controle},
        {u"TextField", false, &P::Champ},
        {u"TextFieldStart", true, &P::DebutDeChamp},
        {u"TextFieldSeparator", true, &P::MilieuDeChamp},
        {u"TextFieldEnd", true, &P::FinDeChamp},
    };
    // Whatever else there is, and a later office may add: one thing, not letters.
    static constexpr Genre kAutre = {u"", false, &P::Chose};
    OUString genre;
    nom >>= genre;
    auto const* const trouve =
        std::find_if(std::begin(kGenres), std::end(kGenres),
                     [&](Genre const& connu) { return connu.nom == extension::Vue(genre); });
    return trouve == std::end(kGenres) ? kAutre : *trouve;
}

PassageDePortions::PassageDePortions(uno::Sequence<OUString> const& proprietes, But but,
                                     int& suppressions, ParagrapheLu& lu)
    : proprietes_(proprietes)
    , but_(but)
    , suppressions_(suppressions)
    , lu_(lu) {}

void PassageDePortions::LisTout(uno::Reference<container::XEnumerationAccess> const& portions) {
    Lis(portions);
    TermineLien();
}

void PassageDePortions::Lis(uno::Reference<container::XEnumerationAccess> const& portions) {
    uno::Reference<container::XEnumeration> const suite = portions->createEnumeration();
    while (suite->hasMoreElements()) {
        uno::Reference<text::XTextRange> etendue;
        suite->nextElement() >>= etendue; // as it comes: no query for what is there already
        uno::Reference<beans::XMultiPropertySet> const valeursDe(etendue, uno::UNO_QUERY_THROW);
        uno::Sequence<uno::Any> const valeurs = valeursDe->getPropertyValues(proprietes_);
        uno::Any const* const v = valeurs.getConstArray();
        Vue const vue{etendue, v, suppressions_ > 0 || EstVrai(v[kMasque]) || EstDansUneCommande()};
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
    // Whether a link goes on across something that takes a step matters to nobody: no edit does.
    if (genre == GenrePortion::Substitut || genre == GenrePortion::Ancre ||
        genre == GenrePortion::Exclue) {
        TermineLien();
    }
    lu_.plan.Ajoute(genre, std::move(source), style);
    lu_.etendues.push_back(vue.etendue);
}

void PassageDePortions::SuisLien(Vue const& vue) {
    OUString lien;
    Valeur(vue.Proprietes(), "HyperLinkURL") >>= lien;
    if (lien == lien_) {
        return;
    }
    TermineLien();
    if (!lien.isEmpty()) {
        lu_.plan.Ajoute(GenrePortion::Limite);
        lu_.etendues.push_back(vue.etendue->getStart());
    }
    lien_ = lien;
}

void PassageDePortions::TermineLien() {
    if (!lien_.isEmpty()) {
        lu_.plan.Ajoute(GenrePortion::Limite);
        lu_.etendues.push_back(lu_.etendues.back()->getEnd());
        lien_.clear();
    }
}

void PassageDePortions::Texte(Vue const& vue) {
    if (but_ != But::Lecture && !vue.exclue) {
        SuisLien(vue);
    }
    OUString const texte = vue.etendue->getString();
    std::u16string source(extension::Vue(texte));
    if (vue.exclue) {
        if (!source.empty() && !EstDansUneCommande()) {
            lu_.plan.NoteNonLu(suppressions_ > 0 ? RaisonNonLu::Supprime : RaisonNonLu::Masque);
        }
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
    uno::Reference<container::XNamed> signet;
    Valeur(vue.Proprietes(), "Bookmark") >>= signet;
    OUString const nom = signet.is() ? signet->getName() : OUString();
    bool vide = vue.EstPonctuelle();
    if (EstVrai(Valeur(vue.Proprietes(), "IsStart"))) {
        signets_[nom] = static_cast<std::ptrdiff_t>(lu_.plan.DonnePortions().size());
    } else if (signets_.count(nom) > 0) {
        // Around a frame's anchor one without extent comes in two parts.
        std::vector<compagnon::Portion> const& portions = lu_.plan.DonnePortions();
        vide = vide || std::all_of(portions.begin() + signets_[nom], portions.end(),
                                   [](auto const& portion) { return portion.EstSansEtendue(); });
    }
    Ajoute(vue, vide ? GenrePortion::Repere : GenrePortion::Limite);
}

void PassageDePortions::Marque(Vue const& vue) {
    Ajoute(vue, vue.EstPonctuelle() ? GenrePortion::Ancre : GenrePortion::Limite);
}

void PassageDePortions::Bord(Vue const& vue) {
    Ajoute(vue, GenrePortion::Limite);
}

void PassageDePortions::Commentaire(Vue const& vue) {
    if (suppressions_ > 0 || EstDansUneCommande()) {
        Ajoute(vue, GenrePortion::Exclue);
        return;
    }
    // Also one on hidden letters: the margin shows it all the same.
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
    Ajoute(vue, dansLaLigne ? GenrePortion::Substitut : GenrePortion::Attache);
}

void PassageDePortions::SautDeLigne(Vue const& vue) {
    Ajoute(vue, GenrePortion::Substitut, u"\n", StyleDeLettres(vue.valeurs));
}

void PassageDePortions::Etiquette(Vue const& vue) {
    uno::Reference<container::XEnumerationAccess> interieur;
    Valeur(vue.Proprietes(), "InContentMetadata") >>= interieur;
    LisEntreBords(vue, interieur);
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
