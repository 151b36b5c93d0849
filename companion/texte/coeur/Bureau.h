// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Appelants.h"
#include "DocumentTexte.h"
#include "Resultat.h"

#include <functional>
#include <list>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// The office: its documents, its callers, and what the contract in protocol/ says of both, without
/// the bus. `appelant` is the calling connection's unique name. Identifiers and keys are UTF-8,
/// texts are UTF-16. One thread.
class Bureau {
  public:
    explicit Bureau(std::string instance)
        : instance_(std::move(instance)) {}

    /// Serves one more file; its key is "doc1", "doc2"… in the order of the calls.
    DocumentTexte& Ouvre(std::string chemin, LectureFichier lecture);
    /// The document is served no more. Its text is not saved. False when there is none of that key.
    bool Ferme(std::string_view cle);

    std::string const& DonneInstance() const noexcept { return instance_; }
    std::string DonneIdentifiant(DocumentTexte const& document) const;
    /// The documents, the one in front first.
    std::list<DocumentTexte> const& DonneDocuments() const noexcept { return documents_; }
    std::list<DocumentTexte>& DonneDocuments() noexcept { return documents_; }
    DocumentTexte* Cherche(std::string_view cle) noexcept;
    /// By whole identifier.
    DocumentTexte* ChercheIdentifiant(std::string_view identifiant) noexcept;
    Appelants& DonneAppelants() noexcept { return appelants_; }

    // The contract's methods that concern a document by its key or identifier.
    Resultat<Rien> InitialiseTexteur(std::string const& appelant, std::string const& cle);
    bool DocEstMort(std::string_view cle) noexcept { return Cherche(cle) == nullptr; }
    Resultat<std::string> SynchronisePositions(std::string const& appelant,
                                               std::string const& identifiant);

    // Those that concern a zone; ranges are the caller's.
    Resultat<bool> PeutCorriger(std::string const& appelant, std::string const& zone,
                                Intervalle plage, std::u16string_view attendu);
    Resultat<Rien> CorrigeDansTexteur(std::string const& appelant, std::string const& zone,
                                      Intervalle plage, std::u16string_view texte);
    Resultat<Rien> SelectionneIntervalle(std::string const& appelant, std::string const& zone,
                                         Intervalle plage);

    // Those that concern the document that the caller last named.
    Resultat<DocumentTexte*> Courant(std::string const& appelant);
    Resultat<Rien> Active(std::string const& appelant);
    Resultat<Rien> AjusteSelection(std::string const& appelant, std::int32_t deltaDebut,
                                   std::int32_t deltaFin);
    Resultat<Rien> RemplaceEtReselectionne(std::string const& appelant, std::u16string_view mot);
    /// The caller lets go of the document that it last named, and of what it believes of it.
    void RompsLien(std::string const& appelant);

    // What the person at the keyboard does; ranges are the document's own.
    Resultat<Rien> Tape(std::string const& zone, Intervalle plage, std::u16string_view texte);
    Resultat<Rien> Selectionne(std::string const& zone, Intervalle plage);
    Resultat<std::string> InsereApres(std::string const& zone, std::u16string_view texte);
    Resultat<Rien> Supprime(std::string const& zone);

    /// The key under which a zone travels.
    static std::string CleDeZone(NumeroZone numero);

  private:
    struct Place {
        DocumentTexte* document;
        NumeroZone numero;
        std::size_t index;
    };
    Resultat<Place> ChercheZone(std::string const& zone);
    /// The same for a caller, which thereby names the zone's document.
    Resultat<Place> ChercheZone(std::string const& appelant, std::string const& zone);

    TexteSuivi* Croyance(std::string const& appelant, Place const& place);

    std::string instance_;
    std::list<DocumentTexte> documents_;
    Appelants appelants_;
    NumeroZone prochainNumero_ = 1;
    std::size_t ouverts_ = 0;
};

} // namespace compagnon
