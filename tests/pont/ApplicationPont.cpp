// SPDX-License-Identifier: MPL-2.0
// What each test program of this folder needs of the process.
#include "domaineTexteur.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <memory>

// A connector defines it; without a catalog messages are their own French text.
DomaineDeTraduction* domaineTexteur = nullptr;

namespace {

/// The Qt application object, from the first test to the last, and no bus: neither an address,
/// unless the tests are given one of their own, nor a place where one would be looked for.
class ApplicationPont : public testing::Environment {
  public:
    void SetUp() override {
        for (auto const* nom : {"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "DISPLAY"}) {
            qunsetenv(nom);
        }
        if (auto const adresse = qgetenv("VOCALYNE_BUS_ESSAI"); !adresse.isEmpty()) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", adresse);
        }
        static char nom[] = "essai";
        static char* arguments[] = {nom, nullptr};
        static int nombre = 1;
        application_ = std::make_unique<QCoreApplication>(nombre, arguments);
    }
    void TearDown() override { application_.reset(); }

  private:
    std::unique_ptr<QCoreApplication> application_;
};

[[maybe_unused]] auto const* const lEnvironnement =
    testing::AddGlobalTestEnvironment(std::make_unique<ApplicationPont>().release());

} // namespace
