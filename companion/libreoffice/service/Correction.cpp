// SPDX-License-Identifier: MPL-2.0
#include "Correction.h"

#include "RaisonDeRefuser.h"
#include "commun/NomDeCorrection.h"
#include "modele/EditionMinimale.h"
#include "modele/Utf.h"
#include "partage/LimiteDeRemplacement.h"

using compagnon::ErreurDuService;
using compagnon::Intervalle;
using compagnon::PlanDePortions;
using contrat::Erreur;

namespace extension {

namespace {

/// Throws where `apres` would put in a letter that the zone cannot take. What both texts have stays
/// as it is; the filler of a field that is moved about is the field's affair.
void VerifieLettres(ZoneOuverte const& zone, std::u16string_view avant, std::u16string_view apres) {
    std::u16string_view const ajout = compagnon::EditionMinimale::Entre(avant, apres).ajout;
    bool const deplaceUnChamp = ajout.find(compagnon::kRemplissage) != std::u16string_view::npos &&
                                avant.find(compagnon::kRemplissage) != std::u16string_view::npos;
    if ((!compagnon::EstTapable(ajout) && !deplaceUnChamp) ||
        (!zone.PermetsRetour() && ajout.find(u'\n') != std::u16string_view::npos)) {
        throw ErreurDuService(Erreur::FinDeLigne);
    }
}

} // namespace

std::optional<ErreurDuService>
RaisonDeNePasCorriger(DocumentOuvert const& document, DialogueModal const& dialogue,
                      ZoneOuverte& zone, compagnon::TexteSuivi const& croyance, Intervalle plage,
                      std::u16string const& attendu) {
    if (auto const raison = RaisonDeRefuser(document, dialogue, zone)) {
        return ErreurDuService(*raison);
    }
    PlanDePortions const plan = zone.Lis();
    auto const trouve = croyance.Localise(plage, plan.DonneTexte(), attendu);
    if (!trouve) {
        return compagnon::RefusDe(trouve.refus, zone.DonneCle());
    }
    if (!plan.PeutModifier(trouve.plage.DonneDebut(), trouve.plage.DonneFin())) {
        return ErreurDuService(Erreur::ChampDetruit);
    }
    return std::nullopt;
}

void Remplace(DocumentOuvert& document, ZoneOuverte& zone, PlanDePortions const& plan,
              Intervalle plage, std::u16string const& texte, Auteur const& auteur) {
    std::u16string avant = plan.DonneTexte().substr(plage.DonneDebut(), plage.DonneLongueur());
    VerifieLettres(zone, avant, texte);
    auto etapes = plan.Prepare(plage.DonneDebut(), plage.DonneFin(), texte);
    if (!etapes) {
        throw ErreurDuService(Erreur::ChampDetruit);
    }
    if (etapes->empty()) {
        return;
    }
    CorrectionPrete correction;
    correction.debut = plage.DonneDebut();
    correction.avant = std::move(avant);
    correction.apres = texte;
    correction.nom = NomDeCorrection(correction.avant, texte);
    correction.etapes = std::move(*etapes);
    EtapeAnnulable const etape(document, correction.nom, auteur);
    document.NoteCorrection();
    zone.Applique(correction);
}

void Corrige(DocumentOuvert& document, DialogueModal const& dialogue, ZoneOuverte& zone,
             compagnon::TexteSuivi& croyance, Intervalle plage, std::u16string const& texte,
             Auteur const& auteur) {
    try {
        compagnon::VerifieRemplacement(texte);
        if (auto const raison = RaisonDeRefuser(document, dialogue, zone)) {
            throw ErreurDuService(*raison);
        }
        PlanDePortions const plan = zone.Lis();
        auto const trouve = croyance.Localise(plage, plan.DonneTexte());
        if (!trouve) {
            throw compagnon::RefusDe(trouve.refus, zone.DonneCle());
        }
        Remplace(document, zone, plan, trouve.plage, texte, auteur);
    } catch (...) {
        croyance.NoteRefus(plage);
        throw;
    }
    croyance.NoteCorrection(plage, texte);
}

} // namespace extension
