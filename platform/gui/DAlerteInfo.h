// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportGui.h"
#include "UniChaine.h"

/// What an alert says. A value; the texts are plain text, never interpreted as markup. Distinct
/// objects may be used on distinct threads.
class VOCALYNE_GUI DAlerteInfo {
  public:
    /// The kind of dialogue, which decides its icon and buttons.
    enum eTypeDialogue : int {
        kQuestion = 1,      ///< a question, Yes and No
        kInformation = 2,   ///< an information, OK
        kErreur = 3,        ///< an error, OK
        kAvertissement = 4, ///< a warning, OK
    };

    /// `texte` is the main text, `information` stands below it, `details` is shown on demand. An
    /// empty text takes no room.
    DAlerteInfo(eTypeDialogue genre, UniChaine texte, UniChaine information, UniChaine details);

    eTypeDialogue DonneGenre() const noexcept { return genre_; }
    UniChaine const& DonneTexte() const noexcept { return texte_; }
    UniChaine const& DonneInformation() const noexcept { return information_; }
    UniChaine const& DonneDetails() const noexcept { return details_; }

  private:
    eTypeDialogue genre_;
    UniChaine texte_;
    UniChaine information_;
    UniChaine details_;
};
