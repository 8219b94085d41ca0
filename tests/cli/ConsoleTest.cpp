#include "cli/Console.h"

#include "cli/ExitStatus.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

std::string reported(const QString& message) {
    testing::internal::CaptureStderr();
    reportError(message);
    return testing::internal::GetCapturedStderr();
}

TEST(Console, ReportsUnderTheProgramsName) {
    EXPECT_EQ(reported(u"no file"_s), "tessaline: no file\n");
}

TEST(Console, ReportsOnOneLineWithoutControlCharacters) {
    EXPECT_EQ(reported(u"cannot read a\nb\x1b[31m"_s), "tessaline: cannot read a?b?[31m\n");
}

TEST(Console, FailsWhenTheOutputCannotBeWritten) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(reportOutputFailure(u"No space left on device"_s), ExitStatus::failure);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "tessaline: cannot write standard output: No space left on device\n");
}

TEST(Console, PrintsATextAsItIs) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(printText(u"one\ntwo"_s), ExitStatus::success);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "one\ntwo");
}

} // namespace
} // namespace tessaline
