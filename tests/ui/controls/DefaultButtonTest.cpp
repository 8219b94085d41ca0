#include "ui/controls/DefaultButton.h"

#include "appearance/SystemPalette.h"
#include "support/WidgetPicture.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class DefaultButtonTest : public testing::Test {
protected:
    DefaultButtonTest() {
        button->setParent(&window);
        button->resize(100, 24);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
    }

    QColor ground() { return pictureOf(*button).pixelColor(4, 12); }

    QWidget window;
    QLineEdit field{&window};
    DefaultButton* button = new DefaultButton(u"Done"_s, window);
};

TEST_F(DefaultButtonTest, StandsOutAsLongAsItCanBePressed) {
    EXPECT_EQ(ground(), SystemPalette::blue);
    button->setEnabled(false);
    EXPECT_NE(ground().rgb(), SystemPalette::blue.rgb());
}

TEST_F(DefaultButtonTest, IsPressedByBothReturnKeysFromElsewhereInItsWindow) {
    int presses = 0;
    QObject::connect(button, &DefaultButton::clicked, [&presses] { ++presses; });
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Enter);
    EXPECT_EQ(presses, 2);
}

} // namespace
} // namespace tessaline
