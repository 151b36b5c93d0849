// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QVariant>

#include <chrono>
#include <optional>

class QDBusConnection;
class QDBusPendingCall;
class QString;

/// The bridge's two ways to wait: for a call, and for the bus itself. Waiting blocks the calling
/// thread, without running its event loop; call on the connection's thread.
namespace questionAuBus {

/// Waits for the end of a call, for `delai` at most and not past the bus's own end; was it awaited?
bool AttendsLaFin(QDBusConnection const& bus, QDBusPendingCall const& appel,
                  std::chrono::milliseconds delai);

/// What the bus itself answers to a method of its interface: argument 0 of its reply, an invalid
/// variant where that is an error. Nothing when the bus did not answer in time. Any process of the
/// user can answer in its place: such an answer is passed over and the question asked again, some
/// times, so that a forger can keep us from knowing, not make us believe.
std::optional<QVariant> Demande(QDBusConnection const& bus, QString const& methode,
                                QVariantList const& arguments, std::chrono::milliseconds delai);

} // namespace questionAuBus
