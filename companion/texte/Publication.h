// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <string>

namespace compagnon {

/// The office's place on the session bus: its connection, its objects, its name. All that was
/// registered on the connection must outlive this.
class Publication : public QObject {
    Q_OBJECT

  public:
    explicit Publication(std::string const& instance);
    ~Publication() override;

    /// Connects to the session bus. Empty, or what went wrong, for the person.
    std::string Connecte();
    /// Publishes `bureau`, adaptors and all; then takes the name, so that whoever sees the name can
    /// call. Empty, or what went wrong.
    std::string Publie(QObject* bureau);

    QDBusConnection DonneConnexion() const { return connexion_; }
    QString const& DonneService() const noexcept { return service_; }

  Q_SIGNALS:
    void BusPerdu();

  private:
    std::string DisPris();

    QDBusConnection connexion_;
    QString service_;
    QString objet_;
};

} // namespace compagnon
