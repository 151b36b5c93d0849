// SPDX-License-Identifier: MPL-2.0
#include "SignetsDuParagraphe.h"

#include "commun/Proprietes.h"
#include "document/EtapePropre.h"
#include "lecture/Curseur.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/text/XBookmarksSupplier.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>

#include <set>

using namespace com::sun::star;
using rtl::OUString;
using Etendue = uno::Reference<text::XTextRange>;

namespace extension {

namespace {

uno::Reference<container::XNameAccess> SignetsDe(uno::Reference<frame::XModel> const& modele) {
    uno::Reference<text::XBookmarksSupplier> const source(modele, uno::UNO_QUERY);
    return source.is() ? source->getBookmarks() : uno::Reference<container::XNameAccess>();
}

/// The office makes that of a heading that is referred to by itself, and it is of another kind.
bool EstDuBureau(OUString const& nom) {
    return nom.startsWith("__RefHeading__");
}

/// The names of those that start or end in the paragraph.
std::set<OUString> NomsDans(Etendue const& paragraphe) {
    std::set<OUString> noms;
    uno::Reference<container::XEnumerationAccess> const portions(paragraphe, uno::UNO_QUERY_THROW);
    uno::Reference<container::XEnumeration> const suite = portions->createEnumeration();
    while (suite->hasMoreElements()) {
        uno::Reference<beans::XPropertySet> const portion(suite->nextElement(),
                                                          uno::UNO_QUERY_THROW);
        uno::Reference<container::XNamed> signet;
        if ((ValeurSiConnue(portion, "Bookmark") >>= signet) && signet.is()) {
            noms.insert(signet->getName());
        }
    }
    return noms;
}

} // namespace

SignetsDuParagraphe::SignetsDuParagraphe(uno::Reference<frame::XModel> const& modele,
                                         uno::Reference<text::XText> const& texte,
                                         Etendue const& paragraphe)
    : modele_(modele)
    , texte_(texte)
    , paragraphe_(paragraphe) {
    uno::Reference<container::XNameAccess> const tous = SignetsDe(modele);
    if (!tous.is() || !tous->hasElements()) {
        return;
    }
    for (OUString const& nom : NomsDans(paragraphe)) {
        if (EstDuBureau(nom) || !tous->hasByName(nom)) {
            continue;
        }
        uno::Reference<text::XTextContent> const signet(tous->getByName(nom), uno::UNO_QUERY_THROW);
        uno::Reference<beans::XPropertySet> const proprietes(signet, uno::UNO_QUERY_THROW);
        Etendue const etendue = signet->getAnchor();
        signets_.push_back({nom, PlaceDe(etendue->getStart()), PlaceDe(etendue->getEnd()),
                            ValeurSiConnue(proprietes, "BookmarkHidden"),
                            ValeurSiConnue(proprietes, "BookmarkCondition")});
    }
}

SignetsDuParagraphe::Place SignetsDuParagraphe::PlaceDe(Etendue const& position) const {
    if (position->getText() != texte_) {
        return std::nullopt;
    }
    uno::Reference<text::XTextRangeCompare> const ordre(texte_, uno::UNO_QUERY_THROW);
    auto const commenceAvant = [&](Etendue const& une, Etendue const& autre) {
        return ordre->compareRegionStarts(une, autre) > 0; // the office's sign for "before"
    };
    Etendue const fin = paragraphe_->getEnd();
    if (commenceAvant(position, paragraphe_->getStart()) || commenceAvant(fin, position)) {
        return std::nullopt;
    }
    auto const estAtteinte = [&](std::size_t pas) {
        return !commenceAvant(PlaceCurseur(texte_, paragraphe_->getStart(), pas).get(), position);
    };
    // Nobody tells how many steps it is: twice as far until it is reached, then back by halves.
    std::size_t loin = 1;
    while (!estAtteinte(loin)) {
        loin *= 2;
    }
    std::size_t debut = 0;
    while (debut < loin) {
        std::size_t const milieu = (debut + loin) / 2;
        if (estAtteinte(milieu)) {
            loin = milieu;
        } else {
            debut = milieu + 1;
        }
    }
    return debut;
}

Etendue SignetsDuParagraphe::EtendueDe(Signet const& signet, Etendue const& actuelle) const {
    if (!actuelle.is() && (!signet.debut || !signet.fin)) {
        return {};
    }
    auto const position = [&](Place place, bool fin) {
        return place ? Etendue(PlaceCurseur(texte_, paragraphe_->getStart(), *place).get())
                     : (fin ? actuelle->getEnd() : actuelle->getStart());
    };
    uno::Reference<text::XTextCursor> const etendue =
        texte_->createTextCursorByRange(position(signet.debut, false));
    etendue->gotoRange(position(signet.fin, true), true);
    return Etendue(etendue.get());
}

void SignetsDuParagraphe::Retablis(Signet const& signet) const {
    uno::Reference<container::XNameAccess> const tous = SignetsDe(modele_);
    uno::Reference<text::XTextContent> ancien;
    if (tous->hasByName(signet.nom)) {
        tous->getByName(signet.nom) >>= ancien;
    }
    Etendue const actuelle = ancien.is() ? ancien->getAnchor() : Etendue();
    Etendue const voulue = EtendueDe(signet, actuelle);
    if (!voulue.is()) {
        return;
    }
    if (ancien.is()) {
        uno::Reference<text::XTextRangeCompare> const ordre(texte_, uno::UNO_QUERY_THROW);
        if (ordre->compareRegionStarts(actuelle, voulue) == 0 &&
            ordre->compareRegionEnds(actuelle, voulue) == 0) {
            return;
        }
        ancien->dispose();
    }
    uno::Reference<lang::XMultiServiceFactory> const fabrique(modele_, uno::UNO_QUERY_THROW);
    uno::Reference<text::XTextContent> const neuf(
        fabrique->createInstance("com.sun.star.text.Bookmark"), uno::UNO_QUERY_THROW);
    uno::Reference<container::XNamed>(neuf, uno::UNO_QUERY_THROW)->setName(signet.nom);
    texte_->insertTextContent(voulue, neuf, true);
    uno::Reference<beans::XPropertySet> const proprietes(neuf, uno::UNO_QUERY_THROW);
    if (EstVrai(signet.cache)) {
        proprietes->setPropertyValue("BookmarkHidden", signet.cache);
        proprietes->setPropertyValue("BookmarkCondition", signet.condition);
    }
}

void SignetsDuParagraphe::Retablis() const {
    SansEtape const sans(modele_);
    for (Signet const& signet : signets_) {
        Retablis(signet);
    }
}

} // namespace extension
