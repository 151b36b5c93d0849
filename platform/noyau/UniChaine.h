// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportNoyau.h"

#include <QString>

#include <string>

/// The host's Unicode string: a sequence of 16-bit UTF-16 code units.
///
/// Every index and length counts code units. A unit may be anything, U+0000 and half of a surrogate
/// pair included: the string never repairs what it holds. An operation that is given positions uses
/// them as they stand, also in the middle of a pair.
///
/// Copies share their text until one of them changes (as QString does), so passing by value is
/// cheap. Distinct objects may be used on distinct threads; one object on one thread at a time.
/// Nothing here throws but std::bad_alloc.
class VOCALYNE_NOYAU UniChaine {
  public:
    /// How narrow text is encoded. The numbers are the string library's own.
    enum eCodage : int {
        kCodageLitteral = -997, ///< narrow literals of the program's sources (UTF-8)
        kCodageUtf8 = -998,     ///< UTF-8 from outside
    };

    UniChaine() noexcept = default;

    /// From `longueur` bytes of `octets`, or up to its NUL when `longueur` is negative. A null
    /// pointer gives the empty string. Bytes that do not decode become U+FFFD. Every encoding is
    /// read as UTF-8.
    UniChaine(char const* octets, eCodage codage, int longueur = -1);

    /// From `longueur` code units; a null pointer or a length below 1 gives the empty string.
    UniChaine(char16_t const* unites, int longueur);

    /// Shares the text of `texte`: no copy is made.
    explicit UniChaine(QString texte) noexcept
        : texte_(std::move(texte)) {}

    /// From UTF-8 bytes; U+0000 is kept, bytes that do not decode become U+FFFD.
    static UniChaine DepuisUtf8(std::string const& octets);

    /// Number of code units.
    int Longueur() const noexcept { return texte_.size(); }
    bool EstVide() const noexcept { return texte_.isEmpty(); }

    /// Up to `longueur` units from `debut`; what lies outside the string is left out.
    UniChaine Extrais(int debut, int longueur) const;

    void Ajoute(UniChaine const& texte);

    /// Replaces `longueur` units from `debut` by `texte`. A length that runs past the end is cut
    /// there. A start outside [0, Longueur()] or a negative length changes nothing and gives false.
    bool Remplace(int debut, int longueur, UniChaine const& texte);

    /// UTF-8 bytes, U+0000 kept; half of a pair standing alone becomes "?".
    std::string VersUtf8() const;

    /// The text as Qt's string; the reference lives as long as this object stays unchanged.
    QString const& VersQString() const noexcept { return texte_; }

    /// Equality of the whole text, unit by unit: no trimming, no folding, no normalisation.
    friend bool operator==(UniChaine const& a, UniChaine const& b) noexcept {
        return a.texte_ == b.texte_;
    }
    friend bool operator!=(UniChaine const& a, UniChaine const& b) noexcept { return !(a == b); }
    /// Order by code units, for ordered containers; not a collation.
    friend bool operator<(UniChaine const& a, UniChaine const& b) noexcept {
        return a.texte_ < b.texte_;
    }

  private:
    QString texte_;
};

/// The empty string. It is constructed when libOutilsNoyau is loaded, so before any library that
/// depends on it.
extern VOCALYNE_NOYAU UniChaine const kUniChaineNulle;
