// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DialogueModal.h"
#include "DocumentsOuverts.h"
#include "EtapeAnnulable.h"
#include "NomsDeZones.h"
#include "Synchronisation.h"
#include "partage/Appelants.h"

#include <cstdint>
#include <memory>
#include <string>

namespace extension {

/// The methods of both interfaces (protocol/), as one caller sees them. Main thread only. Every
/// operation may throw `compagnon::ErreurDuService` or a UNO exception; nothing was changed then.
class Service {
  public:
    /// `instance`: the first part of the identifiers handed out.
    Service(css::uno::Reference<css::uno::XComponentContext> const& contexte, std::string instance);

    std::shared_ptr<ClesVivantes const> DonneVivantes() const noexcept {
        return documents_.DonneVivantes();
    }
    DocumentsOuverts& LesDocuments() noexcept { return documents_; }
    std::string const& DonneInstance() const noexcept { return instance_; }
    /// Whole identifier of a document.
    std::string DonneIdentifiant(DocumentOuvert const& document) const;
    /// That caller has left the bus.
    void Oublie(std::string const& appelant) { appelants_.Oublie(appelant); }
    /// It may count on a correction that was not made: it synchronises before its next one.
    void OublieZones(std::string const& appelant) { appelants_.OublieZones(appelant); }
    /// A correction of its was given up before it was looked at.
    void RenonceACorriger(std::string const& appelant, std::string const& zone,
                          compagnon::Intervalle plage) {
        appelants_.NoteRefus(appelant, zone, plage);
        appelants_.NoteIssue(appelant, zone, compagnon::ErreurDuService(contrat::Erreur::Occupe));
    }

    std::string DonneDocuments();
    /// What a person would call each zone of the document that the caller was given. `leId`: a
    /// whole identifier, as in the next one.
    NomsDeZones DonneNomsDeZones(std::string const& appelant, std::string const& leId);
    /// What the document is, and what of it is left out.
    std::string DonneRapport(std::string const& leId);

    void InitialiseTexteur(std::string const& appelant, std::string const& cle);
    void Active(std::string const& appelant);
    void InitialisePour(std::string const& appelant);
    void RompsLienCorrecteur(std::string const& appelant) { appelants_.LacheZones(appelant); }
    void RompsLienTexteur(std::string const& appelant) { appelants_.LacheDocument(appelant); }

    std::u16string DonneTitreDocument(std::string const& appelant);
    std::u16string DonneCheminDocument(std::string const& appelant);
    bool PermetsRetourDeCharriot(std::string const& appelant);

    /// "SynchronisePositions", piece by piece. `leId`: a whole identifier. The result must not
    /// outlive this.
    std::unique_ptr<Synchronisation> CommenceSynchronisation(std::string const& appelant,
                                                             std::string const& leId);
    bool PeutCorriger(std::string const& appelant, std::string const& zone,
                      compagnon::Intervalle plage, std::u16string const& attendu);
    void CorrigeDansTexteur(Auteur const& auteur, std::string const& zone,
                            compagnon::Intervalle plage, std::u16string const& texte);
    /// Why the last of those two was refused to the caller in that zone, if it was.
    std::optional<compagnon::RefusDit> DonneRefus(std::string const& appelant,
                                                  std::string const& zone) {
        return appelants_.DonneRefus(appelant, zone);
    }
    void SelectionneIntervalle(std::string const& appelant, std::string const& zone,
                               compagnon::Intervalle plage);

    std::u16string DonneContenuSelection(std::string const& appelant);
    /// The text of the selection's zone, and the selection in it; empty without one.
    std::pair<std::u16string, compagnon::Intervalle> DonneContexte(std::string const& appelant);
    void AjusteSelectionPourOutils(std::string const& appelant, std::int32_t deltaDebut,
                                   std::int32_t deltaFin);
    void RemplaceEtReselectionne(std::string const& appelant, std::u16string const& mot);

  private:
    std::shared_ptr<DocumentOuvert> DocumentDe(std::string const& appelant);
    /// The one of that whole identifier.
    std::shared_ptr<DocumentOuvert> DocumentDIdentifiant(std::string const& leId);
    struct ZoneNommee {
        std::shared_ptr<DocumentOuvert> document;
        std::shared_ptr<ZoneOuverte> zone;
        compagnon::TexteSuivi& croyance;
    };
    /// The zone of that key, which the caller was given and names thereby.
    ZoneNommee ZoneDe(std::string const& appelant, std::string const& cle);

    std::string instance_;
    DocumentsOuverts documents_;
    DialogueModal dialogue_;
    compagnon::Appelants appelants_;
};

} // namespace extension
