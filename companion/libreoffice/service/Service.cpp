// SPDX-License-Identifier: MPL-2.0
#include "Service.h"

#include "Correction.h"
#include "RaisonDeRefuser.h"
#include "RapportSur.h"
#include "commun/ErreurEnCours.h"
#include "partage/EcritureDocuments.h"
#include "partage/ErreurDuService.h"
#include "partage/LimiteDeRemplacement.h"
#include "partage/Messages.h"

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::ErreurDuService;
using compagnon::Intervalle;
using compagnon::PlanDePortions;
using compagnon::SelectionDite;
using contrat::Erreur;

namespace extension {

namespace {

ErreurDuService RienDeChoisi() {
    return ErreurDuService(
        Erreur::SelectionImpossible,
        compagnon::Dis({"aucun texte n’est sélectionné", "no text is selected"}));
}

SelectionDite Dite(ZoneLue const& lue) {
    return {lue.zone->DonneCle(), lue.plan.DonneTexte(), *lue.selection};
}

} // namespace

Service::Service(uno::Reference<uno::XComponentContext> const& contexte, std::string instance)
    : instance_(std::move(instance))
    , documents_(contexte)
    , dialogue_(contexte) {}

std::string Service::DonneIdentifiant(DocumentOuvert const& document) const {
    return instance_ + contrat::kSeparateur + document.DonneCle();
}

std::string Service::DonneDocuments() {
    compagnon::EcritureDocuments ecriture;
    for (std::shared_ptr<DocumentOuvert> const& document : documents_.Tous()) {
        ecriture.Ajoute({DonneIdentifiant(*document), document->DonneTitre(),
                         document->DonneChemin(), document->DonneGenre(), document->DonneLangue()});
    }
    return ecriture.Termine();
}

NomsDeZones Service::DonneNomsDeZones(std::string const& appelant, std::string const& leId) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDIdentifiant(leId);
    NomsDeZones noms;
    if (auto const* const donne = appelants_.DonneDonne(appelant, document->DonneCle())) {
        for (auto const& [cle, croyance] : donne->zones) {
            if (auto const zone = document->DonneZone(cle)) {
                noms.Ajoute(cle, zone->DonneLieu());
            }
        }
    }
    return noms;
}

std::string Service::DonneRapport(std::string const& leId) {
    return RapportSur(*DocumentDIdentifiant(leId)).EnJson();
}

std::shared_ptr<DocumentOuvert> Service::DocumentDe(std::string const& appelant) {
    std::shared_ptr<DocumentOuvert> document =
        documents_.TrouveParCle(appelants_.DonneDocument(appelant));
    if (!document) {
        throw ErreurDuService(Erreur::DocumentFerme);
    }
    return document;
}

std::shared_ptr<DocumentOuvert> Service::DocumentDIdentifiant(std::string const& leId) {
    std::string const prefixe = instance_ + contrat::kSeparateur;
    std::shared_ptr<DocumentOuvert> document =
        leId.compare(0, prefixe.size(), prefixe) == 0
            ? documents_.TrouveParCle(leId.substr(prefixe.size()))
            : nullptr;
    if (!document) {
        throw ErreurDuService(Erreur::DocumentInconnu, leId);
    }
    return document;
}

Service::ZoneNommee Service::ZoneDe(std::string const& appelant, std::string const& cle) {
    std::shared_ptr<DocumentOuvert> document = documents_.TrouveParZone(cle);
    std::shared_ptr<ZoneOuverte> zone = document ? document->DonneZone(cle) : nullptr;
    if (!zone) {
        throw ErreurDuService(Erreur::ZoneInconnue, cle);
    }
    compagnon::TexteSuivi& croyance = appelants_.NommeZone(appelant, document->DonneCle(), cle);
    return {std::move(document), std::move(zone), croyance};
}

void Service::InitialiseTexteur(std::string const& appelant, std::string const& cle) {
    documents_.Tous(); // one that was opened since may be meant
    if (!documents_.TrouveParCle(cle)) {
        throw ErreurDuService(Erreur::DocumentInconnu, cle);
    }
    appelants_.Nomme(appelant, cle);
}

void Service::Active(std::string const& appelant) {
    DocumentDe(appelant)->Active();
}

void Service::InitialisePour(std::string const& appelant) {
    DocumentDe(appelant)->Annulations().TermineSuite();
    appelants_.MetsSelection(appelant, std::nullopt);
}

std::u16string Service::DonneTitreDocument(std::string const& appelant) {
    return DocumentDe(appelant)->DonneTitre();
}

std::u16string Service::DonneCheminDocument(std::string const& appelant) {
    return DocumentDe(appelant)->DonneChemin();
}

bool Service::PermetsRetourDeCharriot(std::string const& appelant) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    auto const lue = document->DonneSelection();
    return lue && lue->zone->PermetsRetour() && !RaisonDeRefuser(*document, dialogue_, *lue->zone);
}

