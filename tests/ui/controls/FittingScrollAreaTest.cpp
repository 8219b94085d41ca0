#include "ui/controls/FittingScrollArea.h"

#include "ui/WindowLook.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

/// A window with a content of so many points in height, a button at its lower end.
class FittingScrollAreaTest : public testing::Test {
protected:
    void show(int height) {
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        column->setContentsMargins({});
        column->setSpacing(0);
        filler->setFixedHeight(height - button->sizeHint().height());
        filler->setFocusPolicy(Qt::StrongFocus);
        column->addWidget(filler);
        column->addWidget(button);
        fillWithContent(window, content, QSize(320, 200));
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    // The window's, whether a test uses them or not.
    QWidget* filler = new QWidget(&window);
    QPushButton* button = new QPushButton(QStringLiteral("Last"), &window);
    const int room = window.screen()->availableGeometry().height();
};

TEST_F(FittingScrollAreaTest, IsAsLargeAsItsContent) {
    show(300);
    EXPECT_EQ(window.size(), QSize(320, 300));
    filler->setFixedHeight(filler->height() + 50);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.height() == 350; }, 3000));
}

TEST_F(FittingScrollAreaTest, HasALeastHeight) {
    show(150);
    EXPECT_EQ(window.size(), QSize(320, 200));
}

TEST_F(FittingScrollAreaTest, ScrollsWhereTheScreenIsTooLow) {
    show(room + 500);
    EXPECT_LT(window.height(), room);
    const auto* area = window.findChild<FittingScrollArea*>();
    EXPECT_TRUE(area->verticalScrollBar()->isVisible());
    // The bar stands beside the content, not over it.
    EXPECT_EQ(area->viewport()->width(), 320);
    EXPECT_TRUE(button->visibleRegion().isEmpty());
    filler->setFocus();
    QTest::keyClick(filler, Qt::Key_Tab);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
}

TEST_F(FittingScrollAreaTest, MakesTheWindowOneForScreenReadersToo) {
    show(300);
    window.setWindowTitle(QStringLiteral("Some window"));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::Window);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Some window"));
    EXPECT_NE(QAccessible::queryAccessibleInterface(button)->role(), QAccessible::Window);
}

TEST_F(FittingScrollAreaTest, StaysWithinTheRoomThatItIsGiven) {
    show(500);
    fitToContent(window, 360);
    EXPECT_EQ(window.height(), 360);
    EXPECT_GT(window.width(), 320) << "the bar stands beside the content";
    fitToContent(window, 500);
    EXPECT_EQ(window.size(), QSize(320, 500));
    fitToContent(window, -100);
    EXPECT_EQ(window.height(), 100) << "some of it is always seen";
}

TEST_F(FittingScrollAreaTest, KeepsWhatHasTheKeyboardInSightWhenItsRoomShrinks) {
    show(500);
    button->setFocus();
    fitToContent(window, 400);
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
}

TEST_F(FittingScrollAreaTest, ShowsWhatStandsBeyondTheLastControlAndBeforeTheFirst) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* above = new QLabel(QStringLiteral("Above"));
    auto* below = new QLabel(QStringLiteral("Below"));
    auto* first = new QPushButton(QStringLiteral("First"));
    column->addWidget(above);
    column->addWidget(first);
    column->addSpacing(400);
    column->addWidget(button);
    column->addWidget(below);
    fillWithContent(window, content, QSize(320, 200));
    fitToContent(window, 200);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_TRUE(button->hasFocus());
    EXPECT_EQ(below->visibleRegion().boundingRect(), below->rect());
    QTest::keyClick(button, Qt::Key_Backtab);
    ASSERT_TRUE(first->hasFocus());
    EXPECT_EQ(above->visibleRegion().boundingRect(), above->rect());
}

TEST_F(FittingScrollAreaTest, ScrollsByKeysWhileNoControlHasTheFocus) {
    show(500);
    fitToContent(window, 200);
    focusNoControl(window);
    const auto* bar = window.findChild<FittingScrollArea*>()->verticalScrollBar();
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    press(Qt::Key_PageDown);
    EXPECT_GT(bar->value(), 100);
    press(Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(bar->value(), bar->maximum());
    press(Qt::Key_Tab);
    EXPECT_TRUE(filler->hasFocus());
}

TEST_F(FittingScrollAreaTest, KeepsItsFooterInSightAndRightBelowTheContent) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins({});
    filler->setFixedHeight(300);
    column->addWidget(filler);
    column->addStretch();
    const int footer = button->sizeHint().height();
    fillWithContent(window, content, QSize(320, 400), button);
    window.show();
    EXPECT_EQ(window.size(), QSize(320, 400));
    EXPECT_EQ(button->mapTo(&window, QPoint()).y(), 300);
    fitToContent(window, 200);
    EXPECT_EQ(window.height(), 200);
    EXPECT_EQ(button->mapTo(&window, QPoint()).y(), 200 - footer);
    EXPECT_EQ(filler->visibleRegion().boundingRect().height(), 200 - footer);
}

TEST_F(FittingScrollAreaTest, SqueezesNothingBeforeItScrolls) {
    auto* content = new QWidget;
    content->setLayout(new QVBoxLayout);
    for (int i = 0; i < room / 10; ++i)
        content->layout()->addWidget(new QPushButton(QString::number(i)));
    fillWithContent(window, content, QSize(320, 200));
    window.show();
    for (const QPushButton* part : content->findChildren<QPushButton*>())
        EXPECT_GE(part->height(), part->sizeHint().height());
}

} // namespace
} // namespace tessaline
