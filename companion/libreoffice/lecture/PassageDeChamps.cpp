// SPDX-License-Identifier: MPL-2.0
// The fields and controls among a paragraph's portions: what is typed into them is read, and what
// is chosen or computed stands as one thing.
#include "PassageDePortions.h"

#include "Curseur.h"
#include "StyleDeLettres.h"
#include "commun/ChainesUno.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::GenrePortion;
using compagnon::RaisonNonLu;
using rtl::OUString;

namespace extension {

namespace {

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

/// A field whose words a person types into it, in a text of Writer's own.
bool EstDeSaisie(uno::Reference<beans::XPropertySet> const& champ) {
    uno::Reference<lang::XServiceInfo> const services(champ, uno::UNO_QUERY);
    return services.is() && services->supportsService("com.sun.star.text.TextField.Input");
}

/// A field whose words are an entry of its list.
bool EstListe(uno::Reference<beans::XPropertySet> const& champ) {
    uno::Sequence<OUString> entrees;
    return ValeurSiConnue(champ, "Items") >>= entrees;
}

} // namespace

void PassageDePortions::Controle(Vue const& vue) {
    uno::Reference<container::XEnumerationAccess> interieur;
    Valeur(vue.Proprietes(), "ContentControl") >>= interieur;
    uno::Reference<beans::XPropertySet> const controle(interieur, uno::UNO_QUERY);
    if (EstControleFerme(controle)) {
        lu_.plan.NoteNonLu(RaisonNonLu::Choix);
        Ajoute(vue, GenrePortion::Substitut);
    } else {
        LisEntreBords(vue, interieur);
    }
}

void PassageDePortions::Champ(Vue const& vue) {
    uno::Reference<beans::XPropertySet> champ;
    Valeur(vue.Proprietes(), "TextField") >>= champ;
    OUString lettres;
    if ((ValeurSiConnue(champ, "Representation") >>= lettres) && !lettres.isEmpty() &&
        lettres == vue.etendue->getString()) {
        // A link of the drawing engine, which shows the words that it was given.
        Ajoute(vue, GenrePortion::Champ, std::u16string(extension::Vue(lettres)),
               StyleDeLettres(vue.valeurs));
        return;
    }
    if (EstDeSaisie(champ)) {
        Valeur(champ, "Content") >>= lettres;
        Saisie(vue, lettres);
        return;
    }
    if (EstListe(champ)) {
        lu_.plan.NoteNonLu(RaisonNonLu::Choix);
    }
    Chose(vue);
}

/// Its letters stand in the document like others, between two units of the field's own.
void PassageDePortions::Saisie(Vue const& vue, OUString const& lettres) {
    auto const plage = [&](std::size_t debut, std::size_t pas) {
        auto const curseur = PlaceCurseur(vue.etendue->getText(), vue.etendue, debut);
        Avance(curseur, pas, true);
        return uno::Reference<text::XTextRange>(curseur, uno::UNO_QUERY_THROW);
    };
    auto const ajoute = [&](GenrePortion genre, uno::Reference<text::XTextRange> const& etendue,
                            OUString const& source = {}) {
        lu_.plan.Ajoute(genre, std::u16string(extension::Vue(source)), StyleDeLettres(vue.valeurs));
        lu_.etendues.push_back(etendue);
    };
    std::size_t const pas = CompteLesPas(extension::Vue(lettres));
    uno::Reference<text::XTextRange> const dedans = plage(1, pas);
    OUString const vues = vue.etendue->getString();
    // One with a line's end in it goes on into the next paragraph for the office's cursors.
    std::u16string_view const unites = extension::Vue(lettres);
    bool const seule = std::none_of(unites.begin(), unites.end(),
                                    [](char16_t unite) { return unite < 0x20 && unite != u'\t'; });
    if (lettres.isEmpty() || !seule || dedans->getString() != lettres ||
        !vues.startsWith(lettres)) {
        if (!lettres.isEmpty()) {
            lu_.plan.NoteNonLu(RaisonNonLu::Saisie);
        }
        Chose(vue);
        return;
    }
    TermineLien();
    ajoute(GenrePortion::Limite, dedans->getStart());
    ajoute(but_ == But::CorrectionSuivie ? GenrePortion::Fixe : GenrePortion::Texte, dedans,
           lettres);
    ajoute(GenrePortion::Limite, dedans->getEnd());
    // Of a field with surrogate pairs the office's portion goes on past its end.
    OUString const reste = vues.copy(lettres.getLength());
    if (!reste.isEmpty()) {
        ajoute(GenrePortion::Texte, plage(pas + 2, CompteLesPas(extension::Vue(reste))), reste);
    }
}

void PassageDePortions::DebutDeChamp(Vue const& vue) {
    Borne(vue);
    commandes_.push_back(true);
}

void PassageDePortions::MilieuDeChamp(Vue const& vue) {
    if (!commandes_.empty()) {
        commandes_.back() = false;
    }
    Borne(vue);
}

void PassageDePortions::FinDeChamp(Vue const& vue) {
    if (!commandes_.empty()) {
        commandes_.pop_back();
    }
    Borne(vue);
}

/// A unit where a field starts, goes over from its command to what it shows, or ends.
void PassageDePortions::Borne(Vue const& vue) {
    bool const exclue = suppressions_ > 0 || EstVrai(vue.valeurs[kMasque]) || EstDansUneCommande();
    Ajoute(vue, exclue ? GenrePortion::Exclue : GenrePortion::Substitut);
}

bool PassageDePortions::EstDansUneCommande() const {
    return std::find(commandes_.begin(), commandes_.end(), true) != commandes_.end();
}

} // namespace extension
