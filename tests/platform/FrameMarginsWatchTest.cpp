#include "platform/qt/FrameMarginsWatch.h"

#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(FrameMarginsWatch, TellsOnceWhenTheWindowGetsAnotherFrame) {
    QWindow window;
    window.resize(100, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QMargins before = window.frameMargins();
    int changes = 0;
    new FrameMarginsWatch(window, [&] { ++changes; });
    window.showFullScreen(); // without a frame, also on the offscreen platform
    ASSERT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
    EXPECT_NE(window.frameMargins(), before);
    EXPECT_EQ(changes, 1);
}

TEST(FrameMarginsWatch, TellsAgainWhenTheWindowIsShownAgain) {
    QWindow window;
    window.resize(100, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    ASSERT_FALSE(window.frameMargins().isNull());
    int changes = 0;
    new FrameMarginsWatch(window, [&] { ++changes; });
    window.hide();
    EXPECT_EQ(changes, 0);
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
    EXPECT_EQ(changes, 1);
}

TEST(FrameMarginsWatch, SaysNothingWhileTheFrameStaysTheSame) {
    QWindow window;
    window.resize(100, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    int changes = 0;
    new FrameMarginsWatch(window, [&] { ++changes; });
    window.setGeometry(7, 7, 120, 120);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.width() == 120; }));
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace tessaline
