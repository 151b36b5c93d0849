// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QObject>
#include <QtPlugin>

/// A platform theme that ends the process as soon as it is loaded, as the GTK one does when it
/// cannot open the display.
class ThemeQuiTermine : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QPA.QPlatformThemeFactoryInterface.5.1" FILE
                          "ThemeQuiTermine.json")
  public:
    explicit ThemeQuiTermine(QObject* parent = nullptr);
};
