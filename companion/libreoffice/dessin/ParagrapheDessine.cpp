// SPDX-License-Identifier: MPL-2.0
#include "ParagrapheDessine.h"

#include "AnnulationDessin.h"
#include "partage/ErreurDuService.h"

#include <utility>

using compagnon::PlanDePortions;

namespace extension {

ParagrapheDessine::ParagrapheDessine(std::string cle, std::weak_ptr<TexteDessine> texte,
                                     CarnetDeZones& carnet)
    : ZoneOuverte(std::move(cle))
    , texte_(std::move(texte))
    , carnet_(carnet) {}

std::shared_ptr<TexteDessine> ParagrapheDessine::DonneTexte() const {
    std::shared_ptr<TexteDessine> texte = texte_.lock();
    if (!texte) {
        throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
    }
    return texte;
}

PlanDePortions ParagrapheDessine::Lis() {
    std::shared_ptr<TexteDessine> const texte = DonneTexte();
    std::vector<ParagrapheLu> lus = texte->Relis(carnet_);
    for (std::size_t i = 0; i < lus.size(); ++i) {
        if (texte->DonneZones()[i].get() == this) {
            rang_ = i;
            return std::move(lus[i].plan);
        }
    }
    throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
}

bool ParagrapheDessine::EstProtegee() {
    return DonneTexte()->EstProtege();
}

void ParagrapheDessine::Applique(CorrectionPrete const& correction) {
    std::shared_ptr<TexteDessine> const texte = DonneTexte();
    auto gestes = texte->Remplace(rang_, correction.debut, correction.avant, correction.apres);
    if (!gestes) {
        throw compagnon::ErreurDuService(contrat::Erreur::ChampDetruit);
    }
    if (!texte->SAnnuleSeul()) {
        AjouteAnnulation(texte, std::move(*gestes), correction.nom);
    }
}

void ParagrapheDessine::Selectionne(PlanDePortions const& /*plan*/, std::size_t /*debut*/,
                                    std::size_t /*fin*/) {
    DonneTexte()->Selectionne();
}

std::shared_ptr<TexteDessine> TexteDe(ZoneOuverte& zone) {
    auto* const paragraphe = dynamic_cast<ParagrapheDessine*>(&zone);
    return paragraphe == nullptr ? nullptr : paragraphe->DonneTexte();
}

} // namespace extension
