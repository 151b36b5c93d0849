// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DocumentTexte.h"
#include "modele/TexteSuivi.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

namespace compagnon {

/// What is known of one calling connection.
struct Appelant {
    using Croyances = std::unordered_map<NumeroZone, TexteSuivi>;

    std::string document; ///< key of the document that it last named; empty: none
    std::map<std::string, Croyances> croyances; ///< by document key, since its last synchronisation
    std::uint64_t dernierUsage = 0;

    /// What it believes of a zone, or null where it was never given it.
    TexteSuivi* Croyance(std::string const& cle, NumeroZone zone) noexcept;
};

/// The callers, by their unique name on the bus. Bounded, in their number and in what is kept of
/// them: past that the one that has been silent longest is forgotten, and must synchronise again
/// before it can correct.
class Appelants {
  public:
    static constexpr std::size_t kMax = 256;
    static constexpr std::size_t kCroyancesMax = 4000000; ///< zones, over all callers

    /// The caller's entry, made when it has none. Valid until the next call of this operation.
    Appelant& Donne(std::string const& nom);
    /// The caller has been given these zones of a document.
    void Donne(std::string const& nom, std::string const& cle, Appelant::Croyances croyances);
    /// The caller has left the bus.
    void Oublie(std::string const& nom) noexcept { appelants_.erase(nom); }
    /// The document is gone: nobody believes anything of it.
    void OublieDocument(std::string const& cle) noexcept;
    bool Connait(std::string const& nom) const noexcept { return appelants_.count(nom) != 0; }
    std::size_t Nombre() const noexcept { return appelants_.size(); }

  private:
    using Table = std::unordered_map<std::string, Appelant>;
    void OublieLePlusAncien(std::string const& sauf);

    Table appelants_;
    std::uint64_t horloge_ = 0;
};

} // namespace compagnon
