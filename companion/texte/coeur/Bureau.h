// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DocumentTexte.h"
#include "partage/Appelants.h"
#include "partage/ErreurDuService.h"

#include <list>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// The office: its documents, its callers, and what the contract in protocol/ says of both, without
/// the bus. `appelant` is the calling connection's unique name. Identifiers and keys are UTF-8,
/// texts are UTF-16. Operations throw `ErreurDuService`, and have changed nothing then. One thread.
class Bureau {
  public:
    /// A zone of a document that is open.
    struct Place {
        DocumentTexte* document;
        NumeroZone numero;
        std::size_t index;
    };

    explicit Bureau(std::string instance)
        : instance_(std::move(instance)) {}

    /// Serves one more file; its key is "doc1", "doc2"… in the order of the calls.
    DocumentTexte& Ouvre(std::string chemin, LectureFichier lecture);

    std::string const& DonneInstance() const noexcept { return instance_; }
    std::string DonneIdentifiant(DocumentTexte const& document) const;
    /// The documents, the one in front first.
    std::list<DocumentTexte> const& DonneDocuments() const noexcept { return documents_; }
    std::list<DocumentTexte>& DonneDocuments() noexcept { return documents_; }
    /// By key; null where there is none.
    DocumentTexte* Cherche(std::string_view cle) noexcept;
    /// By whole identifier.
    DocumentTexte& ChercheIdentifiant(std::string_view identifiant);
    /// By the zone's key.
    Place ChercheZone(std::string const& zone);
    Appelants& DonneAppelants() noexcept { return appelants_; }

    // The contract's methods that concern a document by its key or identifier.
    void InitialiseTexteur(std::string const& appelant, std::string const& cle);
    bool DocEstMort(std::string_view cle) noexcept { return Cherche(cle) == nullptr; }
    std::string SynchronisePositions(std::string const& appelant, std::string const& identifiant);
    /// What a person would call each zone that the caller was given.
    std::string DonneNomsDeZones(std::string const& appelant, std::string const& identifiant);

    // Those that concern a zone; ranges are the caller's.
    bool PeutCorriger(std::string const& appelant, std::string const& zone, Intervalle plage,
                      std::u16string_view attendu);
    void CorrigeDansTexteur(std::string const& appelant, std::string const& zone, Intervalle plage,
                            std::u16string_view texte);
    void SelectionneIntervalle(std::string const& appelant, std::string const& zone,
                               Intervalle plage);
    /// Why the last of those two questions or corrections was refused to the caller, if it was.
    std::optional<RefusDit> DonneRefus(std::string const& appelant, std::string const& zone) {
        return appelants_.DonneRefus(appelant, zone);
    }

    // Those that concern the document that the caller last named.
    DocumentTexte& Courant(std::string const& appelant);
    void Active(std::string const& appelant);
    void InitialisePour(std::string const& appelant);
    /// The selection, as the caller is told it from now on.
    SelectionDite DisSelection(std::string const& appelant);
    void AjusteSelection(std::string const& appelant, std::int32_t deltaDebut,
                         std::int32_t deltaFin);
    void RemplaceEtReselectionne(std::string const& appelant, std::u16string_view mot);

    /// A number that no zone has had.
    NumeroZone NouveauNumero() noexcept { return prochainNumero_++; }
    /// The key under which a zone travels.
    static std::string CleDeZone(NumeroZone numero);

  private:
    TexteSuivi& Croyance(std::string const& appelant, Place const& place);
    void Corrige(std::string const& appelant, std::string const& zone, Intervalle plage,
                 std::u16string_view texte);

    std::string instance_;
    std::list<DocumentTexte> documents_;
    Appelants appelants_;
    NumeroZone prochainNumero_ = 1;
    std::size_t ouverts_ = 0;
};

} // namespace compagnon
