#include "platform/unsupported/UnsupportedAccessibilityTrust.h"
#include "platform/unsupported/UnsupportedEventTapMaker.h"
#include "platform/unsupported/UnsupportedGlobalKeyMonitor.h"

#include "support/PrintQt.h"
#include "support/RecordedLog.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UnsupportedAccessibilityTrust, IsNeverTrustedAndSaysSoOnceWhenAsked) {
    const RecordedLog log;
    UnsupportedAccessibilityTrust trust;
    EXPECT_FALSE(trust.isTrusted());
    EXPECT_THAT(log.entries(), IsEmpty());
    trust.requestWithPrompt();
    trust.requestWithPrompt();
    EXPECT_FALSE(trust.isTrusted());
    EXPECT_THAT(log.entries(),
                ElementsAre(QStringLiteral(
                    "tessaline.input: This system never lets a program see the input of others: "
                    "shortcuts work in windows of ours only.")));
}

TEST(UnsupportedGlobalKeyMonitor, HearsNothingAndSaysSoOnce) {
    const RecordedLog log;
    UnsupportedGlobalKeyMonitor monitor;
    EXPECT_EQ(monitor.start({}, [](const KeyEvent&) {}), nullptr);
    EXPECT_EQ(monitor.start({}, [](const KeyEvent&) {}), nullptr);
    EXPECT_THAT(log.entries(),
                ElementsAre(QStringLiteral("tessaline.input: This system has no shortcuts for "
                                           "other applications.")));
}

TEST(UnsupportedEventTapMaker, MakesNoTap) {
    UnsupportedEventTapMaker maker;
    EXPECT_EQ(maker.create([](const TapEvent&) { return EventTap::Verdict::passOn; }), nullptr);
}

} // namespace

} // namespace tessaline
