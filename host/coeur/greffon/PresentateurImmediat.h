// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentateurAlerte.h"

namespace hote {

/// Takes the alerts of plug-ins in the modal window's place while it lives, and answers each at
/// once: OK where there is only that, no to a question, since nobody reads it. Main thread.
class PresentateurImmediat : public PresentateurAlerte {
  public:
    PresentateurImmediat()
        : precedent_(Mets(this)) {}
    ~PresentateurImmediat() override { Mets(precedent_); }
    PresentateurImmediat(PresentateurImmediat const&) = delete;
    PresentateurImmediat& operator=(PresentateurImmediat const&) = delete;

    eReponseAlerte Presente(QWidget* /*parent*/, DAlerteInfo const& info) final {
        Recois(info);
        return info.DonneGenre() == DAlerteInfo::kQuestion ? kReponseNon : kReponseOui;
    }

  private:
    /// An alert came.
    virtual void Recois(DAlerteInfo const& info) = 0;

    PresentateurAlerte* precedent_;
};

} // namespace hote
