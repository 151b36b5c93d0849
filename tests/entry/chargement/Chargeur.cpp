// SPDX-License-Identifier: MPL-2.0
// A host reduced to loading and unloading: `chargeur PLUGIN [WORD...]` does what the words say, in
// order, and tells on standard output what it saw.
//   `application` | `console`  make a QApplication, a QCoreApplication, before anything else
//   `charge` | `decharge`  dlopen, dlclose
//   `charge-leve`  dlopen of a plug-in that throws meanwhile; ends the process
//   `cent`  load and unload a hundred times
//   `langue1` | `langue2`  fix the display language anew
//   `ressources`  do the catalogs' paths resolve, how are they stored, what do they hold
//   `noms`  the application's identity
//   `stockeur`  put a storer of answers in the host's map that writes to the settings as it goes
//   `ferme-a-la-fin`  make a static object that unloads the plug-in when the process ends
//   `sors`  end the process with the plug-in still loaded
#include "InitialisationGenerale.h"
#include "StockageReponse.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QResource>
#include <QSettings>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <memory>
#include <string>

namespace {

void* leGreffon = nullptr;

void Charge(char const* chemin) {
    leGreffon = dlopen(chemin, RTLD_NOW | RTLD_LOCAL);
    if (leGreffon == nullptr) {
        std::printf("dlopen: %s\n", dlerror());
        std::exit(3);
    }
}

/// What an initialiser throws comes out of dlopen, which is not to be called any more afterwards.
[[noreturn]] void ChargeCeQuiLeve(char const* chemin) {
    // dlopen is declared as throwing nothing: called by its name it would end the process.
    void* (*volatile ouvre)(char const*, int) = dlopen;
    try {
        ouvre(chemin, RTLD_NOW | RTLD_LOCAL);
    } catch (std::exception const& erreur) {
        std::printf("thrown: %s\n", erreur.what());
        std::fflush(stdout);
        std::_Exit(0);
    }
    std::exit(5);
}

void Decharge() {
    if (dlclose(leGreffon) != 0) {
        std::exit(4);
    }
}

/// Resident memory, in KiB.
long Memoire() {
    std::ifstream etat("/proc/self/status");
    for (std::string mot; etat >> mot;) {
        long valeur = 0;
        if (mot == "VmRSS:" && etat >> valeur) {
            return valeur;
        }
    }
    return 0;
}

void Cent(char const* chemin) {
    long apresVingt = 0;
    for (int i = 0; i < 100; ++i) {
        Charge(chemin);
        Decharge();
        if (i == 19) {
            apresVingt = Memoire();
        }
    }
    // What leaks an application object or a library each time would show; what the allocator keeps
    // does not count, and a sanitizer's keeps much.
#ifdef __SANITIZE_ADDRESS__
    constexpr long kCroissanceMax = 256 * 1024;
#else
    constexpr long kCroissanceMax = 4096;
#endif
    std::printf("growth bounded: %s\n", Memoire() - apresVingt < kCroissanceMax ? "yes" : "no");
}

void DisRessource(char const* chemin) {
    QResource const ressource(QString::fromLatin1(chemin));
    QFile fichier(QString::fromLatin1(chemin));
    if (!fichier.open(QIODevice::ReadOnly)) {
        std::printf("%s missing\n", chemin);
        return;
    }
    auto const octets = fichier.readAll();
    auto const mode = ressource.compressionAlgorithm();
    std::printf("%s %s ", chemin,
                mode == QResource::NoCompression     ? "plain"
                : mode == QResource::ZlibCompression ? "zlib"
                                                     : "other");
    std::ifstream original(qgetenv("DOSSIER_CATALOGUES").toStdString() +
                               QString::fromLatin1(chemin)
                                   .section(QLatin1Char('/'), -1)
                                   .prepend(QLatin1Char('/'))
                                   .toStdString(),
                           std::ios::binary);
    std::string const attendu{std::istreambuf_iterator<char>(original), {}};
    std::printf("%s\n",
                octets.toStdString() == attendu && !attendu.empty() ? "whole" : "different");
}

/// A storer that keeps its answers to itself and writes at its end that it was released.
class StockeurQuiEcrit : public StockeurReponse {
  public:
    StockeurQuiEcrit() = default;
    StockeurQuiEcrit(StockeurQuiEcrit const&) = delete;
    StockeurQuiEcrit& operator=(StockeurQuiEcrit const&) = delete;
    ~StockeurQuiEcrit() override {
        QSettings reglages(QDir::homePath() + QLatin1String("/reponses.conf"),
                           QSettings::NativeFormat);
        reglages.setValue(QLatin1String("liberations"),
                          reglages.value(QLatin1String("liberations"), 0).toInt() + 1);
    }
    std::optional<int> Donne(UniChaine const& /*dialogue*/) const override { return {}; }
    bool Mets(UniChaine const& /*dialogue*/, int /*reponse*/) override { return true; }
    void Oublie(UniChaine const& /*dialogue*/) override {}
};

/// Unloads the plug-in at the end of the process: after the plug-in's own static objects where it
/// was made before them, else ahead of them.
void FermeALaFin() {
    struct Fermeture {
        ~Fermeture() { Decharge(); }
        Fermeture() = default;
        Fermeture(Fermeture const&) = delete;
        Fermeture& operator=(Fermeture const&) = delete;
    };
    static Fermeture const fermeture;
}

} // namespace

int main(int argc, char** argv) {
    std::unique_ptr<QCoreApplication> application;
    for (int i = 2; i < argc; ++i) {
        std::string const mot = argv[i];
        if (mot == "application") {
            application = std::make_unique<QApplication>(argc, argv);
        } else if (mot == "console") {
            application = std::make_unique<QCoreApplication>(argc, argv);
        } else if (mot == "charge") {
            Charge(argv[1]);
        } else if (mot == "charge-leve") {
            ChargeCeQuiLeve(argv[1]);
        } else if (mot == "decharge") {
            Decharge();
        } else if (mot == "cent") {
            Cent(argv[1]);
        } else if (mot == "langue1" || mot == "langue2") {
            InitialisationGenerale::InitLePlusTotPossible(mot == "langue1" ? kLangueFrancais
                                                                           : kLangueAnglais);
        } else if (mot == "ressources") {
            DisRessource(":/fichiers/TexteurEn.mo");
            DisRessource(":/fichiers/TexteurFr.mo");
        } else if (mot == "noms") {
            std::printf("application %s of %s\n", qPrintable(QCoreApplication::applicationName()),
                        qPrintable(QCoreApplication::organizationName()));
        } else if (mot == "stockeur") {
            StockageReponse::laListeStockeurDefaut[static_cast<DDialogue::eTypStockeur>(7)] =
                std::make_unique<StockeurQuiEcrit>().release();
        } else if (mot == "ferme-a-la-fin") {
            FermeALaFin();
        } else if (mot == "sors") {
            std::exit(0);
        } else {
            return 2;
        }
        std::printf("-- %s: application %s\n", mot.c_str(),
                    QCoreApplication::instance() == nullptr ? "none"
                    : application && application.get() == QCoreApplication::instance()
                        ? "the host's"
                        : "its own");
        std::fflush(stdout);
    }
    return 0;
}
