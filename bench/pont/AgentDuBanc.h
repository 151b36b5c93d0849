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
        : AgentDuBanc(instance + QLatin1Char('~') + QString::number(zones)) {}

    /// On any companion's document.
    explicit AgentDuBanc(QString const& identifiant)
        : InterfaceTexteur(UniChaine(identifiant))
        , ModuleProxyOOo(UniChaine(identifiant)) {
        UniChaine message;
        if (!InitialiseTexteur(UniChaine(), message, 0)) {
            throw std::runtime_error("the bench's companion does not answer");
        }
    }
};

} // namespace banc
