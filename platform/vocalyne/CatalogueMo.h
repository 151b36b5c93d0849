// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <locale>
#include <string>
#include <vector>

/// A gettext catalog (.mo) as bytes.
///
/// Boost.Locale follows most offsets of a catalog without looking whether they lie in it, and so
/// reads outside of one that is cut short or damaged. This class looks first.
class CatalogueMo {
  public:
    CatalogueMo() = default;
    explicit CatalogueMo(std::vector<char> octets)
        : octets_(std::move(octets)) {}

    /// The catalog at a resource path; no bytes when there is none.
    static CatalogueMo DepuisRessource(std::string const& chemin);

    /// Does every table, identifier and translation lie in the catalog, ended as it must be?
    bool EstSain() const;

    bool EstVide() const noexcept { return octets_.empty(); }

    /// A locale that serves the catalog's messages in UTF-8, on the base of the classic one. Only
    /// where Boost.Locale is linked (see MoteurTraduction.h).
    /// Throws what Boost.Locale throws for a catalog that it cannot use.
    std::locale FaisLocale() const;

  private:
    static constexpr std::size_t kMotTailleHachage =
        20; ///< place of a word of the header, in bytes

    std::uint32_t Mot(std::size_t position) const;
    bool TableEstSaine(std::uint32_t position, std::uint32_t nombre) const;
    bool EnteteEstSaine(std::uint32_t traductions) const;
    bool HachageEstSain() const;

    std::vector<char> octets_;
};
