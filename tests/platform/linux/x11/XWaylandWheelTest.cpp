#include "platform/linux/x11/XWaylandWheel.h"

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tessaline {
namespace {

/// A window of ours that keeps what is scrolled over it.
class ScrolledWidget : public QWidget {
public:
    std::vector<QPoint> pixels;
    std::vector<QPoint> units;

protected:
    void wheelEvent(QWheelEvent* event) override {
        pixels.push_back(event->pixelDelta());
        units.push_back(event->angleDelta());
    }
};

class XWaylandWheelTest : public testing::Test {
protected:
    XWaylandWheelTest() {
        widget.resize(100, 100);
        widget.show();
    }

    void scroll(int units, std::uint64_t time, QPoint pixels = {}) {
        QWheelEvent event({50, 50}, {50, 50}, pixels, {0, units}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget.windowHandle(), &event);
    }

    int scrolled() const {
        int sum = 0;
        for (const QPoint& step : widget.pixels)
            sum += step.y();
        return sum;
    }

    ScrolledWidget widget;
    std::unique_ptr<XWaylandWheel> wheel = std::make_unique<XWaylandWheel>(*qGuiApp);
};

TEST_F(XWaylandWheelTest, TellsWhatFingersMovedInPoints) {
    for (std::uint64_t time = 1000; time < 1100; time += 10)
        scroll(-42, time); // three and a half points each
    EXPECT_EQ(scrolled(), -35);
}

TEST_F(XWaylandWheelTest, LosesNothingOfASlowMovement) {
    for (std::uint64_t time = 1000; time < 1400; time += 10)
        scroll(3, time); // a quarter of a point each
    EXPECT_EQ(scrolled(), 10);
    EXPECT_EQ(widget.pixels.size(), 10U) << "what moves by nothing is not told";
}

TEST_F(XWaylandWheelTest, LeavesTheNotchesOfAWheelAsTheyAre) {
    scroll(120, 1000);
    scroll(-240, 2000);
    EXPECT_EQ(widget.pixels, (std::vector<QPoint>{{0, 0}, {0, 0}}));
    EXPECT_EQ(widget.units, (std::vector<QPoint>{{0, 120}, {0, -240}}));
}

TEST_F(XWaylandWheelTest, LeavesWhatIsInPointsAlready) {
    scroll(42, 1000, {0, 7});
    EXPECT_EQ(widget.pixels, (std::vector<QPoint>{{0, 7}}));
}

} // namespace
} // namespace tessaline
