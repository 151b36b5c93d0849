// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportNoyau.h"
#include "UniChaine.h"

#include <QString>

namespace sdd {

/// The data-structure library's own string of 16-bit code units: what attributed strings are made
/// of. Same rules as `UniChaine` for units, sharing, threads and exceptions; `T` converts between
/// the two without copying.
class VOCALYNE_NOYAU ChaineN {
  public:
    ChaineN() noexcept = default;

    /// `longueur` times the unit `unite`; the empty string when `longueur` is below 1.
    ChaineN(int longueur, char16_t unite);

    /// From bytes, through the converter kept for `codage` (see LibereConvertisseurPourCodage).
    /// `longueur` bytes, or up to the NUL when negative. Not decodable: U+FFFD.
    ChaineN(char const* octets, UniChaine::eCodage codage, int longueur = -1);

    explicit ChaineN(QString texte) noexcept
        : texte_(std::move(texte)) {}

    int Longueur() const noexcept { return texte_.size(); }
    bool EstVide() const noexcept { return texte_.isEmpty(); }

    /// The unit at `position`, or 0 when it lies outside the string.
    char16_t operator[](int position) const noexcept;

    /// Changes one unit; a position outside the string changes nothing.
    void MetsUnite(int position, char16_t unite);

    /// Up to `longueur` units from `debut`; what lies outside the string is left out.
    ChaineN Extrais(int debut, int longueur) const;

    /// As UniChaine::Remplace: false and no change for a start outside or a negative length.
    bool Remplace(int debut, int longueur, ChaineN const& texte);

    QString const& VersQString() const noexcept { return texte_; }

    /// Releases the converter that the byte constructor keeps between calls. Called when a
    /// connector is unloaded; the next conversion makes a new one. Safe on any thread.
    static void LibereConvertisseurPourCodage();

    /// Is a converter being kept now? For tests and diagnosis.
    static bool ConvertisseurEstTenu();

    friend bool operator==(ChaineN const& a, ChaineN const& b) noexcept {
        return a.texte_ == b.texte_;
    }
    friend bool operator!=(ChaineN const& a, ChaineN const& b) noexcept { return !(a == b); }

  private:
    QString texte_;
};

/// Converts between the host's two strings; the text is shared, not copied.
inline ChaineN T(UniChaine const& texte) {
    return ChaineN(texte.VersQString());
}
inline UniChaine T(ChaineN const& texte) {
    return UniChaine(texte.VersQString());
}

} // namespace sdd
