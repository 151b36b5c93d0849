// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "partage/Appelants.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace compagnon {

/// Has a caller forgotten when its connection leaves the bus.
class VeilleAppelants : public QObject {
    Q_OBJECT

  public:
    /// `appelants` must outlive the object.
    VeilleAppelants(QDBusConnection const& connexion, Appelants& appelants);

    /// From now on; a name already watched costs nothing.
    void Surveille(QString const& nomUnique);

  Q_SIGNALS:
    /// The last of all callers has left.
    void DernierParti();

  private:
    void VerifieQuIlEstLa(QString const& nomUnique);
    void EstParti(QString const& nomUnique);

    QDBusConnection connexion_;
    Appelants& appelants_;
    QDBusServiceWatcher guetteur_;
};

} // namespace compagnon
