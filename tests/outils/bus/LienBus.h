// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantList>

/// A connection of its own to the bus at DBUS_SESSION_BUS_ADDRESS, apart from the cached session
/// bus of the code under test, and one object to call on it. Reads replies up to the bus's limit.
class LienBus {
  public:
    LienBus(QString service, QString objet, QString interface);
    ~LienBus();
    LienBus(LienBus const&) = delete;
    LienBus& operator=(LienBus const&) = delete;

    /// Waits for the reply, at most `delaiMs`.
    QDBusMessage Appelle(QString const& methode, QVariantList const& arguments = {},
                         int delaiMs = 60000) const;
    /// Sends the call and does not want to know.
    void Envoie(QString const& methode, QVariantList const& arguments = {}) const;

    QDBusConnection const& Connexion() const noexcept { return connexion_; }
    QString NomUnique() const { return connexion_.baseService(); }
    /// Leaves the bus.
    void Raccroche();

  private:
    QDBusMessage Message(QString const& methode, QVariantList const& arguments) const;

    QString nom_;
    QDBusConnection connexion_;
    QString service_;
    QString objet_;
    QString interface_;
};
