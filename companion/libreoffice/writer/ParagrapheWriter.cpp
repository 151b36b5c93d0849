// SPDX-License-Identifier: MPL-2.0
#include "ParagrapheWriter.h"

#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "dessin/EditionEnCours.h"
#include "document/EtapePropre.h"
#include "document/SelectionDuBureau.h"
#include "lecture/Curseur.h"
#include "lecture/FormatPropre.h"
#include "lecture/PlaceParmi.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>

#include <utility>

using namespace com::sun::star;
using compagnon::PlaceDansPortion;
using compagnon::PlanDePortions;

namespace extension {

namespace {

/// A place of the plan, in the document.
uno::Reference<text::XTextRange>
Position(uno::Reference<text::XText> const& texte, PlanDePortions const& plan,
         std::vector<uno::Reference<text::XTextRange>> const& etendues, PlaceDansPortion place) {
    compagnon::Portion const& portion = plan.DonnePortions()[place.portion];
    uno::Reference<text::XTextRange> const& etendue = etendues.at(place.portion);
    if (portion.genre != compagnon::GenrePortion::Texte &&
        portion.genre != compagnon::GenrePortion::Fixe) {
        return place.unite == 0 ? etendue->getStart() : etendue->getEnd();
    }
    std::u16string_view const avant = std::u16string_view(portion.source).substr(0, place.unite);
    return PlaceCurseur(texte, etendue, CompteLesPas(avant)).get();
}

} // namespace

ParagrapheWriter::ParagrapheWriter(std::string cle,
                                   uno::Reference<text::XTextContent> const& paragraphe,
                                   std::shared_ptr<Contenant const> contenant,
                                   std::shared_ptr<FondWriter const> fond)
    : ZoneOuverte(std::move(cle))
    , paragraphe_(paragraphe)
    , contenant_(std::move(contenant))
    , fond_(std::move(fond)) {}

PlanDePortions ParagrapheWriter::Lis() {
    // A deleted paragraph can go on living among the undo steps, where it still reads and writes:
    // only a comparison of places tells that it stands in the text no longer, and from
    // LibreOffice 25.2 on not even that, but no cursor can be put there.
    uno::Reference<text::XTextRange> const etendue(paragraphe_, uno::UNO_QUERY_THROW);
    uno::Reference<text::XTextRangeCompare> const ordre(contenant_->texte, uno::UNO_QUERY_THROW);
    try {
        uno::Reference<text::XTextRange> const debut = etendue->getStart();
        ordre->compareRegionStarts(debut, debut);
        contenant_->texte->createTextCursorByRange(debut);
    } catch (lang::IllegalArgumentException const&) {
        throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
    } catch (lang::DisposedException const&) {
        throw;
    } catch (uno::RuntimeException const&) {
        throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
    }
    return LisPortions().plan;
}

ParagrapheLu ParagrapheWriter::LisPortions() const {
    uno::Reference<text::XTextRange> const etendue(paragraphe_, uno::UNO_QUERY_THROW);
    int ouvertes = fond_->suppressions.OuvertesAuDebut(etendue, contenant_->texte);
    uno::Reference<container::XEnumerationAccess> const portions(paragraphe_, uno::UNO_QUERY_THROW);
    uno::Reference<beans::XPropertySet> const document(fond_->modele, uno::UNO_QUERY);
    But const but =
        Vaut(document, "RecordChanges", false) ? But::CorrectionSuivie : But::Correction;
    return fond_->lecteur.Lis(portions, ouvertes, but);
}

std::vector<uno::Reference<text::XTextRange>> ParagrapheWriter::DonneEtendues() const {
    return LisPortions().etendues;
}

bool ParagrapheWriter::EstProtegee() {
    uno::Reference<beans::XPropertySet> const proprietes(paragraphe_, uno::UNO_QUERY_THROW);
    return EstDansSectionProtegee(proprietes) || contenant_->EstProtege();
}

void ParagrapheWriter::Applique(CorrectionPrete const& correction) {
    SignetsDuParagraphe const avant = DonneSignets();
    if (avant.EstVide()) {
        Fais(correction);
        return;
    }
    // The office's own steps stand between these: undone, the first one comes last.
    AjouteEtape(fond_->modele, {}, [avant](bool aLEnvers) {
        if (aLEnvers) {
            avant.Retablis();
        }
    });
    Fais(correction);
    AjouteEtape(fond_->modele, {}, [apres = DonneSignets()](bool aLEnvers) {
        if (!aLEnvers) {
            apres.Retablis();
        }
    });
}

SignetsDuParagraphe ParagrapheWriter::DonneSignets() const {
    return SignetsDuParagraphe(fond_->modele, contenant_->texte,
                               uno::Reference<text::XTextRange>(paragraphe_, uno::UNO_QUERY_THROW));
}

void ParagrapheWriter::Fais(CorrectionPrete const& correction) const {
    std::vector<uno::Reference<text::XTextRange>> const etendues = DonneEtendues();
    for (compagnon::EtapeEdition const& etape : correction.etapes) {
        std::u16string_view const source = etape.source;
        std::size_t const avant = CompteLesPas(source.substr(0, etape.debut));
        uno::Reference<text::XTextCursor> const curseur =
            PlaceCurseur(contenant_->texte, etendues.at(etape.portion), avant);
        if (etape.EstInsertion()) {
            Insere(curseur, etape.ajout, etendues.at(etape.portion));
            continue;
        }
        Avance(curseur, CompteLesPas(source.substr(etape.debut, etape.fin - etape.debut)), true);
        curseur->setString(rtl::OUString());
    }
}

void ParagrapheWriter::Insere(uno::Reference<text::XTextCursor> const& curseur,
                              std::u16string const& lettres,
                              uno::Reference<text::XTextRange> const& portion) const {
    uno::Reference<text::XParagraphCursor> const place(curseur, uno::UNO_QUERY_THROW);
    uno::Reference<beans::XPropertySet> const document(fond_->modele, uno::UNO_QUERY);
    // Letters take the format of those before them. At a paragraph's start there are none, and they
    // are given that of those behind, which while changes are recorded would be a change as well.
    bool const seules = place->isStartOfParagraph() && !Vaut(document, "RecordChanges", false);
    FormatPropre const format = seules ? FormatPropre(portion) : FormatPropre();
    contenant_->texte->insertString(curseur.get(), EnUno(lettres), false);
    if (seules) {
        uno::Reference<text::XTextRange> const paragraphe(paragraphe_, uno::UNO_QUERY_THROW);
        uno::Reference<text::XTextCursor> const mises =
            PlaceCurseur(contenant_->texte, paragraphe, 0);
        Avance(mises, CompteLesPas(lettres), true);
        format.Mets(mises.get());
    }
}

void ParagrapheWriter::Selectionne(PlanDePortions const& plan, std::size_t debut, std::size_t fin) {
    auto const premier = plan.DonnePlace(debut, debut < fin);
    auto const dernier = plan.DonnePlace(fin, false);
    uno::Reference<text::XTextCursor> curseur;
    if (premier && dernier) {
        std::vector<uno::Reference<text::XTextRange>> const etendues = DonneEtendues();
        auto const position = [&](PlaceDansPortion place) {
            return Position(contenant_->texte, plan, etendues, place);
        };
        curseur = contenant_->texte->createTextCursorByRange(position(*premier));
        curseur->gotoRange(position(*dernier), true);
    } else {
        uno::Reference<text::XTextRange> const etendue(paragraphe_, uno::UNO_QUERY_THROW);
        curseur = contenant_->texte->createTextCursorByRange(etendue->getStart());
    }
    QuitteLesFormes(fond_->modele);
    SelectionneDans(fond_->modele,
                    uno::Any(uno::Reference<text::XTextRange>(curseur, uno::UNO_QUERY_THROW)));
}

bool ParagrapheWriter::EstCelleDe(uno::Reference<uno::XInterface> const& objet) const {
    return Identite(paragraphe_).get() == objet.get();
}

bool ParagrapheWriter::EstVoisineDe(uno::Reference<uno::XInterface> const& objet) const {
    uno::Reference<text::XTextRange> const etendue(objet, uno::UNO_QUERY);
    return etendue.is() && etendue->getText() == contenant_->texte;
}

bool ParagrapheWriter::EstDans(Objets const& textes) const {
    for (Contenant const* autour = contenant_.get(); autour != nullptr;
         autour = autour->parent.get()) {
        if (textes.Contient(autour->texte)) {
            return true;
        }
    }
    return false;
}

PlaceDansPortion ParagrapheWriter::PlaceDe(uno::Reference<text::XTextRange> const& position) const {
    return PlaceParmi(DonneEtendues(), contenant_->texte, position);
}

} // namespace extension
