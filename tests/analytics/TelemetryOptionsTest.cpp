#include "analytics/TelemetryOptions.h"

#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Leaves the environment as every test program has it.
class TelemetryOptionsTest : public testing::Test {
public:
    TelemetryOptionsTest() { qunsetenv("DO_NOT_TRACK"); }
    ~TelemetryOptionsTest() override {
        qputenv("DO_NOT_TRACK", "1");
        qunsetenv("TESSALINE_TELEMETRY_URL");
    }
};

TEST_F(TelemetryOptionsTest, AllowSignalsToTheServiceByDefault) {
    const auto options = TelemetryOptions::fromEnvironment();
    EXPECT_TRUE(options.isAllowed);
    EXPECT_FALSE(options.testMode);
    EXPECT_EQ(options.baseURL, TelemetryOptions::defaultBaseURL());
    EXPECT_EQ(options.baseURL.scheme(), u"https"_s);
    EXPECT_EQ(options.baseURL.path(), u"/v2/"_s);
    EXPECT_EQ(options.timeout, std::chrono::seconds(60));
}

TEST_F(TelemetryOptionsTest, TakeAnotherAddress) {
    qputenv("TESSALINE_TELEMETRY_URL", "http://localhost:8080/here?a=b");
    EXPECT_EQ(TelemetryOptions::fromEnvironment().baseURL,
              QUrl(u"http://localhost:8080/here?a=b"_s));
}

TEST_F(TelemetryOptionsTest, KeepTheAddressWhenTheOtherIsEmpty) {
    qputenv("TESSALINE_TELEMETRY_URL", "");
    EXPECT_EQ(TelemetryOptions::fromEnvironment().baseURL, TelemetryOptions::defaultBaseURL());
}

TEST_F(TelemetryOptionsTest, NeverFallBackToTheServiceFromAnAddressThatIsNone) {
    qputenv("TESSALINE_TELEMETRY_URL", "http://[nonsense");
    EXPECT_FALSE(TelemetryOptions::fromEnvironment().baseURL.isValid());
}

TEST_F(TelemetryOptionsTest, ForbidSignalsToWhoDoesNotWantToBeTracked) {
    for (const char* wish : {"1", "true", "yes"}) {
        qputenv("DO_NOT_TRACK", wish);
        EXPECT_FALSE(TelemetryOptions::fromEnvironment().isAllowed) << wish;
    }
}

TEST_F(TelemetryOptionsTest, AllowSignalsWhereTheWishIsTakenBack) {
    for (const char* wish : {"", "0"}) {
        qputenv("DO_NOT_TRACK", wish);
        EXPECT_TRUE(TelemetryOptions::fromEnvironment().isAllowed) << wish;
    }
}

} // namespace
} // namespace tessaline
