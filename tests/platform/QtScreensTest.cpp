#include "platform/qt/QtScreens.h"

#include "platform/NotificationCenter.h"
#include "platform/ReservedEdges.h"
#include "support/FakeMainQueue.h"

#include <QGuiApplication>
#include <QScreen>

#include <gmock/gmock.h>

#include <memory>
#include <utility>

namespace tessaline {
namespace {

class FakeReservedEdges final : public ReservedEdges {
public:
    QMarginsF of(const QScreen& /*screen*/) const override { return edges; }

    QMarginsF edges;
};

class QtScreensTest : public ::testing::Test {
protected:
    std::unique_ptr<QtScreens> makeScreens() {
        auto owned = std::make_unique<FakeReservedEdges>();
        panels = owned.get();
        return std::make_unique<QtScreens>(
            notifications, queue,
            [](const QScreen&) { return ScreenIdentity{.id = 7, .builtIn = true}; },
            std::move(owned));
    }

    /// What Qt does when a desktop reports a change, without the desktop.
    static void changeGeometry() {
        QScreen* screen = QGuiApplication::primaryScreen();
        Q_EMIT screen->geometryChanged(screen->geometry());
        Q_EMIT screen->availableGeometryChanged(screen->availableGeometry());
    }

    NotificationCenter notifications;
    FakeMainQueue queue;
    FakeReservedEdges* panels = nullptr; ///< of the screens that were made last
    int posts = 0;
    const void* sender = nullptr;
    NotificationCenter::Observation observer = notifications.observe(
        Screens::parametersDidChangeNotification(), [this](const Notification& notification) {
            ++posts;
            sender = notification.sender;
        });
};

TEST_F(QtScreensTest, CallsScreensAsTheSystemDoesWhereQtKnowsNoBetter) {
    const QtScreens screens(
        notifications, queue,
        [](const QScreen&) { return ScreenIdentity{.id = 7, .name = QStringLiteral("eDP-1")}; },
        nullptr);
    EXPECT_EQ(screens.all().front().name, QStringLiteral("eDP-1"));
}

TEST_F(QtScreensTest, DescribesEveryScreen) {
    const auto screens = makeScreens();
    const auto all = screens->all();
    const QScreen* primary = QGuiApplication::primaryScreen();

    ASSERT_EQ(static_cast<int>(all.size()), QGuiApplication::screens().size());
    const Screen& first = all.front();
    EXPECT_EQ(first.id, 7U);
    EXPECT_TRUE(first.builtIn);
    EXPECT_EQ(first.name, primary->name());
    EXPECT_EQ(first.refreshRate, primary->refreshRate());
    const QSize size = primary->geometry().size();
    EXPECT_EQ(first.frame, (Rect{0, 0, double(size.width()), double(size.height())}));
    EXPECT_EQ(screens->mainScreen(), first);
}

TEST_F(QtScreensTest, LeavesOutWhatPanelsKeep) {
    const auto screens = makeScreens();
    const Rect frame = screens->mainScreen()->frame;
    EXPECT_EQ(screens->mainScreen()->visibleFrame, frame);
    panels->edges = {1.5, 40, 3, 20};
    EXPECT_EQ(screens->mainScreen()->visibleFrame,
              (Rect{1.5, 20, frame.width - 4.5, frame.height - 60}));
    panels->edges = {0, frame.height + 10, 0, 0};
    EXPECT_EQ(screens->mainScreen()->visibleFrame.height, 0);
}

TEST_F(QtScreensTest, AnnouncesPanelsThatChange) {
    const auto screens = makeScreens();
    panels->onChange();
    queue.runAll();
    EXPECT_EQ(posts, 1);
}

TEST_F(QtScreensTest, AnnouncesTheSignalsOfOneChangeOnce) {
    const auto screens = makeScreens();
    changeGeometry();
    EXPECT_EQ(posts, 0);
    queue.runAll();
    EXPECT_EQ(posts, 1);
    EXPECT_EQ(sender, static_cast<const QObject*>(screens.get()));
}

TEST_F(QtScreensTest, AnnouncesTwoConsecutiveChangesTwice) {
    const auto screens = makeScreens();
    changeGeometry();
    queue.runAll();
    changeGeometry();
    queue.runAll();
    EXPECT_EQ(posts, 2);
}

TEST_F(QtScreensTest, AnnouncesNothingOnceItIsGone) {
    auto screens = makeScreens();
    changeGeometry();
    screens.reset();
    queue.runAll();
    changeGeometry();
    queue.runAll();
    EXPECT_EQ(posts, 0);
}

} // namespace
} // namespace tessaline
