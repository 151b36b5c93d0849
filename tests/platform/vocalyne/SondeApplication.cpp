// SPDX-License-Identifier: MPL-2.0
// Makes the application object as a connector does and says what came of it.
#include "DetruisApplication.h"
#include "InitialisationGenerale.h"

#include <QApplication>
#include <QFile>
#include <QThread>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

extern char** environ;

namespace {

std::string DonneEnvironnement() {
    std::string tout;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        tout.append(*variable).push_back('\n');
    }
    return tout;
}

} // namespace

int main(int nombre, char** arguments) {
    auto const environnementAvant = DonneEnvironnement();
    bool const avecApplication = nombre > 1 && std::strcmp(arguments[1], "avec-application") == 0;
    std::unique_ptr<QCoreApplication> ancienne;
    if (avecApplication) {
        ancienne = std::make_unique<QCoreApplication>(nombre, arguments);
    }
    std::string const localeAvant = std::setlocale(LC_ALL, nullptr);

    InitQApplication();
    auto* const application = QCoreApplication::instance();
    InitQApplication();

    std::cout << "deuxieme=" << (application == QCoreApplication::instance() ? "meme" : "autre")
              << "\nancienne=" << (application == ancienne.get() ? "gardee" : "remplacee")
              << "\nclasse=" << application->metaObject()->className() << "\nplateforme="
              << (qobject_cast<QApplication*>(application) != nullptr
                      ? qPrintable(QGuiApplication::platformName())
                      : "aucune")
              << "\nlocale=" << (localeAvant == std::setlocale(LC_ALL, nullptr) ? "meme" : "autre")
              << "\nenvironnement="
              << (environnementAvant == DonneEnvironnement() ? "meme" : "autre")
              << "\nnombre=" << std::strtod("1.5", nullptr)
              << "\nfichier=" << QFile::encodeName(QStringLiteral("\u00E9t\u00E9")).toHex().data()
              << "\nargument=" << QCoreApplication::arguments().join(QLatin1Char(',')).toStdString()
              << std::endl;
    if (!ancienne) {
        DetruisApplication();
    }
    for (int tour = 0; !ancienne && tour < 20; ++tour) {
        InitQApplication();
        DetruisApplication();
    }
    std::cout << "fin=atteinte" << std::endl;
}
