// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportGui.h"
#include "UniChemin.h"

#include <QIcon>

/// General services on top of Qt.
class VOCALYNE_GUI RoutinesGeneralesQt {
  public:
    /// The icon of an application: an image file is its own icon; for a program, the icon that the
    /// icon theme has under its name. A null icon when there is none. Main thread, needs the Qt
    /// application object.
    static QIcon DonneIconDeApplication(UniChemin const& application);
};
