#include "app/DarkAppearance.h"

#include "appearance/DarkPalette.h"
#include "support/FakeNativeLook.h"

#include <QApplication>
#include <QStyle>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

/// What the test program looked like before comes back afterwards.
class DarkAppearance : public testing::Test {
public:
    ~DarkAppearance() override {
        QApplication::setStyle(style);
        QApplication::setPalette(palette);
        QToolTip::setPalette(toolTips);
    }

protected:
    const QString style = QApplication::style()->name();
    const QPalette palette = QApplication::palette();
    const QPalette toolTips = QToolTip::palette();
};

TEST_F(DarkAppearance, IsTheSameWhateverTheDesktopLooksLike) {
    FakeNativeLook look;
    QApplication::setStyle(QStringLiteral("windows"));
    applyDarkAppearance(look);
    EXPECT_EQ(QApplication::style()->name(), QStringLiteral("fusion"));
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Highlight}) {
        EXPECT_EQ(QApplication::palette().color(role), darkPalette().color(role));
        EXPECT_EQ(QToolTip::palette().color(role), darkPalette().color(role));
    }
}

TEST_F(DarkAppearance, IsLeftToASystemThatDrawsItItself) {
    FakeNativeLook look;
    look.hasDark = true;
    QApplication::setStyle(QStringLiteral("windows"));
    applyDarkAppearance(look);
    EXPECT_EQ(QApplication::style()->name(), QStringLiteral("windows"));
}

} // namespace
} // namespace tessaline
