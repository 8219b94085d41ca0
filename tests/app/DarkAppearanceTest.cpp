#include "app/DarkAppearance.h"

#include "appearance/DarkPalette.h"
#include "platform/SystemAdapters.h"

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
    if (showNativeDarkAppearance()) GTEST_SKIP() << "the system draws it itself";
    QApplication::setStyle(QStringLiteral("windows"));
    applyDarkAppearance();
    EXPECT_EQ(QApplication::style()->name(), QStringLiteral("fusion"));
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Highlight}) {
        EXPECT_EQ(QApplication::palette().color(role), darkPalette().color(role));
        EXPECT_EQ(QToolTip::palette().color(role), darkPalette().color(role));
    }
}

} // namespace
} // namespace tessaline
