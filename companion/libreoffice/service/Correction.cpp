// SPDX-License-Identifier: MPL-2.0
#include "Correction.h"

#include "commun/ChainesUno.h"
#include "commun/ErreurDuService.h"
#include "commun/MessagesExtension.h"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>

using namespace com::sun::star;
using compagnon::Intervalle;
using compagnon::PlanDePortions;

namespace extension {

namespace {

/// Groups what happens during its life into one step of the document's undo list.
class EtapeAnnulable {
  public:
    EtapeAnnulable(DocumentOuvert const& document, std::u16string const& nom) {
        uno::Reference<document::XUndoManagerSupplier> const source(document.DonneModele(),
                                                                    uno::UNO_QUERY);
        if (source.is()) {
            pile_ = source->getUndoManager();
            pile_->enterUndoContext(EnUno(nom));
        }
    }
    EtapeAnnulable(EtapeAnnulable const&) = delete;
    EtapeAnnulable& operator=(EtapeAnnulable const&) = delete;
    ~EtapeAnnulable() {
        try {
            if (pile_.is()) {
                pile_->leaveUndoContext();
            }
        } catch (uno::Exception const&) {
            pile_.clear(); // the document goes: nobody will undo in it
        }
    }

  private:
    uno::Reference<document::XUndoManager> pile_;
};

std::string Explique(compagnon::Refus refus) {
    switch (refus) {
    case compagnon::Refus::Inconnu:
        return "the zone's text was never given to this caller";
    case compagnon::Refus::HorsLimites:
        return "the range is not inside the zone";
    case compagnon::Refus::CoupePaire:
        return "the range parts a surrogate pair";
    default:
        return "the document has changed there";
    }
}

} // namespace

std::optional<std::string> RaisonDeRefuser(DocumentOuvert const& document,
                                           DialogueModal const& dialogue) {
    if (document.EstEnLectureSeule()) {
        return "the document is read-only";
    }
    if (dialogue.EstOuvert()) {
        return "a dialogue is open in the office";
    }
    return std::nullopt;
}

bool PeutCorriger(DocumentOuvert const& document, DialogueModal const& dialogue, ZoneOuverte& zone,
                  compagnon::TexteSuivi const& croyance, Intervalle plage,
                  std::u16string const& attendu) {
    if (RaisonDeRefuser(document, dialogue) || zone.EstProtegee() || zone.EstEnFrappe()) {
        return false;
    }
    PlanDePortions const plan = zone.Lis();
    auto const trouve = croyance.Localise(plage, plan.DonneTexte(), attendu);
    return trouve && plan.PeutModifier(trouve.plage.DonneDebut(), trouve.plage.DonneFin());
}

void Remplace(DocumentOuvert const& document, ZoneOuverte& zone, PlanDePortions const& plan,
              Intervalle plage, std::u16string const& texte) {
    auto etapes = plan.Prepare(plage.DonneDebut(), plage.DonneFin(), texte);
    if (!etapes) {
        throw Refuse("the change would touch a field, an anchor, or text that is not shown");
    }
    if (etapes->empty()) {
        return;
    }
    CorrectionPrete correction;
    correction.debut = plage.DonneDebut();
    correction.avant = plan.DonneTexte().substr(plage.DonneDebut(), plage.DonneLongueur());
    correction.apres = texte;
    correction.nom = NomDeCorrection(correction.avant, texte);
    correction.etapes = std::move(*etapes);
    EtapeAnnulable const etape(document, correction.nom);
    zone.Applique(correction);
}

void Corrige(DocumentOuvert const& document, DialogueModal const& dialogue, ZoneOuverte& zone,
             compagnon::TexteSuivi& croyance, Intervalle plage, std::u16string const& texte) {
    try {
        if (auto const raison = RaisonDeRefuser(document, dialogue)) {
            throw Refuse(*raison);
        }
        if (zone.EstProtegee()) {
            throw Refuse("the text is protected");
        }
        if (zone.EstEnFrappe()) {
            throw Refuse("the person is typing in it");
        }
        PlanDePortions const plan = zone.Lis();
        auto const trouve = croyance.Localise(plage, plan.DonneTexte());
        if (!trouve) {
            throw Refuse(Explique(trouve.refus));
        }
        Remplace(document, zone, plan, trouve.plage, texte);
    } catch (...) {
        croyance.NoteRefus(plage);
        throw;
    }
    croyance.NoteCorrection(plage, texte);
}

} // namespace extension
