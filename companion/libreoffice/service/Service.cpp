// SPDX-License-Identifier: MPL-2.0
#include "Service.h"

#include "Correction.h"
#include "EcritureDocuments.h"
#include "commun/ErreurDuService.h"
#include "modele/EcrivainZones.h"

#include <algorithm>
#include <utility>

using namespace com::sun::star;
using compagnon::Intervalle;
using compagnon::PlanDePortions;

namespace extension {

Service::Service(uno::Reference<uno::XComponentContext> const& contexte, std::string instance)
    : instance_(std::move(instance))
    , documents_(contexte)
    , dialogue_(contexte) {}

std::string Service::DonneIdentifiant(DocumentOuvert const& document) const {
    return instance_ + "~" + document.DonneCle();
}

std::string Service::DonneDocuments() {
    EcritureDocuments ecriture;
    for (std::shared_ptr<DocumentOuvert> const& document : documents_.Tous()) {
        ecriture.Ajoute(DonneIdentifiant(*document), document->DonneTitre(),
                        document->DonneChemin());
    }
    return ecriture.Termine();
}

std::shared_ptr<DocumentOuvert> Service::DocumentDe(std::string const& appelant) {
    auto const session = sessions_.find(appelant);
    std::shared_ptr<DocumentOuvert> document =
        session == sessions_.end() ? nullptr : documents_.TrouveParCle(session->second.document);
    if (!document) {
        throw DocumentInconnu();
    }
    return document;
}

std::pair<std::shared_ptr<DocumentOuvert>, std::shared_ptr<ZoneOuverte>>
Service::ZoneDe(Session& session, std::string const& cle) {
    std::shared_ptr<DocumentOuvert> document = documents_.TrouveParZone(cle);
    std::shared_ptr<ZoneOuverte> zone = document ? document->DonneZone(cle) : nullptr;
    if (!zone) {
        throw ZoneInconnue();
    }
    session.document = document->DonneCle();
    return {std::move(document), std::move(zone)};
}

void Service::InitialiseTexteur(std::string const& appelant, std::string const& cle) {
    documents_.Tous(); // one that was opened since may be meant
    if (!documents_.TrouveParCle(cle)) {
        throw DocumentInconnu();
    }
    sessions_[appelant].document = cle;
}

void Service::Active(std::string const& appelant) {
    DocumentDe(appelant)->Active();
}

void Service::InitialisePour(std::string const& appelant) {
    DocumentDe(appelant);
    sessions_[appelant].contexte.reset();
}

void Service::RompsLienCorrecteur(std::string const& appelant) {
    auto const session = sessions_.find(appelant);
    if (session != sessions_.end()) {
        session->second.croyances.clear();
    }
}

std::u16string Service::DonneTitreDocument(std::string const& appelant) {
    return DocumentDe(appelant)->DonneTitre();
}

std::u16string Service::DonneCheminDocument(std::string const& appelant) {
    return DocumentDe(appelant)->DonneChemin();
}

bool Service::PermetsRetourDeCharriot(std::string const& appelant) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    if (RaisonDeRefuser(*document, dialogue_)) {
        return false;
    }
    auto const lue = document->DonneSelection();
    return lue && lue->zone->PermetsRetour() && !lue->zone->EstProtegee();
}

std::string Service::SynchronisePositions(std::string const& appelant, std::string const& leId) {
    std::string const prefixe = instance_ + "~";
    std::shared_ptr<DocumentOuvert> const document =
        leId.compare(0, prefixe.size(), prefixe) == 0
            ? documents_.TrouveParCle(leId.substr(prefixe.size()))
            : nullptr;
    if (!document) {
        throw DocumentInconnu();
    }
    Session& session = sessions_[appelant];
    session.document = document->DonneCle();
    compagnon::EcrivainZones ecrivain;
    ecrivain.Prevois(session.tailleZones + session.tailleZones / 16);
    // Most often the same zones again with the same texts: those are taken over as they are.
    auto anciennes = std::exchange(session.croyances, {});
    decltype(anciennes) croyances;
    croyances.reserve(anciennes.size());
    document->Parcours([&](ZoneLue const& lue) {
        std::u16string const& texte = lue.plan.DonneTexte();
        ecrivain.Ajoute(lue.zone->DonneCle(), texte, lue.selection.value_or(Intervalle()),
                        lue.plan.DonneStyles());
        auto connue = anciennes.extract(lue.zone->DonneCle());
        if (!connue.empty() && connue.mapped().Confirme(texte)) {
            croyances.insert(std::move(connue));
        } else {
            croyances[lue.zone->DonneCle()].Donne(std::make_shared<std::u16string const>(texte));
        }
    });
    std::optional<std::string> zones = ecrivain.Termine();
    if (!zones) {
        throw ErreurDuService("TropGrand",
                              "the document's text does not fit in one message of the bus");
    }
    session.croyances = std::move(croyances);
    session.tailleZones = zones->size();
    return std::move(*zones);
}

