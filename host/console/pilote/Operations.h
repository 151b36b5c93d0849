// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Arguments.h"
#include "commun/EcritureJson.h"
#include "greffon/AgentTenu.h"
#include "greffon/Greffon.h"

#include <QString>

namespace hote {

/// What a dialogue works on: the plug-in, and the agent that it made.
struct Banc {
    Greffon const& greffon;
    AgentTenu tenu;
};

/// Writes the result of an operation of the plug-in's five exports, of its agent, or of a zone.
using OperationExport = void (*)(Banc&, Arguments const&, EcritureJson&);
using OperationAgent = void (*)(InterfaceAgentTexteur&, Banc&, Arguments const&, EcritureJson&);
using OperationZone = void (*)(InterfaceZoneDeTexte&, Arguments const&, EcritureJson&);

/// The operation of a name, null when there is none of this kind.
OperationExport TrouveOperationExport(QString const& nom);
OperationAgent TrouveOperationAgent(QString const& nom);
OperationZone TrouveOperationZone(QString const& nom);

/// Serves one request: writes its result to `resultat`. Throws ErreurRequete when the request is
/// wrong, and lets the plug-in's exceptions through.
void ExecuteOperation(Banc& banc, QString const& nom, Arguments const& arguments,
                      EcritureJson& resultat);

/// Helpers of the operations: an attributed text, its member "styles", and a whole zone.
void EcrisTexteAttribue(TexteAvecAttributs const& texte, EcritureJson& json);
void EcrisStyles(TexteAvecAttributs const& texte, EcritureJson& json);
void EcrisZone(InterfaceZoneDeTexte& zone, EcritureJson& json);

} // namespace hote
