// SPDX-License-Identifier: MPL-2.0
#include "Synchronisation.h"

#include "Langues.h"
#include "partage/ErreurDuService.h"

#include <utility>

using compagnon::ErreurDuService;
using compagnon::Intervalle;
using contrat::Erreur;

namespace extension {

std::string ZonesARendre::EnJson() const {
    compagnon::EcrivainZones ecrivain;
    ecrivain.Prevois(octets);
    for (Zone const& zone : zones) {
        ecrivain.Ajoute(zone.cle, *zone.texte, zone.selection, zone.styles);
    }
    std::optional<std::string> json = ecrivain.Termine();
    if (!json) {
        throw ErreurDuService(Erreur::TropGrand);
    }
    return std::move(*json);
}

Synchronisation::Synchronisation(std::shared_ptr<DocumentOuvert> document,
                                 std::shared_ptr<ClesVivantes const> vivantes,
                                 compagnon::Appelants& appelants, std::string appelant)
    : document_(std::move(document))
    , vivantes_(std::move(vivantes))
    , appelants_(appelants)
    , appelant_(std::move(appelant))
    , langue_(contrat::DonneNumeroDeLangue(document_->DonneLangue()))
    , lecture_(
          document_,
          [this](auto const& zone, compagnon::PlanDePortions const& plan) { Prends(zone, plan); },
          [this] { Recommence(); }) {
    Recommence();
}

void Synchronisation::Recommence() {
    donne_ = {};
    lues_ = {};
    if (auto const* const avant = appelants_.DonneDonne(appelant_, document_->DonneCle())) {
        donne_.zones.reserve(avant->zones.size());
        lues_.zones.reserve(avant->zones.size());
    }
}

void Synchronisation::Prends(std::shared_ptr<ZoneOuverte> const& zone,
                             compagnon::PlanDePortions const& plan) {
    std::string const& cle = zone->DonneCle();
    std::u16string const& texte = plan.DonneTexte();
    compagnon::TexteSuivi& croyance = donne_.zones[cle];
    // Most often the same zones again with the same texts: those are taken over as they are. Asked
    // anew each time, as the caller may have been forgotten between two pieces.
    if (auto const* const avant = appelants_.DonneDonne(appelant_, document_->DonneCle())) {
        auto const connue = avant->zones.find(cle);
        if (connue != avant->zones.end()) {
            croyance = connue->second;
        }
    }
    if (!croyance.Confirme(texte)) {
        croyance.Donne(std::make_shared<std::u16string const>(texte));
    }
    auto styles = compagnon::RelativesA(langue_, plan.DonneStyles());
    lues_.octets += compagnon::EcrivainZones::BorneDe(cle, texte, styles.size());
    if (lues_.octets > contrat::kLimiteReponse) {
        throw ErreurDuService(Erreur::TropGrand);
    }
    lues_.zones.push_back({cle, croyance.DonneTexte(), Intervalle(), std::move(styles)});
}

bool Synchronisation::Avance(LectureDuDocument::Instant fin) {
    if (!vivantes_->Contient(document_->DonneCle())) {
        throw ErreurDuService(Erreur::DocumentFerme);
    }
    return lecture_.Avance(fin);
}

ZonesARendre Synchronisation::Rends() {
    auto const selections = lecture_.DonneSelections();
    for (std::size_t i = 0; i < selections.size(); ++i) {
        lues_.zones[i].selection = selections[i].value_or(Intervalle());
    }
    appelants_.Donne(appelant_, document_->DonneCle(), std::move(donne_));
    return std::move(lues_);
}

} // namespace extension
