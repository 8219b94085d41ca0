#include "platform/unsupported/UnsupportedWindowTraits.h"

#include "support/PrintQt.h"
#include "support/RecordedLog.h"

#include <QWidget>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UnsupportedWindowTraits, AskForAWindowThatStaysOnTop) {
    EXPECT_EQ(UnsupportedWindowTraits().creationFlags(), Qt::WindowStaysOnTopHint);
}

TEST(UnsupportedWindowTraits, SayOnceThatCapturesShowTheWindow) {
    const RecordedLog log;
    UnsupportedWindowTraits traits;
    EXPECT_FALSE(traits.canExcludeFromCapture());
    EXPECT_THAT(log.entries(), IsEmpty());
    EXPECT_FALSE(traits.excludeFromCapture(1));
    EXPECT_FALSE(traits.excludeFromCapture(1));
    EXPECT_THAT(log.entries(),
                ElementsAre(QStringLiteral("tessaline.window: This system cannot keep a window out "
                                           "of screen captures.")));
}

TEST(UnsupportedWindowTraits, SayOnceThatTheSystemPlacesTheWindow) {
    const RecordedLog log;
    UnsupportedWindowTraits traits;
    QWidget window;
    traits.adopt(window);
    traits.release(window);
    traits.adopt(window);
    EXPECT_THAT(log.entries(),
                ElementsAre(QStringLiteral("tessaline.window: This system decides by itself how a "
                                           "window is placed and stacked.")));
}

} // namespace
} // namespace tessaline
