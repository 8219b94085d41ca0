#include "appearance/SystemPalette.h"
#include "support/CaseName.h"
#include "support/WidgetPicture.h"
#include "ui/controls/BezelButton.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"

#include <QApplication>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

using MakeControl = QWidget* (*)();

class FocusRing : public testing::TestWithParam<MakeControl> {
protected:
    FocusRing() {
        control->setParent(&window);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    bool isDrawn() {
        const QImage picture = pictureOf(*control, 4);
        return !boundsOf(picture, [&](int x, int y) {
                    return picture.pixelColor(x, y) == SystemPalette::focusRing;
                }).isEmpty();
    }

    QWidget window;
    QLineEdit field{&window};
    QWidget* control = GetParam()();
};

TEST_P(FocusRing, IsDrawnForTheKeyboardOnly) {
    control->setFocus();
    EXPECT_FALSE(isDrawn());
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    EXPECT_TRUE(isDrawn());
    field.setFocus();
    EXPECT_FALSE(isDrawn());
}

INSTANTIATE_TEST_SUITE_P(
    Controls, FocusRing,
    testing::Values([]() -> QWidget* { return new BezelButton(u"Choose"_s, 13); },
                    []() -> QWidget* { return new PointSlider(u"Width"_s, 100); },
                    []() -> QWidget* { return new PopupButton(u"Screen"_s, 100); },
                    []() -> QWidget* { return new Switch(u"Obsidian"_s); }),
    byValue);

TEST(FocusRingOfASlider, IsWholeAtBothEnds) {
    QWidget window;
    auto* slider = new PointSlider(u"Width"_s, 100, &window);
    slider->setLimits(0, 10);
    window.show();
    QApplication::setActiveWindow(&window);
    slider->setFocus();
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    for (const double value : {0.0, 10.0}) {
        slider->setPoints(value);
        const QImage picture = pictureOf(*slider, 4);
        const QRectF ring = boundsOf(picture, [&](int x, int y) {
            return picture.pixelColor(x, y) == SystemPalette::focusRing;
        });
        EXPECT_NEAR(ring.width(), ring.height(), 0.5) << "at " << value;
    }
}

} // namespace
} // namespace tessaline
