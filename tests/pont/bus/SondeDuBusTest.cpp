// SPDX-License-Identifier: MPL-2.0
// Whether there is a bus that answers, told in time whatever that bus does.
#include "SondeDuBus.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLongtemps{30000};
constexpr milliseconds kCourt{200};

class LookingForABus : public testing::Test {
  protected:
    BusPrive bus_;
};

TEST_F(LookingForABus, FindsTheOneThatAnswersWhereverItStandsInTheList) {
    EXPECT_TRUE(sondeDuBus::Repond(bus_.Adresse(), kLongtemps));
    EXPECT_TRUE(sondeDuBus::Repond("unix:path=/nonexistent/bus;" + bus_.Adresse(), kLongtemps));
    EXPECT_TRUE(sondeDuBus::Repond(bus_.Adresse() + ",guid=0;unix:path=/nonexistent", kLongtemps));
}

TEST_F(LookingForABus, ReadsAddressesAsTheyAreWritten) {
    // "unix:abstract=/tmp/…": every byte may stand as "%" and two hexadecimal digits.
    auto const debut = bus_.Adresse().find("/tmp");
    ASSERT_NE(debut, std::string::npos);
    auto code = bus_.Adresse();
    code.replace(debut, 4, "%2Ftm%70");
    EXPECT_TRUE(sondeDuBus::Repond(code, kLongtemps));
    EXPECT_FALSE(sondeDuBus::Repond(code + "%", kLongtemps)) << "another name";
}

TEST_F(LookingForABus, TellsAtOnceThatNobodyListens) {
    auto const depart = std::chrono::steady_clock::now();
    for (auto const* adresse : {"unix:path=/nonexistent/bus", "unix:abstract=nobody",
                                "unix:path=", "unix:path=/nonexistent;unix:abstract=nobody"}) {
        EXPECT_FALSE(sondeDuBus::Repond(adresse, kLongtemps)) << adresse;
    }
    EXPECT_FALSE(
        sondeDuBus::Repond("unix:path=/" + std::string(std::size_t{200}, 'x'), kLongtemps));
    EXPECT_LT(std::chrono::steady_clock::now() - depart, milliseconds(15000));
}

TEST_F(LookingForABus, LeavesOtherKindsOfAddressesToTheBusLibrary) {
    for (auto const* adresse : {"", "autolaunch:", "unix:runtime=yes", "tcp:host=localhost,port=1",
                                "unixexec:path=/bin/false", "nonsense"}) {
        EXPECT_TRUE(sondeDuBus::Repond(adresse, kCourt)) << adresse;
    }
}

TEST_F(LookingForABus, WaitsForAStoppedOneNoLongerThanItMayAlsoWhenManyHaveAskedBefore) {
    bus_.Fige();
    auto const depart = std::chrono::steady_clock::now();
    // A stopped bus takes connections until thirty or so wait; then there is not even that.
    constexpr int kFois = 60;
    for (int i = 0; i < kFois; ++i) {
        EXPECT_FALSE(sondeDuBus::Repond(bus_.Adresse(), milliseconds(10)));
    }
    EXPECT_GE(std::chrono::steady_clock::now() - depart, kFois * milliseconds(9));
    EXPECT_LT(std::chrono::steady_clock::now() - depart, milliseconds(30000));
    bus_.Degele();
    EXPECT_TRUE(sondeDuBus::Repond(bus_.Adresse(), kLongtemps));
}

TEST_F(LookingForABus, TakesTheUsersOwnBusWhereTheEnvironmentNamesNone) {
    EXPECT_EQ(bus_.Adresse(), sondeDuBus::DonneAdresse());
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
    ::setenv("XDG_RUNTIME_DIR", "/nonexistent", 1);
    EXPECT_EQ("", sondeDuBus::DonneAdresse());
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ("", sondeDuBus::DonneAdresse());
}

} // namespace
