// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QString>

namespace hote {

/// A connection to the session bus of its own, for as long as it lives: whatever companions send
/// here cannot harm the one that the plug-in works on. `nom` is its name in this process, used once
/// at a time. Main thread.
class ConnexionPrivee {
  public:
    explicit ConnexionPrivee(QString nom)
        : nom_(std::move(nom))
        , bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, nom_)) {}
    ~ConnexionPrivee() { QDBusConnection::disconnectFromBus(nom_); }
    ConnexionPrivee(ConnexionPrivee const&) = delete;
    ConnexionPrivee& operator=(ConnexionPrivee const&) = delete;

    QDBusConnection const& Donne() const noexcept { return bus_; }

  private:
    QString nom_;
    QDBusConnection bus_;
};

} // namespace hote
