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
        LayerTitleBar::addTo(*windowHandle());
    }

    QWidget* bar() const { return layout()->menuBar(); }
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
    window.show();
    QWidget* bar = window.bar();
    QTest::mousePress(bar, Qt::LeftButton, {}, {40, 10});
    QTest::mouseMove(bar, {60, 25});
    EXPECT_EQ(window.pos(), QPoint(120, 65));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, {40, 10});
    QTest::mouseMove(bar, {10, 10});
    EXPECT_EQ(window.pos(), QPoint(120, 65));
}

TEST(LayerTitleBar, IsNoPartOfWindowsThatDesktopsDoNotFrame) {
    EXPECT_EQ(FramedWindow(Qt::FramelessWindowHint).bar(), nullptr);
    EXPECT_EQ(FramedWindow(Qt::Popup).bar(), nullptr);
    EXPECT_EQ(FramedWindow(Qt::ToolTip).bar(), nullptr);
}

TEST(LayerTitleBar, IsOneOnly) {
    FramedWindow window;
    LayerTitleBar::addTo(*window.windowHandle());
    EXPECT_EQ(window.findChildren<QToolButton*>().size(), 1);
}

} // namespace

} // namespace tessaline
