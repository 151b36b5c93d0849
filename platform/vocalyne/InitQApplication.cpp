// SPDX-License-Identifier: MPL-2.0
#include "InitialisationGenerale.h"

#include "PlateformeQt.h"

#include <QApplication>
#include <QTextCodec>

#include <clocale>
#include <memory>
#include <string>
#include <vector>

namespace {

/// Puts the process's locale back: Qt's first application object sets every category from the
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

/// What an application object is made from. Qt keeps references to all of it for as long as the
/// object lives, and takes the arguments that it understands out of the list.
struct ArgumentsDeQt {
    QByteArrayList textes;
    std::vector<char*> arguments;
    int nombre = 0;

    void Mets(QByteArrayList const& options) {
        textes = QByteArrayList{"vocalyne"} + options;
        arguments.clear();
        for (auto& texte : textes) {
            arguments.push_back(texte.data());
        }
        nombre = static_cast<int>(arguments.size());
        arguments.push_back(nullptr);
    }
};

ArgumentsDeQt& DonneArgumentsDeQt() {
    static auto* const ligne = new ArgumentsDeQt; // outlives every application object
    return *ligne;
}

} // namespace

// The application is left to whoever unloads the connector, who finds it through Qt: no pointer to
// it is kept here, and the analyzer takes it for lost.
// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
void InitQApplication() {
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    GardeLocale const garde;
    auto& ligne = DonneArgumentsDeQt();
    ligne.Mets({});
    auto simple = std::make_unique<QCoreApplication>(ligne.nombre, ligne.arguments.data());
    if (!PlateformeQt::HorsEcranEstInstalle()) {
        static_cast<void>(simple.release());
        return;
    }
    simple.reset();
    // On the command line, because the environment is the host's.
    ligne.Mets(PlateformeQt::DonneArguments());
    static_cast<void>(
        std::make_unique<QApplication>(ligne.nombre, ligne.arguments.data()).release());
}
// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
