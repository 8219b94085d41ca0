#include "app/StatusItem.h"

#include "app/StatusIcon.h"
#include "support/CaseName.h"
#include "support/FakeStatusArea.h"
#include "support/FakeTimerMaker.h"
#include "support/RecordedLog.h"

#include <QImage>

#include <gmock/gmock.h>

#include <utility>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// The pixel that covers a point, counted from the bottom left corner.
QColor colorAt(const QImage& image, double x, double y) {
    const double scale = image.width() / 18.0;
    return image.pixelColor(int(x * scale), image.height() - 1 - int(y * scale));
}

class StatusItemTest : public testing::Test {
protected:
    FakeTimerMaker timers;
    FakeStatusArea area;
};

TEST_F(StatusItemTest, HasTheMenuWithItsTitlesAndKeys) {
    StatusItem item(area, timers, {});
    const auto actions = item.actions();
    ASSERT_EQ(actions.size(), 6);
    EXPECT_EQ(actions[0]->text(), u"Show Tessaline"_s);
    EXPECT_TRUE(actions[0]->shortcut().isEmpty());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[2]->text(), u"Settings\u2026"_s);
    EXPECT_EQ(actions[2]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    EXPECT_EQ(actions[3]->text(), u"Reading\u2026"_s);
    EXPECT_TRUE(actions[3]->shortcut().isEmpty());
    EXPECT_EQ(&item.readingAction(), actions[3]);
    EXPECT_TRUE(actions[4]->isSeparator());
    EXPECT_EQ(actions[5]->text(), u"Quit Tessaline"_s);
    EXPECT_EQ(actions[5]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    for (const int shown : {2, 5})
        EXPECT_TRUE(actions[shown]->isShortcutVisibleInContextMenu());
}

TEST_F(StatusItemTest, CarriesOutWhatIsChosen) {
    QStringList done;
    StatusItem item(area, timers,
                    {.showPrompter = [&] { done << u"show"_s; },
                     .showConfig = [&] { done << u"config"_s; },
                     .showReading = [&] { done << u"reading"_s; },
                     .quit = [&] { done << u"quit"_s; }});
    for (QAction* action : item.actions())
        action->trigger();
    EXPECT_EQ(done, (QStringList{u"show"_s, u"config"_s, u"reading"_s, u"quit"_s}));
}

TEST_F(StatusItemTest, IsShownAtOnceWhereThereIsATray) {
    const RecordedLog log;
    const StatusItem item(area, timers, {});
    EXPECT_TRUE(item.isShown());
    EXPECT_TRUE(log.entries().filter(u"no tray"_s).isEmpty());
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(StatusItemTest, SaysOnceThatThereIsNoTrayHoweverLongThatLasts) {
    const RecordedLog log;
    area.there = false;
    const StatusItem item(area, timers, {});
    timers.advance(600);
    EXPECT_FALSE(item.isShown());
    EXPECT_EQ(log.entries().filter(u"no tray"_s).size(), 1)
        << log.entries().join(u'\n').toStdString();
}

TEST_F(StatusItemTest, IsShownWithinTwoSecondsOfATrayThatComesLater) {
    area.there = false;
    const StatusItem item(area, timers, {});
    timers.advance(60);
    area.there = true;
    timers.advance(2);
    EXPECT_TRUE(item.isShown());
    EXPECT_TRUE(timers.liveIntervals().empty()) << "the poll is over";
}

TEST_F(StatusItemTest, StopsToWaitWhenItGoesAway) {
    area.there = false;
    {
        const StatusItem item(area, timers, {});
        EXPECT_EQ(timers.liveIntervals(), std::vector{2.0});
    }
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST(StatusIcon, PrefersTheSystemsSymbol) {
    FakeStatusArea area;
    area.drawing = QImage(36, 36, QImage::Format_ARGB32);
    area.drawing.fill(Qt::red);
    const QIcon icon = statusIcon(area);
    EXPECT_EQ(area.asked, (QStringList{u"rectangle.topthird.inset.filled"_s, u"Tessaline"_s}));
    EXPECT_EQ(icon.pixmap(18).toImage().pixelColor(9, 9), QColor(Qt::red));
    EXPECT_TRUE(icon.isMask());
}

TEST(StatusIcon, IsDrawnWhereTheSystemHasNoSymbol) {
    const QIcon icon = statusIcon(FakeStatusArea());
    EXPECT_TRUE(icon.isMask());
    for (const int size : {16, 18, 22, 24, 32, 36, 48})
        EXPECT_EQ(icon.actualSize(QSize(size, size)), QSize(size, size));
}

class StatusIconDrawing : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Sizes, StatusIconDrawing, testing::Values(18, 36, 54), byValue);

TEST_P(StatusIconDrawing, IsARoundedBodyWithAnInsetAtItsTop) {
    const QImage image = drawStatusIcon(GetParam());
    const QColor body = colorAt(image, 4.5, 8.5);
    EXPECT_EQ(body.alpha(), 255);
    for (const auto& [x, y] : {std::pair(2.5, 9.5), {15.5, 9.5}, {9.5, 4.5}, {5.5, 13.5}})
        EXPECT_EQ(colorAt(image, x, y), body) << "just inside the body: " << x << ' ' << y;
    for (const auto& [x, y] : {std::pair(1.5, 9.5), {16.5, 9.5}, {9.5, 3.5}, {9.5, 14.5}})
        EXPECT_EQ(colorAt(image, x, y), QColor(Qt::transparent)) << "outside: " << x << ' ' << y;
    for (const auto& [x, y] : {std::pair(6.5, 12.0), {11.5, 12.0}, {9.5, 10.5}, {9.5, 13.5}})
        EXPECT_GT(qGray(colorAt(image, x, y).rgb()), 240) << "the inset: " << x << ' ' << y;
    for (const auto& [x, y] : {std::pair(5.5, 12.0), {12.5, 12.0}, {9.5, 9.5}})
        EXPECT_EQ(colorAt(image, x, y), body) << "around the inset: " << x << ' ' << y;
    EXPECT_LT(colorAt(image, 2.2, 4.2).alpha(), 128); // the corner is round
}

TEST(StatusIcon, CanBeToldFromBlackAndFromWhite) {
    const int grey = qGray(colorAt(drawStatusIcon(18), 9, 6).rgb());
    EXPECT_GT(grey, 90);
    EXPECT_LT(grey, 165);
}

} // namespace
} // namespace tessaline
