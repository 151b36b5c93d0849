// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ModuleProxyOOo.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"

#include <stdexcept>
#include <string>

namespace banc {

/// An agent on the bench's companion whose proxy can be used beside it.
class AgentDuBanc : public ModuleProxyOOo {
  public:
    using ModuleProxyOOo::DonneProxy;

    AgentDuBanc(QString const& instance, int zones)
        : InterfaceTexteur(Identifiant(instance, zones))
        , ModuleProxyOOo(Identifiant(instance, zones)) {
        UniChaine message;
        if (!InitialiseTexteur(UniChaine(), message, 0))
            throw std::runtime_error("the bench's companion does not answer");
    }

  private:
    static UniChaine Identifiant(QString const& instance, int zones) {
        return UniChaine(instance + QLatin1Char('~') + QString::number(zones));
    }
};

} // namespace banc