std::unique_ptr<Synchronisation> Service::CommenceSynchronisation(std::string const& appelant,
                                                                  std::string const& leId) {
    std::shared_ptr<DocumentOuvert> document = DocumentDIdentifiant(leId);
    // Those of documents that were closed meanwhile would stay for as long as the caller does.
    appelants_.GardeDocuments(
        [&](std::string const& cle) { return DonneVivantes()->Contient(cle); });
    return std::make_unique<Synchronisation>(std::move(document), DonneVivantes(), appelants_,
                                             appelant);
}

bool Service::PeutCorriger(std::string const& appelant, std::string const& cle, Intervalle plage,
                           std::u16string const& attendu) {
    std::optional<ErreurDuService> refus; // as the correction would be refused
    try {
        auto const [document, zone, croyance] = ZoneDe(appelant, cle);
        refus = RaisonDeNePasCorriger(*document, dialogue_, *zone, croyance, plage, attendu);
    } catch (...) {
        refus = ErreurEnCours();
    }
    appelants_.NoteIssue(appelant, cle, refus);
    if (refus && (refus->DonneCode() == Erreur::Bureau || refus->DonneCode() == Erreur::Interne)) {
        throw ErreurDuService(*refus);
    }
    return !refus;
}

void Service::CorrigeDansTexteur(Auteur const& auteur, std::string const& cle, Intervalle plage,
                                 std::u16string const& texte) {
    try {
        auto const [document, zone, croyance] = ZoneDe(auteur.appelant, cle);
        Corrige(*document, dialogue_, *zone, croyance, plage, texte, auteur);
    } catch (...) {
        appelants_.NoteIssue(auteur.appelant, cle, ErreurEnCours());
        throw;
    }
    appelants_.NoteIssue(auteur.appelant, cle, std::nullopt);
}

void Service::SelectionneIntervalle(std::string const& appelant, std::string const& cle,
                                    Intervalle plage) {
    auto const [document, zone, croyance] = ZoneDe(appelant, cle);
    PlanDePortions const plan = zone->Lis();
    auto const trouve = croyance.Localise(plage, plan.DonneTexte());
    if (!trouve) {
        throw compagnon::RefusDe(trouve.refus, cle);
    }
    // Told even when it fails: what the office has selected instead is not what the tools replace.
    appelants_.MetsSelection(appelant, SelectionDite{cle, plan.DonneTexte(), trouve.plage});
    if (!document->Selectionne(*zone, plan, trouve.plage)) {
        throw ErreurDuService(Erreur::SelectionImpossible,
                              compagnon::Dis({"la suite ne sait pas y sélectionner de l’extérieur",
                                              "the office cannot select there from outside"}));
    }
}

std::u16string Service::DonneContenuSelection(std::string const& appelant) {
    auto const [texte, selection] = DonneContexte(appelant);
    return texte.substr(selection.DonneDebut(), selection.DonneLongueur());
}

std::pair<std::u16string, Intervalle> Service::DonneContexte(std::string const& appelant) {
    auto const lue = DocumentDe(appelant)->DonneSelection();
    appelants_.MetsSelection(appelant, lue ? std::make_optional(Dite(*lue)) : std::nullopt);
    return lue ? std::make_pair(lue->plan.DonneTexte(), *lue->selection)
               : std::make_pair(std::u16string(), Intervalle());
}

void Service::AjusteSelectionPourOutils(std::string const& appelant, std::int32_t deltaDebut,
                                        std::int32_t deltaFin) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    auto lue = document->DonneSelection();
    if (!lue) {
        throw RienDeChoisi();
    }
    lue->selection =
        compagnon::DecaleBornes(*lue->selection, deltaDebut, deltaFin, lue->plan.DonneTexte());
    document->Selectionne(*lue->zone, lue->plan, *lue->selection);
    appelants_.MetsSelection(appelant, Dite(*lue));
}

void Service::RemplaceEtReselectionne(std::string const& appelant, std::u16string const& mot) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    compagnon::VerifieRemplacement(mot);
    if (auto const raison = RaisonDeRefuser(*document, dialogue_)) {
        throw ErreurDuService(*raison);
    }
    auto lue = document->DonneSelection();
    if (!lue) {
        throw RienDeChoisi();
    }
    if (lue->deborde) {
        throw ErreurDuService(Erreur::SelectionImpossible,
                              compagnon::Dis({"elle s’étend sur plusieurs paragraphes",
                                              "it spans several paragraphs"}));
    }
    if (auto const raison = RaisonDeRefuser(*document, dialogue_, *lue->zone)) {
        throw ErreurDuService(*raison);
    }
    appelants_.VerifieSelection(appelant, Dite(*lue));
    Remplace(*document, *lue->zone, lue->plan, *lue->selection, mot, {appelant, false});
    PlanDePortions const plan = lue->zone->Lis();
    auto const taille = static_cast<std::int32_t>(plan.DonneTexte().size());
    Intervalle const resultat{
        std::min(lue->selection->debut, taille),
        std::min(lue->selection->debut + static_cast<std::int32_t>(mot.size()), taille)};
    document->Selectionne(*lue->zone, plan, resultat);
    appelants_.MetsSelection(appelant,
                             SelectionDite{lue->zone->DonneCle(), plan.DonneTexte(), resultat});
}

} // namespace extension
