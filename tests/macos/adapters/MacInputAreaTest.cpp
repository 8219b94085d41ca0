#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/WindowTraits.h"
#include "platform/macos/MacAdapters.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A window of 300 × 200 points, of which the topmost 40 take the mouse.
class MacInputAreaTest : public MacAdaptersTest {
protected:
    MacInputAreaTest() {
        window.setGeometry(100, 100, 300, 200);
        QCursor::setPos(150, 110);
    }

    void setArea(const std::optional<QRect>& area) { traits->setInputArea(window, area); }

    static constexpr QRect strip{0, 0, 300, 40};
    QWidget window;
    std::unique_ptr<WindowTraits> traits = makeWindowTraits();
};

TEST_F(MacInputAreaTest, AsksForNothingUnlessSomebodyWantsIt) {
    EXPECT_TRUE(traits->canSetInputArea());
    setArea(std::nullopt);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(MacInputAreaTest, LetsTheMouseThroughWhileItIsOutsideOfTheArea) {
    setArea(strip);
    EXPECT_THAT(takeCalls(), ElementsAre(u"monitor 36"_s, u"setIgnoresMouseEvents:0"_s));
    QCursor::setPos(150, 250);
    QMouseEvent overOurs(QEvent::MouseMove, {50, 150}, {150, 250}, Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &overOurs);
    EXPECT_THAT(takeCalls(), ElementsAre(u"setIgnoresMouseEvents:1"_s));
    QCursor::setPos(150, 120);
    EXPECT_TRUE(movePointerElsewhere());
    EXPECT_THAT(takeCalls(), ElementsAre(u"setIgnoresMouseEvents:0"_s));
}

TEST_F(MacInputAreaTest, LeavesADragToTheWindowInWhichItBegan) {
    setArea(strip);
    takeCalls();
    QCursor::setPos(150, 250);
    QMouseEvent drag(QEvent::MouseMove, {50, 150}, {150, 250}, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drag);
    EXPECT_THAT(takeCalls(), IsEmpty());
    QMouseEvent end(QEvent::MouseButtonRelease, {50, 150}, {150, 250}, Qt::LeftButton, Qt::NoButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &end);
    EXPECT_THAT(takeCalls(), ElementsAre(u"setIgnoresMouseEvents:1"_s));
}

TEST_F(MacInputAreaTest, TakesTheMouseEverywhereAgain) {
    QCursor::setPos(150, 250);
    setArea(strip);
    FakeObjectiveC::drainPool();
    takeCalls();
    setArea(std::nullopt);
    EXPECT_THAT(takeCalls(), ElementsAre(u"remove monitor"_s, u"setIgnoresMouseEvents:0"_s));
    EXPECT_FALSE(movePointerElsewhere());
}

TEST_F(MacInputAreaTest, ForgetsAWindowThatIsGone) {
    {
        QWidget shortLived;
        traits->setInputArea(shortLived, strip);
    }
    takeCalls();
    EXPECT_TRUE(movePointerElsewhere());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
} // namespace tessaline
