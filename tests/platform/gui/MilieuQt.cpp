// SPDX-License-Identifier: MPL-2.0
// A QApplication for the tests of this executable, for as long as they run.
#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace {

class MilieuQt : public testing::Environment {
  public:
    void SetUp() override { application_ = std::make_unique<QApplication>(nombre_, arguments_); }
    void TearDown() override { application_.reset(); }

  private:
    int nombre_ = 1;
    char nom_[5] = "test";
    char* arguments_[2] = {nom_, nullptr};
    std::unique_ptr<QApplication> application_;
};

// GoogleTest owns it.
auto const* const leMilieu = testing::AddGlobalTestEnvironment(new MilieuQt);

} // namespace
