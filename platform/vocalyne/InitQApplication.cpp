// SPDX-License-Identifier: MPL-2.0
#include "InitialisationGenerale.h"

#include <QApplication>
#include <QByteArray>
#include <QFileInfo>
#include <QTextCodec>

#include <clocale>
#include <memory>
#include <string>

namespace {

constexpr char kHorsEcran[] = "offscreen";

/// The platforms to try, in Qt's notation. Qt ends the process when none of them comes up, so the
/// last one is always the one that needs no display. It goes on the command line because the
/// environment belongs to the host.
QByteArray DonnePlateformes() {
    auto const demandee = qgetenv("QT_QPA_PLATFORM");
    QByteArray plateformes;
    if (!demandee.isEmpty()) {
        plateformes = demandee + ';';
    } else {
        if (!qEnvironmentVariableIsEmpty("DISPLAY"))
            plateformes += "xcb;";
        if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
            plateformes += "wayland;";
    }
    return plateformes + kHorsEcran;
}

/// Puts the process's locale back: QApplication's constructor sets every category from the
/// environment, and a host that reads or writes numbers in the C locale would begin to use commas.
class GardeLocale {
  public:
    GardeLocale()
        : locale_(std::setlocale(LC_ALL, nullptr)) {}
    ~GardeLocale() {
        // Qt takes its codec for file names from LC_CTYPE when it first needs it, and keeps it:
        // have it do so while the person's own is in force.
        QTextCodec::codecForLocale();
        std::setlocale(LC_ALL, locale_.c_str());
    }
    GardeLocale(GardeLocale const&) = delete;
    GardeLocale& operator=(GardeLocale const&) = delete;

  private:
    std::string locale_;
};

} // namespace

void InitQApplication() {
    if (QCoreApplication::instance() != nullptr)
        return;
    // Qt keeps references to these for as long as the application lives, and removes the arguments
    // that it understands: they are static, and set anew for each application.
    static char nom[] = "vocalyne";
    static char option[] = "-platform";
    static QByteArray plateformes;
    static char* arguments[4];
    static int nombre;
    plateformes = DonnePlateformes();
    arguments[0] = nom;
    arguments[1] = option;
    arguments[2] = plateformes.data();
    arguments[3] = nullptr;
    nombre = 3;

    GardeLocale const garde;
    // Whoever unloads the connector deletes it.
    static_cast<void>(std::make_unique<QApplication>(nombre, arguments).release());
}
