#include "platform/linux/desktop/LinuxActivationPolicy.h"

#include <QGuiApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(LinuxActivationPolicy, ActivatesTheWindowThatWasMadeLast) {
    QWidget first;
    QWidget second;
    first.show();
    second.show();
    first.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&first));
    LinuxActivationPolicy().activateIgnoringOtherApps();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&second));
}

TEST(LinuxActivationPolicy, LeavesHiddenAndUnmanagedWindowsAlone) {
    QWidget managed;
    managed.show();
    QWidget unmanaged(nullptr, Qt::BypassWindowManagerHint);
    unmanaged.show();
    unmanaged.activateWindow();
    QWidget hidden;
    hidden.winId();
    LinuxActivationPolicy().activateIgnoringOtherApps();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&managed));
    EXPECT_FALSE(hidden.isVisible());
}

TEST(LinuxActivationPolicy, DoesNothingWithoutWindows) {
    LinuxActivationPolicy().activateIgnoringOtherApps();
    EXPECT_FALSE(QGuiApplication::focusWindow());
}

} // namespace
} // namespace tessaline
