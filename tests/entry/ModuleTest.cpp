// SPDX-License-Identifier: MPL-2.0
// The module's set-up and clean-up. This program holds the module's units: its set-up ran when the
// program started, and each test leaves it set up.
#include "ModuleTexteur.h"

#include "Catalogues.h"
#include "StockageReponse.h"
#include "domaineTexteur.h"
#include "outils/Textes.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace {

class StockeurCompte : public StockeurReponse {
  public:
    explicit StockeurCompte(int& destructions)
        : destructions_(destructions) {}
    ~StockeurCompte() override { ++destructions_; }
    std::optional<int> Donne(UniChaine const& /*dialogue*/) const override { return {}; }
    bool Mets(UniChaine const& /*dialogue*/, int /*reponse*/) override { return false; }
    void Oublie(UniChaine const& /*dialogue*/) override {}

  private:
    int& destructions_;
};

/// A Qt application object of the host's own, in the room given.
QApplication* ConstruisApplication(void* ou) {
    static char nom[] = "hote";
    static char* arguments[] = {nom, nullptr};
    static int nombre = 1;
    return new (ou) QApplication(nombre, arguments);
}

class Module : public testing::Test {
  protected:
    ~Module() override {
        if (QCoreApplication::instance() == nullptr) {
            InitialiseModule();
        }
    }
};

TEST_F(Module, IsSetUpWhenTheProgramStarts) {
    ASSERT_NE(nullptr, qobject_cast<QApplication*>(QCoreApplication::instance()));
    EXPECT_NE(nullptr, domaineTexteur);
    EXPECT_EQ(1U, StockageReponse::laListeStockeurDefaut.count(DDialogue::kStockeurReglages));
}

TEST_F(Module, TheSettingsPathIsPutTogetherWithoutCleaning) {
    auto const maison = qgetenv("HOME");
    qputenv("HOME", "/some/home");
    EXPECT_EQ(U(u"/some/home/.vocalyne/9.0/vocalyne.conf"), DonneCheminReglages());
    qputenv("HOME", "/");
    EXPECT_EQ(U(u"//.vocalyne/9.0/vocalyne.conf"), DonneCheminReglages());
    qputenv("HOME", maison);
}

TEST_F(Module, CleanUpReleasesEveryStorerOnceAndEmptiesTheirMap) {
    int destructions = 0;
    auto& stockeurs = StockageReponse::laListeStockeurDefaut;
    stockeurs[static_cast<DDialogue::eTypStockeur>(7)] = new StockeurCompte(destructions);
    stockeurs[static_cast<DDialogue::eTypStockeur>(8)] = nullptr;
    stockeurs[static_cast<DDialogue::eTypStockeur>(9)] = new StockeurCompte(destructions);
    LibereModule();
    EXPECT_EQ(2, destructions);
    EXPECT_TRUE(stockeurs.empty());
}

TEST_F(Module, CleanUpDeletesTheApplicationThatTheModuleHadMade) {
    ASSERT_NE(nullptr, QCoreApplication::instance());
    LibereModule();
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST_F(Module, CleanUpWithoutAnApplicationSkipsItsDeletion) {
    LibereModule();
    LibereModule();
    InitialiseModule();
    delete QCoreApplication::instance(); // the host's doing
    LibereModule();
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST_F(Module, AnApplicationOfTheHostsOutlivesSetUpAndCleanUp) {
    LibereModule();
    std::unique_ptr<QApplication> const application(
        ConstruisApplication(operator new(sizeof(QApplication))));
    InitialiseModule();
    EXPECT_EQ(application.get(), QCoreApplication::instance());
    LibereModule();
    EXPECT_EQ(application.get(), QCoreApplication::instance());
}

TEST_F(Module, AnApplicationThatTheHostPutInPlaceOfTheModulesOutlivesTheCleanUp) {
    auto* const place = static_cast<void*>(QCoreApplication::instance());
    delete QCoreApplication::instance();
    // At the very address of the old one, as soon as the allocator hands it out again.
    std::vector<std::unique_ptr<char[]>> ailleurs;
    std::unique_ptr<char[]> bloc;
    do {
        bloc = std::make_unique<char[]>(sizeof(QApplication));
        if (bloc.get() != place) {
            ailleurs.push_back(std::move(bloc));
        }
    } while (!bloc && ailleurs.size() < 1000);
    auto& choisi = bloc ? bloc : ailleurs.back();
    auto* const application = ConstruisApplication(choisi.get());
    LibereModule();
    EXPECT_EQ(application, QCoreApplication::instance());
    if (QCoreApplication::instance() == application) {
        application->~QApplication();
    }
}

TEST_F(Module, AnotherRunOfTheLoaderLoadsNothingAndLeavesTheTreeRegistered) {
    auto* const domaine = domaineTexteur;
    ASSERT_NE(nullptr, domaine);
    auto const chemin = domaine->second;
    for (int essai = 0; essai < 3; ++essai) {
        ChargeDomaineTexteur();
        EXPECT_EQ(domaine, domaineTexteur);
        EXPECT_EQ(chemin, domaineTexteur->second);
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/fichiers/TexteurEn.mo")));
        EXPECT_TRUE(QFile::exists(QStringLiteral(":/fichiers/TexteurFr.mo")));
    }
    EXPECT_EQ(QStringList({QStringLiteral("TexteurEn.mo"), QStringLiteral("TexteurFr.mo")}),
              QDir(QStringLiteral(":/fichiers")).entryList(QDir::NoFilter, QDir::Name))
        << "registered once";
}

} // namespace
