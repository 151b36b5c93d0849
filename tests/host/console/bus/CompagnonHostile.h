// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include <functional>

/// A companion by name only: what it does when somebody calls it is the test's. Served by the test
/// process's events.
class CompagnonHostile : public QDBusVirtualObject {
  public:
    /// Gets each call; false leaves it to QtDBus, which answers that there is no such method.
    using Reponse = std::function<bool(QDBusMessage const&, QDBusConnection const&)>;

    /// Takes the service name of `instance` on the bus at DBUS_SESSION_BUS_ADDRESS.
    CompagnonHostile(QString const& instance, Reponse reponse);
    ~CompagnonHostile() override;
    CompagnonHostile(CompagnonHostile const&) = delete;
    CompagnonHostile& operator=(CompagnonHostile const&) = delete;

    QString introspect(QString const& chemin) const override;
    bool handleMessage(QDBusMessage const& message, QDBusConnection const& connexion) override;

    /// Leaves the bus, also from within an answer. Comes back before the bus knows.
    void Pars();

    /// How many calls came.
    int DonneNombre() const noexcept { return nombre_; }

    /// An answer that is always the same string.
    static Reponse Texte(QString const& texte);
    /// Never answers.
    static Reponse Muet();

  private:
    QString nom_;
    QDBusConnection connexion_;
    Reponse reponse_;
    int nombre_ = 0;
};
