// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <string>

namespace compagnon {

/// The office's place on the session bus: its connection, its objects, its name.
class Publication : public QObject {
    Q_OBJECT

  public:
    explicit Publication(std::string const& instance);
    ~Publication() override;

    /// Connects to the session bus. Empty, or what went wrong, for the person.
    std::string Connecte();
    /// Publishes `bureau` (adaptors and all) and, unless null, `commande`; then takes the name, so
    /// that whoever sees the name can call. Empty, or what went wrong.
    std::string Publie(QObject* bureau, QObject* commande);

    QDBusConnection DonneConnexion() const { return connexion_; }
    void QuitteLeNom();
    /// False when someone else has it.
    bool ReprendsLeNom();

  Q_SIGNALS:
    void BusPerdu();

  private:
    std::string DisPris();

    QDBusConnection connexion_;
    QString service_;
    QString objet_;
};

} // namespace compagnon
