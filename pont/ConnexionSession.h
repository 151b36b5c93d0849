// SPDX-License-Identifier: MPL-2.0
#pragma once

class QDBusConnection;
class UniChaine;

/// What the bridge needs of the session bus beyond QtDBus.
namespace connexionSession {

/// Lets the connection receive replies up to the bus's own limit for one message. Without it the
/// bus library stops reading a connection after a reply past 63 MiB, for good. Does nothing on a
/// connection that is not up.
void AccepteGrandesReponses(QDBusConnection const& bus);

/// Can the text travel as it is? A D-Bus string ends at a U+0000, cannot carry half of a surrogate
/// pair, and must leave its message below 128 MiB (past it, sending blocks for good).
bool PeutVoyager(UniChaine const& texte);

} // namespace connexionSession
