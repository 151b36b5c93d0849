// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ZoneOuverte.h"

#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/XInterface.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace extension {

/// The keys of a document's zones: the same paragraph keeps the same key for as long as the office
/// keeps the same object for it, which it does while this book holds that object. Main thread only.
class CarnetDeZones {
  public:
    explicit CarnetDeZones(std::string prefixe)
        : prefixe_(std::move(prefixe)) {}

    /// A key never given before.
    std::string NouvelleCle();

    /// What was entered for an object of the office, or null when that is not, or not of that kind;
    /// marks it as still there.
    template <typename Genre>
    std::shared_ptr<Genre> Retrouve(css::uno::Reference<css::uno::XInterface> const& objet) {
        return std::dynamic_pointer_cast<Genre>(Revois(objet));
    }
    /// Enters a zone, or a text whose zones come and go on their own, for its object.
    void Inscris(css::uno::Reference<css::uno::XInterface> const& objet,
                 std::shared_ptr<Inscrit> const& inscrit);

    /// From now on the zone is found by its key.
    void InscrisCle(std::shared_ptr<ZoneOuverte> const& zone);
    void OublieCle(std::string const& cle);

    std::shared_ptr<ZoneOuverte> TrouveParCle(std::string const& cle) const;
    /// All zones, in no order.
    std::vector<std::shared_ptr<ZoneOuverte>> DonneZones() const;

    /// Brackets a walk over the whole document: what it did not meet is forgotten at its end.
    /// Another walk may come in between; one that is not finished forgets nothing.
    std::uint64_t Commence() {
        rencontres_ = 0;
        return ++passage_;
    }
    /// `passage`: what the walk's beginning has answered.
    void Termine(std::uint64_t passage);

  private:
    struct Entree {
        css::uno::Reference<css::uno::XInterface> objet;
        std::shared_ptr<Inscrit> inscrit;
        std::uint64_t passage = 0;
    };

    std::shared_ptr<Inscrit> Revois(css::uno::Reference<css::uno::XInterface> const& objet);
    void Rencontre(Entree& entree);

    std::string prefixe_;
    std::uint64_t derniere_ = 0;
    std::uint64_t passage_ = 0;
    std::size_t rencontres_ = 0; ///< how many were met since the last walk began, none twice
    std::unordered_map<css::uno::XInterface*, Entree> parObjet_;
    std::unordered_map<std::string, std::shared_ptr<ZoneOuverte>> parCle_;
};

} // namespace extension
