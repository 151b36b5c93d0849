// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// How to start a QApplication so that it cannot end the process.
///
/// Qt ends it when no platform comes up, and some platforms and themes do so by themselves: all of
/// these must be kept out before Qt is asked, as nothing can be caught afterwards. The thread
/// that becomes Qt's main one.
class PlateformeQt {
  public:
    /// Command-line arguments, without the program's name: the platforms to try in turn, the last
    /// of which needs no display, and where there is no display a theme that needs none either.
    static QByteArrayList DonneArguments();

    /// Can the last platform be loaded? To be asked while a QCoreApplication exists, since a
    /// qt.conf beside the program, which says where Qt's plug-ins are, is read only then.
    static bool HorsEcranEstInstalle();
};
