// SPDX-License-Identifier: MPL-2.0
#include "Appelants.h"

#include "Messages.h"

#include <utility>

namespace compagnon {

Appelant* Appelants::Cherche(std::string const& nom) {
    auto const trouve = appelants_.find(nom);
    if (trouve == appelants_.end()) {
        return nullptr;
    }
    trouve->second.dernierUsage = ++horloge_;
    return &trouve->second;
}

Appelant& Appelants::Donne(std::string const& nom) {
    if (Appelant* const connu = Cherche(nom)) {
        return *connu;
    }
    if (appelants_.size() >= kMax) {
        OublieLePlusAncien(nom);
    }
    Appelant& nouveau = appelants_[nom];
    nouveau.dernierUsage = ++horloge_;
    return nouveau;
}

bool Appelants::ANomme(std::string const& nom) const {
    auto const appelant = appelants_.find(nom);
    return appelant != appelants_.end() && !appelant->second.document.empty();
}

std::string const& Appelants::DonneDocument(std::string const& nom) {
    Appelant const* const appelant = Cherche(nom);
    if (!appelant || appelant->document.empty()) {
        throw ErreurDuService(contrat::Erreur::AucunDocument);
    }
    return appelant->document;
}

TexteSuivi& Appelants::NommeZone(std::string const& nom, std::string const& cle,
                                 std::string const& zone) {
    if (Appelant* const appelant = Cherche(nom)) {
        auto const donne = appelant->donnes.find(cle);
        if (donne != appelant->donnes.end()) {
            auto const croyance = donne->second.zones.find(zone);
            if (croyance != donne->second.zones.end()) {
                appelant->document = cle;
                return croyance->second;
            }
        }
    }
    throw ErreurDuService(contrat::Erreur::ZoneInconnue, zone);
}

DocumentDonne const* Appelants::DonneDonne(std::string const& nom, std::string const& cle) const {
    auto const appelant = appelants_.find(nom);
    if (appelant == appelants_.end()) {
        return nullptr;
    }
    auto const donne = appelant->second.donnes.find(cle);
    return donne == appelant->second.donnes.end() ? nullptr : &donne->second;
}

void Appelants::Donne(std::string const& nom, std::string const& cle, DocumentDonne donne) {
    Appelant& appelant = Donne(nom);
    appelant.document = cle;
    DocumentDonne& place = appelant.donnes[cle];
    for (auto& [zone, refus] : place.refus) {
        if (donne.zones.count(zone) != 0) {
            donne.refus.emplace(zone, std::move(refus));
        }
    }
    place = std::move(donne);
    while (appelants_.size() > 1 && CompteZones() > kZonesMax) {
        OublieLePlusAncien(nom);
    }
}

DocumentDonne* Appelants::ChercheDonne(std::string const& nom, std::string const& zone) {
    if (Appelant* const appelant = Cherche(nom)) {
        for (auto& [cle, donne] : appelant->donnes) {
            if (donne.zones.count(zone) != 0) {
                return &donne;
            }
        }
    }
    return nullptr;
}

void Appelants::NoteIssue(std::string const& nom, std::string const& zone,
                          std::optional<ErreurDuService> const& refus) {
    DocumentDonne* const donne = ChercheDonne(nom, zone);
    if (donne && refus) {
        donne->refus[zone] = {refus->DonneCode(), refus->what()};
    } else if (donne) {
        donne->refus.erase(zone);
    }
}

std::optional<RefusDit> Appelants::DonneRefus(std::string const& nom, std::string const& zone) {
    DocumentDonne const* const donne = ChercheDonne(nom, zone);
    if (!donne) {
        throw ErreurDuService(contrat::Erreur::ZoneInconnue, zone);
    }
    auto const refus = donne->refus.find(zone);
    return refus == donne->refus.end() ? std::nullopt : std::make_optional(refus->second);
}

void Appelants::VerifieSelection(std::string const& nom, SelectionDite const& actuelle) {
    Appelant const* const appelant = Cherche(nom);
    if (appelant && appelant->selection && !(*appelant->selection == actuelle)) {
        throw ErreurDuService(contrat::Erreur::PlageRefusee,
                              Dis({"la sélection n'est plus celle qui vous a été dite",
                                   "the selection is not the one that you were told any more"}));
    }
}

void Appelants::LacheZones(std::string const& nom) {
    if (Appelant* const appelant = Cherche(nom)) {
        appelant->donnes.erase(appelant->document);
    }
}

void Appelants::NoteRefus(std::string const& nom, std::string const& zone, Intervalle plage) {
    Appelant* const appelant = Cherche(nom);
    if (!appelant) {
        return;
    }
    for (auto& [cle, donne] : appelant->donnes) {
        auto const croyance = donne.zones.find(zone);
        if (croyance != donne.zones.end()) {
            croyance->second.NoteRefus(plage);
        }
    }
}

void Appelants::OublieZones(std::string const& nom) {
    if (Appelant* const appelant = Cherche(nom)) {
        appelant->donnes.clear();
    }
}

void Appelants::LacheDocument(std::string const& nom) {
    LacheZones(nom);
    if (Appelant* const appelant = Cherche(nom)) {
        appelant->document.clear();
        appelant->selection.reset();
    }
}

void Appelants::GardeDocuments(std::function<bool(std::string const& cle)> const& ouvert) {
    for (auto& [nom, appelant] : appelants_) {
        auto& donnes = appelant.donnes;
        for (auto donne = donnes.begin(); donne != donnes.end();) {
            donne = ouvert(donne->first) ? std::next(donne) : donnes.erase(donne);
        }
    }
}

void Appelants::OublieLePlusAncien(std::string const& sauf) {
    auto ancien = appelants_.end();
    for (auto candidat = appelants_.begin(); candidat != appelants_.end(); ++candidat) {
        if (candidat->first != sauf &&
            (ancien == appelants_.end() ||
             candidat->second.dernierUsage < ancien->second.dernierUsage)) {
            ancien = candidat;
        }
    }
    if (ancien != appelants_.end()) {
        appelants_.erase(ancien);
    }
}

std::size_t Appelants::CompteZones() const noexcept {
    std::size_t nombre = 0;
    for (auto const& [nom, appelant] : appelants_) {
        for (auto const& [cle, donne] : appelant.donnes) {
            nombre += donne.zones.size();
        }
    }
    return nombre;
}

} // namespace compagnon
