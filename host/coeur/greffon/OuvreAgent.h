// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Greffon.h"
#include "InterfaceAgentTexteur.h"

#include <QString>

#include <memory>

namespace hote {

/// What an agent is asked for; the values are the modes of `InterfaceAgentTexteur`.
enum class ModeAgent { Correcteur = 0, Dictionnaire = 1 };

/// A new agent on the document `id` (whole identifier), made ready for the mode. The plug-in must
/// outlive it. Throws ErreurHote (kSortieDocument) when the plug-in does not serve the document, or
/// cannot reach it. Main thread; may block.
std::unique_ptr<InterfaceAgentTexteur> OuvreAgent(Greffon const& greffon, QString const& id,
                                                  ModeAgent mode);

} // namespace hote
