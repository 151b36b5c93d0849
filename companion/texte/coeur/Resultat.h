// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/TexteSuivi.h"

#include <optional>
#include <string>
#include <utility>

namespace compagnon {

/// Why the office does not do what a caller asks. Errors are values: nothing is thrown.
enum class CodeErreur {
    IdentifiantInconnu,  ///< no document of that identifier or key
    ZoneInconnue,        ///< no zone of that key
    AucunDocument,       ///< the caller has not named a document yet
    LectureSeule,        ///< the document's file may not be written
    FinDeLigne,          ///< the new text holds a line end, or what UTF-8 cannot carry
    TropGrand,           ///< the document, or the reply, would pass its limit
    SelectionImpossible, ///< no such range of the selection's zone
    PlageRefusee,        ///< see `Erreur::refus`
    Enregistrement,      ///< the text could not be saved in place; see `Erreur::sujet`
};

struct Erreur {
    CodeErreur code = CodeErreur::IdentifiantInconnu;
    std::string sujet; ///< the identifier, zone or file it is about, UTF-8
    Refus refus = Refus::Aucun;
};

struct Rien {};

/// A value, or why there is none.
template <class T>
class Resultat {
  public:
    Resultat(T valeur) // NOLINT(google-explicit-constructor): `return valeur;` is its use
        : valeur_(std::move(valeur)) {}
    Resultat(Erreur erreur) // NOLINT(google-explicit-constructor): likewise
        : erreur_(std::move(erreur)) {}

    explicit operator bool() const noexcept { return valeur_.has_value(); }
    T& operator*() { return *valeur_; }
    T const& operator*() const { return *valeur_; }
    T* operator->() { return &*valeur_; }
    T const* operator->() const { return &*valeur_; }
    /// Only where there is no value.
    Erreur const& DonneErreur() const noexcept { return erreur_; }

  private:
    std::optional<T> valeur_;
    Erreur erreur_;
};

} // namespace compagnon
