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

    explicit ChaineN(QString texte) noexcept
        : texte_(std::move(texte)) {}

    int Longueur() const noexcept { return texte_.size(); }
    bool EstVide() const noexcept { return texte_.isEmpty(); }

    /// The unit at `position`, or 0 when it lies outside the string.
    char16_t operator[](int position) const noexcept;

    /// Changes one unit; a position outside the string changes nothing.
    void MetsUnite(int position, char16_t unite);

    /// As UniChaine::Remplace: false and no change for a start outside or a negative length.
    bool Remplace(int debut, int longueur, ChaineN const& texte);

    QString const& VersQString() const noexcept { return texte_; }

    /// Releases what the library keeps for converting between encodings. This one keeps nothing of
    /// its own (Qt has its codecs, for as long as the process lives), so nothing is done; the
    /// host's own library does, and a connector that is unloaded asks for it. Any thread.
    static void LibereConvertisseurPourCodage();

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
