#include "ui/controls/BezelButton.h"

#include "appearance/SystemPalette.h"
#include "support/PointerEvents.h"
#include "support/WidgetPicture.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class BezelButtonTest : public testing::Test {
protected:
    BezelButtonTest() { button.resize(button.sizeHint()); }

    /// Left of the title.
    QColor ground() { return pictureOf(button).pixelColor(4, button.height() / 2); }

    BezelButton button{u"Choose"_s, 13};
};

TEST_F(BezelButtonTest, FadesWhileItIsDisabled) {
    EXPECT_EQ(ground(), SystemPalette::button);
    button.setEnabled(false);
    EXPECT_NEAR(ground().alpha(), 127, 2);
}

TEST_F(BezelButtonTest, LightsUpWhileItIsPressed) {
    mouseDown(button, button.rect().center());
    EXPECT_GT(ground().lightness(), SystemPalette::button.lightness());
    mouseUp(button, button.rect().center());
    EXPECT_EQ(ground(), SystemPalette::button);
}

TEST_F(BezelButtonTest, LeavesRoomAroundItsTitle) {
    const QImage picture = pictureOf(button, 4);
    const QRectF title =
        boundsOf(picture, [&](int x, int y) { return picture.pixelColor(x, y).lightness() > 160; });
    EXPECT_FALSE(title.isEmpty());
    EXPECT_TRUE(QRectF(button.rect()).adjusted(6, 4, -6, -4).contains(title));
}

} // namespace
} // namespace tessaline
