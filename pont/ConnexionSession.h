// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>

#include <chrono>

class UniChaine;

/// What the bridge needs of the session bus beyond QtDBus. The host's thread.
namespace connexionSession {

/// A connection to the session bus that is up and answers; one that is not up where none can be had
/// within `delai` (the little that connecting itself takes not counted). It is the one that QtDBus
/// shares in the process, `QDBusConnection::sessionBus()`, as long as that is up: once it has lost
/// its bus it stays dead for good, and one of the plug-in's own takes its place, opened anew
/// whenever it has lost its bus too.
QDBusConnection Ouvre(std::chrono::milliseconds delai);

/// Keeps QtDBus in the process for good, also when nothing needs it any more: it leaves 19 KB
/// behind each time that it is unloaded, as was measured with 5.15. Once the library is loaded.
void RetiensQtDBus();

/// Lets go of the plug-in's own connection, where there is one. Before the library is unloaded.
void Ferme();

/// Lets the connection receive replies up to the bus's own limit for one message. Without it the
/// bus library stops reading a connection after a reply past 63 MiB, for good. Does nothing on a
/// connection that is not up.
void AccepteGrandesReponses(QDBusConnection const& bus);

/// Can the text travel as it is? A D-Bus string ends at a U+0000, cannot carry half of a surrogate
/// pair, and must leave its message below 128 MiB (past it, sending blocks for good).
bool PeutVoyager(UniChaine const& texte);

} // namespace connexionSession
