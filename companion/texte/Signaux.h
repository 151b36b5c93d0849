// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "coeur/Descripteur.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace compagnon {

/// SIGTERM, SIGINT, SIGHUP and SIGQUIT as a Qt signal, so that the end is an event like any other.
class Signaux : public QObject {
    Q_OBJECT

  public:
    /// Blocks them in the calling thread and in those it makes: to be called before any other
    /// thread exists. A broken pipe is an error of its write from then on.
    static void Bloque();

    Signaux();

  Q_SIGNALS:
    void FinDemandee();

  private:
    Descripteur descripteur_;
    std::unique_ptr<QSocketNotifier> guetteur_;
};

} // namespace compagnon
