// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ModuleProxyOOo.h"

/// The agent with its inner side open.
class AgentEssai : public ModuleProxyOOo {
  public:
    explicit AgentEssai(UniChaine const& identificateur)
        : InterfaceTexteur(identificateur)
        , ModuleProxyOOo(identificateur) {}

    using ModuleProxyOOo::DonneProxy;
    using ModuleProxyOOo::LibereProxy;
};
