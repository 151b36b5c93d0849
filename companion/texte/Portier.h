// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

namespace compagnon {

/// Stands before the 24 methods; the tests' hold on the office comes in here. None in normal use.
class Portier {
  public:
    virtual ~Portier() = default;

    /// A call has come in. True: the doorkeeper answers it itself, now, later or never; `sers` does
    /// the work and gives the proper reply, at the time it is called (it may be kept). False: the
    /// call is served as usual.
    virtual bool Prends(QDBusMessage const& appel, QDBusConnection const& connexion,
                        std::function<QDBusMessage()> const& sers) = 0;
};

} // namespace compagnon
