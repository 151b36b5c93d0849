// SPDX-License-Identifier: MPL-2.0
#pragma once

class QDBusAbstractInterface;
class QDBusPendingCall;

/// How many calls that nobody waits for are on their way to a companion. The bus and QtDBus search
/// all of them at each further call and at each reply, so that a companion which does not answer
/// made tens of thousands of calls cost the square of their number, to everybody on the bus. Call
/// on the proxy's thread.
namespace envoisEnCours {

/// At most so many, for each proxy. An office that is well answers a correction in milliseconds.
inline constexpr int kMax = 1024;

/// Is there room for one more? Where there is none the companion is given 1.5 s to answer one of
/// them, and none at all as long as it has not: false then.
bool FaisPlace(QDBusAbstractInterface& proxy);

/// One more is on its way.
void Retiens(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel);

} // namespace envoisEnCours
