#include "platform/linux/wayland/LayerTitleBar.h"

#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <gmock/gmock.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with a native one below it, and a layout as all of ours have.
class FramedWindow : public QWidget {
public:
    explicit FramedWindow(Qt::WindowFlags flags = Qt::Window) : QWidget(nullptr, flags) {
        setWindowTitle(u"Settings"_s);
        (new QVBoxLayout(this))->addWidget(new QLabel(u"content"_s));
        winId();
        addBar();
    }

    void addBar() {
        LayerTitleBar::addTo(*windowHandle(), [this] { return whereMouseCountsFrom; });
    }

    QWidget* bar() const { return layout()->menuBar(); }

    QPoint whereMouseCountsFrom;
};

TEST(LayerTitleBar, StandsAboveTheContentWithTheWindowsTitle) {
    FramedWindow window;
    window.show();
    ASSERT_NE(window.bar(), nullptr);
    EXPECT_EQ(window.bar()->geometry().topLeft(), QPoint(0, 0));
    EXPECT_GE(window.findChild<QLabel*>({}, Qt::FindDirectChildrenOnly)->y(),
              window.bar()->height());
    const auto* title = window.bar()->findChild<QLabel*>();
    EXPECT_EQ(title->text(), u"Settings"_s);
    window.setWindowTitle(u"Reading"_s);
    EXPECT_EQ(title->text(), u"Reading"_s);
}

TEST(LayerTitleBar, ClosesTheWindow) {
    FramedWindow window;
    window.show();
    auto* close = window.bar()->findChild<QToolButton*>();
    EXPECT_EQ(close->accessibleName(), u"Close"_s);
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
}

TEST(LayerTitleBar, MovesTheWindowWhileItIsDragged) {
    FramedWindow window;
    window.move(100, 50);
    window.whereMouseCountsFrom = {100, 50};
    window.show();
    QWidget* bar = window.bar();
    QTest::mousePress(bar, Qt::LeftButton, {}, {40, 10});
    QTest::mouseMove(bar, {60, 25});
    EXPECT_EQ(window.pos(), QPoint(120, 65));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, {40, 10});
    QTest::mouseMove(bar, {10, 10});
    EXPECT_EQ(window.pos(), QPoint(120, 65));
}

TEST(LayerTitleBar, CountsTheMouseFromWhereTheWindowWasForIt) {
    FramedWindow window;
    window.whereMouseCountsFrom = {100, 50};
    window.show();
    QTest::mousePress(window.bar(), Qt::LeftButton, {}, {40, 10});
    QTest::mouseMove(window.bar(), {60, 25});
    QTest::mouseMove(window.bar(), {70, 35});
    EXPECT_EQ(window.pos(), QPoint(130, 75)) << "not twice as far";
    window.whereMouseCountsFrom = window.pos();
    QTest::mouseMove(window.bar(), {41, 10});
    EXPECT_EQ(window.pos(), QPoint(131, 75));
}

TEST(LayerTitleBar, IsNoPartOfWindowsThatDesktopsDoNotFrame) {
    EXPECT_EQ(FramedWindow(Qt::FramelessWindowHint).bar(), nullptr);
    EXPECT_EQ(FramedWindow(Qt::Popup).bar(), nullptr);
    EXPECT_EQ(FramedWindow(Qt::ToolTip).bar(), nullptr);
}

TEST(LayerTitleBar, IsOneOnly) {
    FramedWindow window;
    window.addBar();
    EXPECT_EQ(window.findChildren<QToolButton*>().size(), 1);
}

} // namespace

} // namespace tessaline
