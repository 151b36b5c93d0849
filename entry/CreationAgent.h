// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ApplicationSupportee.h"
#include "RoutinesAgentTexteur.h"

#include <memory>

/// Makes and initialises an agent of class `Agent` (which is constructed from the identifier), or
/// answers null: for a window that is not served, before the identifier is looked at; for an empty
/// identifier, before anything is allocated; for an agent that refuses the window. What the
/// constructor or the initialisation throws goes to the caller, with nothing left behind. Host's
/// calling thread.
template <class Agent>
std::unique_ptr<Agent> CreeAgentInitialise(InfosApplication const& infos,
                                           UniChaine const& idDocument) {
    if (!EstApplicationSupportee(infos) || idDocument == UniChaine()) {
        return nullptr;
    }
    auto agent = std::make_unique<Agent>(idDocument);
    return InitialiseAgentSelonInfos(agent.get(), infos) ? std::move(agent) : nullptr;
}
