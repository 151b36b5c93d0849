// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ErreurDuService.h"
#include "SelectionDite.h"
#include "modele/TexteSuivi.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>

namespace compagnon {

/// Why a correction was not made, or could not be.
struct RefusDit {
    contrat::Erreur code;
    std::string phrase; ///< for the person, in UTF-8
};

/// What a caller was given of one document when it last synchronised, with its corrections since.
struct DocumentDonne {
    std::unordered_map<std::string, TexteSuivi> zones; ///< by zone key
    std::unordered_map<std::string, RefusDit> refus;   ///< of the zones last refused to it
};

/// What is known of one calling connection.
struct Appelant {
    std::string document;                        ///< key of the one it last named; empty: none
    std::map<std::string, DocumentDonne> donnes; ///< by document key
    std::optional<SelectionDite> selection; ///< as its tools know it; nothing: they were told none
    std::uint64_t dernierUsage = 0;
};

/// The callers, by their unique name on the bus. Bounded, in their number and in what is kept of
/// them: past that the one that has been silent longest is forgotten, and must synchronise again
/// before it can correct. One thread.
class Appelants {
  public:
    static constexpr std::size_t kMax = 256;
    static constexpr std::size_t kZonesMax = 4'000'000; ///< over all callers

    /// The caller names the document of this key.
    void Nomme(std::string const& nom, std::string const& cle) { Donne(nom).document = cle; }
    /// Key of the document that it last named. Throws `AucunDocument`.
    std::string const& DonneDocument(std::string const& nom);
    /// Has it named one, and not let go of it?
    bool ANomme(std::string const& nom) const;
    /// The caller names a zone of a document, and thereby that document. Its belief of the zone,
    /// valid until the caller is given the document anew or forgotten. Throws `ZoneInconnue` where
    /// it was not given the zone, and changes nothing then.
    TexteSuivi& NommeZone(std::string const& nom, std::string const& cle, std::string const& zone);

    /// What it was last given of a document; null where nothing. Valid as above.
    DocumentDonne const* DonneDonne(std::string const& nom, std::string const& cle) const;
    /// It has been given the document, which it names thereby. What it was refused in zones that
    /// are still there is not forgotten: a caller that does not wait asks afterwards.
    void Donne(std::string const& nom, std::string const& cle, DocumentDonne donne);

    /// What became of its last correction of a zone, or of its last question whether that may be
    /// made; nothing: it was not refused. Noted only for a zone that it was given.
    void NoteIssue(std::string const& nom, std::string const& zone,
                   std::optional<ErreurDuService> const& refus);
    /// The refusal last noted for a zone; nothing where there is none. Throws `ZoneInconnue` where
    /// it was not given the zone: every correction there is refused so.
    std::optional<RefusDit> DonneRefus(std::string const& nom, std::string const& zone);

    /// It was told the selection, or chose it itself; nothing: what it knew is void.
    void MetsSelection(std::string const& nom, std::optional<SelectionDite> selection) {
        Donne(nom).selection = std::move(selection);
    }
    /// Throws `PlageRefusee` where the selection is another one than the caller was told.
    void VerifieSelection(std::string const& nom, SelectionDite const& actuelle);

    /// It lets go of the zones of the document that it last named.
    void LacheZones(std::string const& nom);
    /// It lets go of the document that it last named as a whole.
    void LacheDocument(std::string const& nom);
    /// A correction of its was given up before it was looked at, in a zone of that key.
    void NoteRefus(std::string const& nom, std::string const& zone, Intervalle plage);
    /// It lets go of the zones of every document.
    void OublieZones(std::string const& nom);
    /// It has left the bus.
    void Oublie(std::string const& nom) noexcept { appelants_.erase(nom); }
    /// Documents that are not open any more are no longer anybody's.
    void GardeDocuments(std::function<bool(std::string const& cle)> const& ouvert);

    bool Connait(std::string const& nom) const noexcept { return appelants_.count(nom) != 0; }
    std::size_t Nombre() const noexcept { return appelants_.size(); }

  private:
    /// The caller's entry, made when it has none.
    Appelant& Donne(std::string const& nom);
    Appelant* Cherche(std::string const& nom);
    /// What the caller was given of the document that holds the zone; null where it was not.
    DocumentDonne* ChercheDonne(std::string const& nom, std::string const& zone);
    void OublieLePlusAncien(std::string const& sauf);
    std::size_t CompteZones() const noexcept;

    std::unordered_map<std::string, Appelant> appelants_;
    std::uint64_t horloge_ = 0;
};

} // namespace compagnon
