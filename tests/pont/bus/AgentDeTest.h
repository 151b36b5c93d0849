// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ModuleProxyOOo.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"

#include <string>

/// The agent of a document, with its proxy in reach.
class AgentDeTest : public ModuleProxyOOo {
  public:
    using ModuleProxyOOo::DonneProxy;
    using ModuleProxyOOo::LibereProxy;

    explicit AgentDeTest(std::string const& identifiant);
    explicit AgentDeTest(UniChaine const& identifiant);

    /// First contact, as the creation of an agent makes it.
    bool Initialise();
};

/// The text as UTF-8.
inline std::string S(UniChaine const& texte) {
    return texte.VersUtf8();
}

/// A host string from UTF-8.
inline UniChaine Uc(std::string const& texte) {
    return UniChaine::DepuisUtf8(texte);
}