bool Service::PeutCorriger(std::string const& appelant, std::string const& cle, Intervalle plage,
                           std::u16string const& attendu) {
    Session& session = sessions_[appelant];
    auto const [document, zone] = ZoneDe(session, cle);
    return extension::PeutCorriger(*document, dialogue_, *zone, session.croyances[cle], plage,
                                   attendu);
}

void Service::CorrigeDansTexteur(std::string const& appelant, std::string const& cle,
                                 Intervalle plage, std::u16string const& texte) {
    Session& session = sessions_[appelant];
    auto const [document, zone] = ZoneDe(session, cle);
    Corrige(*document, dialogue_, *zone, session.croyances[cle], plage, texte);
}

void Service::SelectionneIntervalle(std::string const& appelant, std::string const& cle,
                                    Intervalle plage) {
    Session& session = sessions_[appelant];
    auto const [document, zone] = ZoneDe(session, cle);
    PlanDePortions const plan = zone->Lis();
    auto const trouve = session.croyances[cle].Localise(plage, plan.DonneTexte());
    if (!trouve) {
        throw Refuse("the document has changed there");
    }
    // Told even when it fails: what the office has selected instead is not what the tools replace.
    session.contexte = Session::Contexte{zone->DonneCle(), plan.DonneTexte(), trouve.plage};
    if (!document->Selectionne(*zone, plan, trouve.plage)) {
        throw Refuse("the office cannot select that text from outside");
    }
}

std::u16string Service::DonneContenuSelection(std::string const& appelant) {
    auto const [texte, selection] = DonneContexte(appelant);
    return texte.substr(selection.DonneDebut(), selection.DonneLongueur());
}

std::pair<std::u16string, Intervalle> Service::DonneContexte(std::string const& appelant) {
    auto lue = DocumentDe(appelant)->DonneSelection();
    Session& session = sessions_[appelant];
    if (!lue) {
        session.contexte.reset();
        return {};
    }
    session.contexte =
        Session::Contexte{lue->zone->DonneCle(), lue->plan.DonneTexte(), *lue->selection};
    return {lue->plan.DonneTexte(), *lue->selection};
}

void Service::AjusteSelectionPourOutils(std::string const& appelant, std::int32_t deltaDebut,
                                        std::int32_t deltaFin) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    auto lue = document->DonneSelection();
    if (!lue) {
        throw Refuse("no text is selected");
    }
    auto const taille = static_cast<std::int64_t>(lue->plan.DonneTexte().size());
    auto const borne = [&](std::int64_t position, std::int64_t minimum) {
        return static_cast<std::int32_t>(std::clamp(position, minimum, taille));
    };
    Intervalle selection;
    selection.debut = borne(std::int64_t{lue->selection->debut} + deltaDebut, 0);
    selection.fin = borne(std::int64_t{lue->selection->fin} + deltaFin, selection.debut);
    document->Selectionne(*lue->zone, lue->plan, selection);
    sessions_[appelant].contexte =
        Session::Contexte{lue->zone->DonneCle(), lue->plan.DonneTexte(), selection};
}

void Service::RemplaceEtReselectionne(std::string const& appelant, std::u16string const& mot) {
    std::shared_ptr<DocumentOuvert> const document = DocumentDe(appelant);
    if (auto const raison = RaisonDeRefuser(*document, dialogue_)) {
        throw Refuse(*raison);
    }
    auto lue = document->DonneSelection();
    if (!lue) {
        throw Refuse("no text is selected");
    }
    if (lue->zone->EstProtegee()) {
        throw Refuse("the text is protected");
    }
    if (lue->deborde) {
        throw Refuse("the selection spans several paragraphs");
    }
    std::optional<Session::Contexte>& contexte = sessions_[appelant].contexte;
    if (contexte &&
        (contexte->zone != lue->zone->DonneCle() || contexte->selection != *lue->selection ||
         contexte->texte != lue->plan.DonneTexte())) {
        throw Refuse("the selection is another one than the caller was told");
    }
    if (lue->zone->EstEnFrappe()) {
        throw Refuse("the person is typing in it");
    }
    Remplace(*document, *lue->zone, lue->plan, *lue->selection, mot);
    PlanDePortions const plan = lue->zone->Lis();
    auto const taille = static_cast<std::int32_t>(plan.DonneTexte().size());
    Intervalle const resultat{
        std::min(lue->selection->debut, taille),
        std::min(lue->selection->debut + static_cast<std::int32_t>(mot.size()), taille)};
    document->Selectionne(*lue->zone, plan, resultat);
    contexte = Session::Contexte{lue->zone->DonneCle(), plan.DonneTexte(), resultat};
}

} // namespace extension
