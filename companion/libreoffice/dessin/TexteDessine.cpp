// SPDX-License-Identifier: MPL-2.0
#include "TexteDessine.h"

#include "ParagrapheDessine.h"
#include "commun/ChainesUno.h"
#include "commun/Objets.h"
#include "commun/Proprietes.h"
#include "lecture/Curseur.h"
#include "lecture/PlaceParmi.h"
#include "modele/ParagraphesRetrouves.h"

#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>
#include <com/sun/star/util/XModifiable.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::PlanDePortions;

namespace extension {

namespace {

/// The engine gives letters put in where a portion became empty the format of another one. Where no
/// letter is put in, none can get a wrong one.
bool PerdUnFormat(PlanDePortions const& plan, std::vector<compagnon::EtapeEdition> const& etapes) {
    auto const vide = [](compagnon::EtapeEdition const& etape) {
        return !etape.EstInsertion() && etape.debut == 0 && etape.fin == etape.source.size();
    };
    return plan.DonnePortions().size() > 1 && std::any_of(etapes.begin(), etapes.end(), vide) &&
           std::any_of(etapes.begin(), etapes.end(),
                       [](compagnon::EtapeEdition const& etape) { return !etape.ajout.empty(); });
}

uno::Reference<container::XEnumeration> Paragraphes(uno::Reference<text::XText> const& texte) {
    return uno::Reference<container::XEnumerationAccess>(texte, uno::UNO_QUERY_THROW)
        ->createEnumeration();
}

/// Does an enumeration give the whole text? Once a program has put letters in through the text
/// itself, it gives what stood there then, whatever was typed since.
bool EnumereTout(uno::Reference<text::XText> const& texte) {
    uno::Reference<text::XTextCursor> const tout = texte->createTextCursor();
    tout->gotoStart(false);
    tout->gotoEnd(true);
    rtl::OUString enumere;
    uno::Reference<container::XEnumeration> const suite = Paragraphes(texte);
    for (bool premier = true; suite->hasMoreElements(); premier = false) {
        uno::Reference<text::XTextRange> const paragraphe(suite->nextElement(),
                                                          uno::UNO_QUERY_THROW);
        enumere += (premier ? rtl::OUString() : rtl::OUString("\n")) + paragraphe->getString();
    }
    return enumere == tout->getString();
}

/// Has it find out how long it is: most do when they are asked for their letters. The others have
/// nothing put in through them, which changes nothing there; but done in a table's cell, it takes
/// empty paragraphs from the cells of other slides.
void EnumereDesormaisTout(uno::Reference<text::XText> const& texte,
                          uno::Reference<frame::XModel> const& modele) {
    texte->getString();
    if (EnumereTout(texte)) {
        return;
    }
    uno::Reference<util::XModifiable> const document(modele, uno::UNO_QUERY);
    bool const modifie = !document.is() || document->isModified();
    uno::Reference<text::XTextCursor> const debut = texte->createTextCursor();
    debut->gotoStart(false);
    texte->insertString(debut.get(), rtl::OUString(), false);
    if (!modifie) {
        document->setModified(false);
    }
}

/// The paragraphs of these texts are zones of their own: one is never parted in two.
bool OuvreUneLigne(std::vector<compagnon::EtapeEdition> const& etapes) {
    return std::any_of(etapes.begin(), etapes.end(), [](compagnon::EtapeEdition const& etape) {
        return etape.ajout.find(u'\n') != std::u16string::npos;
    });
}

} // namespace

TexteDessine::TexteDessine(uno::Reference<uno::XInterface> const& objet,
                           uno::Reference<frame::XModel> const& modele,
                           std::shared_ptr<Contenant const> contenant)
    : objet_(objet)
    , modele_(modele)
    , contenant_(std::move(contenant)) {}

TexteDessine::~TexteDessine() = default;

std::vector<ParagrapheLu> TexteDessine::LisTout() const {
    uno::Reference<text::XText> const texte = DonneTexte();
    if (!EnumereTout(texte)) {
        EnumereDesormaisTout(texte, modele_);
    }
    std::vector<ParagrapheLu> lus;
    uno::Reference<container::XEnumeration> const suite = Paragraphes(texte);
    while (suite->hasMoreElements()) {
        uno::Reference<container::XEnumerationAccess> const paragraphe(suite->nextElement(),
                                                                       uno::UNO_QUERY_THROW);
        int suppressions = 0;
        lus.push_back(lecteur_.Lis(paragraphe, suppressions));
    }
    return lus;
}

std::vector<ParagrapheLu> TexteDessine::Relis(CarnetDeZones& carnet) {
    std::vector<ParagrapheLu> lus = LisTout();
    Accueille(lus, carnet);
    return lus;
}

void TexteDessine::Accueille(std::vector<ParagrapheLu> const& lus, CarnetDeZones& carnet) {
    std::vector<std::u16string> textes;
    textes.reserve(lus.size());
    for (ParagrapheLu const& lu : lus) {
        textes.push_back(lu.plan.DonneTexte());
    }
    auto const origine = compagnon::RetrouveParagraphes(textes_, textes);
    std::vector<std::shared_ptr<ParagrapheDessine>> zones(lus.size());
    for (std::size_t i = 0; i < zones.size(); ++i) {
        if (origine[i]) {
            zones[i] = std::move(zones_[*origine[i]]);
        } else {
            zones[i] =
                std::make_shared<ParagrapheDessine>(carnet.NouvelleCle(), weak_from_this(), carnet);
            carnet.InscrisCle(zones[i]);
        }
    }
    Quitte(carnet);
    zones_ = std::move(zones);
    textes_ = std::move(textes);
}

std::vector<std::optional<compagnon::Intervalle>>
TexteDessine::Partage(uno::Reference<text::XTextRange> const& plage) const {
    uno::Reference<text::XText> const texte = DonneTexte();
    uno::Reference<text::XTextRangeCompare> const ordre(texte, uno::UNO_QUERY_THROW);
    std::vector<std::optional<compagnon::Intervalle>> parts;
    for (ParagrapheLu const& lu : LisTout()) {
        auto const place = [&](uno::Reference<text::XTextRange> const& position) {
            return static_cast<std::int32_t>(
                lu.plan.DonneDecalage(PlaceParmi(lu.etendues, texte, position)));
        };
        // 1 means "the first one starts before the second".
        bool const touche =
            !lu.etendues.empty() &&
            ordre->compareRegionStarts(plage->getStart(), lu.etendues.back()->getEnd()) >= 0 &&
            ordre->compareRegionStarts(lu.etendues.front()->getStart(), plage->getEnd()) >= 0;
        parts.push_back(touche ? std::make_optional(compagnon::Intervalle{place(plage->getStart()),
                                                                          place(plage->getEnd())})
                               : std::nullopt);
    }
    return parts;
}

void TexteDessine::Quitte(CarnetDeZones& carnet) {
    for (std::shared_ptr<ParagrapheDessine> const& zone : zones_) {
        if (zone) {
            carnet.OublieCle(zone->DonneCle());
        }
    }
    zones_.clear();
}

std::optional<std::vector<compagnon::EtapeEdition>>
TexteDessine::Prepare(std::vector<ParagrapheLu> const& lus, std::size_t rang, std::size_t debut,
                      std::u16string const& avant, std::u16string const& apres) {
    if (rang >= lus.size()) {
        return std::nullopt;
    }
    PlanDePortions const& plan = lus[rang].plan;
    if (plan.DonneTexte().compare(std::min(debut, plan.DonneTexte().size()), avant.size(), avant) !=
        0) {
        return std::nullopt;
    }
    auto etapes = plan.Prepare(debut, debut + avant.size(), apres);
    if (etapes && (PerdUnFormat(plan, *etapes) || OuvreUneLigne(*etapes))) {
        return std::nullopt;
    }
    return etapes;
}

std::optional<Gestes> TexteDessine::Remplace(std::size_t rang, std::size_t debut,
                                             std::u16string const& avant,
                                             std::u16string const& apres) {
    std::vector<ParagrapheLu> const lus = LisTout();
    auto const etapes = Prepare(lus, rang, debut, avant, apres);
    if (!etapes || lus[rang].etendues.empty() || !PeuventRevenir(lus[rang], *etapes)) {
        return std::nullopt;
    }
    Gestes gestes = GestesPour(lus[rang], *etapes);
    gestes.rang = rang;
    Fais(lus[rang], gestes.aller);
    return gestes;
}

bool TexteDessine::Rejoue(Gestes const& gestes, bool aLEnvers) {
    std::vector<ParagrapheLu> const lus = LisTout();
    if (gestes.rang >= lus.size() || lus[gestes.rang].etendues.empty() ||
        LettresDe(lus[gestes.rang].plan) != (aLEnvers ? gestes.apres : gestes.avant)) {
        return false;
    }
    Fais(lus[gestes.rang], aLEnvers ? gestes.retour : gestes.aller);
    return true;
}

void TexteDessine::Fais(ParagrapheLu const& lu, std::vector<Geste> const& gestes) {
    uno::Reference<text::XText> const texte = DonneTexte();
    // The engine's ranges do not follow edits: each gesture counts from the paragraph's start, and
    // what stands before it has not changed.
    auto const curseur = [&](std::size_t position, std::size_t taille) {
        auto const place = PlaceCurseur(texte, lu.etendues.front(), position);
        Avance(place, taille, true);
        return place;
    };
    auto const champs = ChampsDe(lu);
    for (Geste const& geste : gestes) {
        if (geste.champ) {
            auto const place = curseur(geste.position, 1);
            FormatPropre const format(place.get()); // the new one has none of its own
            texte->insertTextContent(place.get(),
                                     ChampAvec(champs.at(*geste.champ), EnUno(geste.ajout)), true);
            format.Mets(curseur(geste.position, 1).get());
            continue;
        }
        if (geste.retire > 0) {
            curseur(geste.position, geste.retire)->setString(rtl::OUString());
        }
        if (!geste.ajout.empty()) {
            curseur(geste.position, 0)->setString(EnUno(geste.ajout));
            geste.format.Mets(curseur(geste.position, geste.ajout.size()).get());
        }
    }
    if (!EnumereTout(texte)) { // for other programs
        EnumereDesormaisTout(texte, modele_);
    }
}

std::vector<uno::Reference<text::XTextField>> TexteDessine::ChampsDe(ParagrapheLu const& lu) {
    std::vector<uno::Reference<text::XTextField>> champs;
    for (std::size_t i = 0; i < lu.etendues.size(); ++i) {
        if (lu.plan.DonnePortions()[i].genre == compagnon::GenrePortion::Champ) {
            uno::Reference<beans::XPropertySet> const portion(lu.etendues[i], uno::UNO_QUERY_THROW);
            champs.emplace_back();
            Valeur(portion, "TextField") >>= champs.back();
        }
    }
    return champs;
}

uno::Reference<text::XTextContent>
TexteDessine::ChampAvec(uno::Reference<text::XTextField> const& champ,
                        rtl::OUString const& texte) const {
    // The engine gives a copy of its field, and takes a copy again.
    uno::Reference<beans::XPropertySet> const proprietes(champ, uno::UNO_QUERY_THROW);
    proprietes->setPropertyValue("Representation", uno::Any(texte));
    return uno::Reference<text::XTextContent>(champ, uno::UNO_QUERY_THROW);
}

void RecueilleZones(TexteDessine const& texte, std::vector<ParagrapheLu>&& lus,
                    std::shared_ptr<Endroit const> const& endroit, RecueilDeZones const& recueil) {
    // A copy: whoever gets a zone may read its text anew.
    auto const debut = texte.DonneZones().begin();
    std::vector<std::shared_ptr<ParagrapheDessine>> const zones(debut, texte.DonneZones().end());
    for (std::size_t i = 0; i < lus.size(); ++i) {
        zones[i]->MetsLieu({endroit, static_cast<int>(i) + 1});
        recueil(zones[i], std::move(lus[i].plan));
    }
}

void ParcoursTexteDessine(uno::Reference<uno::XInterface> const& objet,
                          std::function<std::shared_ptr<TexteDessine>()> const& fabrique,
                          std::shared_ptr<Endroit const> const& endroit, CarnetDeZones& carnet,
                          RecueilDeZones const& recueil) {
    uno::Reference<uno::XInterface> const identite = Identite(objet);
    auto texte = carnet.Retrouve<TexteDessine>(identite);
    if (!texte) {
        texte = fabrique();
        carnet.Inscris(identite, texte);
    }
    RecueilleZones(*texte, texte->Relis(carnet), endroit, recueil);
}

} // namespace extension
