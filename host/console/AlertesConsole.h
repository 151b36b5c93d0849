// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentateurAlerte.h"

namespace hote {

/// Prints the alerts of plug-ins on standard error while it lives, and answers them at once.
class AlertesConsole : public PresentateurAlerte {
  public:
    AlertesConsole()
        : precedent_(Mets(this)) {}
    ~AlertesConsole() override { Mets(precedent_); }
    AlertesConsole(AlertesConsole const&) = delete;
    AlertesConsole& operator=(AlertesConsole const&) = delete;

    eReponseAlerte Presente(QWidget* parent, DAlerteInfo const& info) override;

  private:
    PresentateurAlerte* precedent_;
};

/// The answer to an alert that nobody reads: OK where there is only that, no to a question.
eReponseAlerte DonneReponseImmediate(DAlerteInfo const& info);

} // namespace hote
