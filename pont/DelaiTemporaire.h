// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QDBusAbstractInterface>

/// Gives a proxy another time-out (ms) for as long as this object lives, and the former one back.
class DelaiTemporaire {
  public:
    DelaiTemporaire(QDBusAbstractInterface& proxy, int delai)
        : proxy_(proxy)
        , ancien_(proxy.timeout()) {
        proxy_.setTimeout(delai);
    }
    ~DelaiTemporaire() { proxy_.setTimeout(ancien_); }
    DelaiTemporaire(DelaiTemporaire const&) = delete;
    DelaiTemporaire& operator=(DelaiTemporaire const&) = delete;

  private:
    QDBusAbstractInterface& proxy_;
    int ancien_;
};
