// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "AlertesDuPilote.h"
#include "LecteurDeLignes.h"
#include "Operations.h"

#include <string>

namespace hote {

/// Answers requests, a line of JSON each, on a plug-in. The form is in docs/pilote.md.
class Pilote {
  public:
    /// The plug-in must outlive the object. Takes the place of the alerts' presenter meanwhile.
    explicit Pilote(Greffon const& greffon)
        : banc_{greffon, {}} {}

    /// The answer to one line, with its line feed. Never throws but std::bad_alloc.
    std::string Reponds(LecteurDeLignes::Ligne const& ligne);

    /// The longest line that is read, in bytes.
    static constexpr int kLigneMax = 64 * 1024 * 1024;

  private:
    std::string Execute(QJsonValue const& op, Arguments const& arguments);
    std::string DonneErreur(QJsonValue const& op, std::string const& message);

    // Before the agent's end nothing may go back to the modal window.
    AlertesDuPilote alertes_;
    Banc banc_;
};

} // namespace hote
