// SPDX-License-Identifier: MPL-2.0
#include "DAlerte.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

TEST(AlertWithoutAnApplication, ItsTextsGoToStandardErrorAndTheAnswerIsNo) {
    ASSERT_EQ(nullptr, QCoreApplication::instance());
    testing::internal::CaptureStderr();
    EXPECT_EQ(kReponseNon,
              DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kQuestion,
                                           UniChaine("été ?", UniChaine::kCodageUtf8), UniChaine(),
                                           UniChaine("d", UniChaine::kCodageUtf8))));
    EXPECT_EQ("été ?\nd\n", testing::internal::GetCapturedStderr());
}

TEST(AlertWithoutAnApplication, AnApplicationWithoutWindowsIsNoneEither) {
    int nombre = 1;
    char nom[] = "test";
    char* arguments[] = {nom, nullptr};
    QCoreApplication const application(nombre, arguments);
    testing::internal::CaptureStderr();
    EXPECT_EQ(kReponseNon, DAlerte(nullptr, DAlerteInfo(DAlerteInfo::kErreur,
                                                        UniChaine("a", UniChaine::kCodageUtf8),
                                                        UniChaine(), UniChaine())));
    EXPECT_EQ("a\n", testing::internal::GetCapturedStderr());
}

} // namespace
