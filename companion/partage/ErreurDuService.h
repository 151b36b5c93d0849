// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "modele/TexteSuivi.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace compagnon {

/// Why a call is not done; thrown by whatever finds it out, before anything is changed. `what`
/// tells the caller's person, in their language, and is never empty.
class ErreurDuService : public std::runtime_error {
  public:
    /// `sujet`: what it is about, in UTF-8: the document or zone asked for, the reason, what the
    /// office said. A long one is cut short.
    explicit ErreurDuService(contrat::Erreur code, std::string_view sujet = {});

    contrat::Erreur DonneCode() const noexcept { return code_; }
    /// The D-Bus error's name.
    std::string DonneNomDBus() const { return contrat::kPrefixeErreur + Nom(); }

  private:
    std::string Nom() const { return contrat::DonneNom(code_); }

    contrat::Erreur code_;
};

/// The error for a range that `TexteSuivi` refused.
ErreurDuService RefusDe(Refus refus, std::string_view zone);

} // namespace compagnon
