#include "analytics/TDSignal.h"

#include "support/PrintQt.h"

#include <QTimeZone>

#include <gtest/gtest.h>

#include <limits>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

const TDSignal example{.receivedAt =
                           QDateTime(QDate(2026, 11, 20), QTime(21, 44, 30), QTimeZone::utc()),
                       .appID = u"app"_s,
                       .clientUser = u"user"_s,
                       .sessionID = u"session"_s,
                       .type = u"content_loaded"_s,
                       .payload = {{u"b"_s, u"2"_s}, {u"a"_s, u"1"_s}},
                       .isTestMode = u"false"_s};

TEST(TDSignalTest, HasItsKeysInOrderAndNoFloatValue) {
    EXPECT_EQ(encode(example), R"({"receivedAt":"2026-11-20T21:44:30Z","appID":"app",)"
                               R"("clientUser":"user","sessionID":"session",)"
                               R"("type":"content_loaded","payload":{"a":"1","b":"2"},)"
                               R"("isTestMode":"false"})");
}

TEST(TDSignalTest, HasItsFloatValueBeforeThePayload) {
    TDSignal signal = example;
    signal.floatValue = 2.5;
    signal.payload.clear();
    EXPECT_EQ(encode(signal), R"({"receivedAt":"2026-11-20T21:44:30Z","appID":"app",)"
                              R"("clientUser":"user","sessionID":"session",)"
                              R"("type":"content_loaded","floatValue":2.5,"payload":{},)"
                              R"("isTestMode":"false"})");
}

TEST(TDSignalTest, CannotHoldNumbersThatJsonHasNot) {
    TDSignal signal = example;
    signal.floatValue = std::numeric_limits<double>::infinity();
    EXPECT_EQ(encode(signal), std::nullopt);
}

} // namespace
} // namespace tessaline
