// SPDX-License-Identifier: MPL-2.0
#include "CarnetDeZones.h"

using namespace com::sun::star;

namespace extension {

std::string CarnetDeZones::NouvelleCle() {
    return prefixe_ + ":" + std::to_string(++derniere_);
}

std::shared_ptr<Inscrit> CarnetDeZones::Revois(uno::Reference<uno::XInterface> const& objet) {
    auto const trouve = parObjet_.find(objet.get());
    if (trouve == parObjet_.end()) {
        return nullptr;
    }
    Rencontre(trouve->second);
    return trouve->second.inscrit;
}

void CarnetDeZones::Inscris(uno::Reference<uno::XInterface> const& objet,
                            std::shared_ptr<Inscrit> const& inscrit) {
    Entree& entree = parObjet_[objet.get()];
    Rencontre(entree);
    entree.objet = objet;
    entree.inscrit = inscrit;
}

void CarnetDeZones::InscrisCle(std::shared_ptr<ZoneOuverte> const& zone) {
    parCle_[zone->DonneCle()] = zone;
}

void CarnetDeZones::OublieCle(std::string const& cle) {
    parCle_.erase(cle);
}

std::shared_ptr<ZoneOuverte> CarnetDeZones::TrouveParCle(std::string const& cle) const {
    auto const trouve = parCle_.find(cle);
    return trouve == parCle_.end() ? nullptr : trouve->second;
}

std::vector<std::shared_ptr<ZoneOuverte>> CarnetDeZones::DonneZones() const {
    std::vector<std::shared_ptr<ZoneOuverte>> zones;
    zones.reserve(parCle_.size());
    for (auto const& [cle, zone] : parCle_) {
        zones.push_back(zone);
    }
    return zones;
}

void CarnetDeZones::Rencontre(Entree& entree) {
    if (entree.passage != passage_) {
        entree.passage = passage_;
        ++rencontres_;
    }
}

void CarnetDeZones::Termine(std::uint64_t passage) {
    if (rencontres_ == parObjet_.size()) {
        return; // nothing has gone, which is most often so: no need to look at each
    }
    for (auto it = parObjet_.begin(); it != parObjet_.end();) {
        if (it->second.passage >= passage) {
            ++it;
            continue;
        }
        it->second.inscrit->Quitte(*this);
        it = parObjet_.erase(it);
    }
}

} // namespace extension
