#include "platform/NotificationCenter.h"
#include "prompter/PrompterWindowFixture.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "screens/ScreenManager.h"

#include "support/Part.h"

#include <QAbstractButton>

#include <optional>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::uint32_t projectorID = 2;

/// A prompter beside whose screen there is a projector, to the left.
class PrompterWindowPlacement : public PrompterWindowTest {
protected:
    PrompterWindowPlacement() {
        Screen projector{.id = projectorID, .name = u"projector"_s};
        projector.frame = {-1000, 0, 1000, 600};
        projector.visibleFrame = {-1000, 0, 1000, 560};
        screens.attached.push_back(projector);
    }

    void choose(std::optional<std::uint32_t> screen) {
        window().setScreenManager(&manager);
        manager.preferredDisplayID = screen;
    }

    /// Whether the lower corners, left and right, are as opaque as this, from 0 to 255.
    bool lowerCornersHave(int alpha) {
        const QImage picture = window().grab().toImage();
        const int bottom = picture.height() - 1;
        return picture.pixelColor(0, bottom).alpha() == alpha &&
               picture.pixelColor(picture.width() - 1, bottom).alpha() == alpha;
    }

    static QSize primarySize() { return QApplication::primaryScreen()->size(); }

    NotificationCenter notifications;
    ScreenManager manager{screens, notifications};
};

TEST_F(PrompterWindowPlacement, HangsFromTheTopOfTheChosenScreen) {
    choose(projectorID);
    window().updateFrame();
    EXPECT_EQ(window().geometry(), QRect(-725, primarySize().height() - 600, 450, 256));
    EXPECT_EQ(window().menuBarHeight(), 40);
}

TEST_F(PrompterWindowPlacement, StaysWithinTheSidesOfTheChosenScreen) {
    choose(projectorID);
    settings.setXOffset(2000);
    window().updateFrame();
    EXPECT_EQ(window().geometry().left(), -450);
    settings.setXOffset(-2000);
    window().updateFrame();
    EXPECT_EQ(window().geometry().left(), -1000);
}

TEST_F(PrompterWindowPlacement, IsNotHeldWithinTheMainScreenWithoutAChoice) {
    settings.setXOffset(2000);
    window().updateFrame();
    EXPECT_EQ(window().geometry().left(), (primarySize().width() - 450) / 2 + 2000);
}

TEST_F(PrompterWindowPlacement, MeasuresTheStripOnThePreferredScreenWhileItIsOnNone) {
    settings.setXOffset(20'000);
    window().updateFrame();
    EXPECT_EQ(window().menuBarHeight(), 32) << "of the main screen, for want of a choice";
    choose(projectorID);
    EXPECT_EQ(window().menuBarHeight(), 40);
}

TEST_F(PrompterWindowPlacement, TakesTheHeightOfTheSettingsAlsoWhileCollapsed) {
    window().toggleCollapsed();
    finishResizing(32);
    settings.setHeight(300);
    window().updateFrame();
    EXPECT_EQ(window().height(), 300);
    EXPECT_TRUE(window().isCollapsed());
    EXPECT_EQ(window().textView().height(), 0);
    window().toggleCollapsed();
    EXPECT_FALSE(window().isCollapsed());
    finishResizing(256);
}

TEST_F(PrompterWindowPlacement, CentresItsControlsInAPanelThatHasGrown) {
    const auto* quitButton = part<QAbstractButton>(window(), "prompter_quitButton");
    EXPECT_EQ(quitButton->geometry(), QRect(10, 10, 12, 12));
    screens.attached[0].visibleFrame.height -= 8;
    window().updateFrame();
    EXPECT_EQ(quitButton->geometry(), QRect(10, 14, 12, 12));
}

TEST_F(PrompterWindowPlacement, IsSquareAtOnceWhenItIsPlacedWhileItFolds) {
    window().toggleCollapsed();
    window().updateFrame();
    EXPECT_EQ(window().height(), 256);
    EXPECT_TRUE(lowerCornersHave(255));
}

TEST_F(PrompterWindowPlacement, IsSquareAllAroundWhileCollapsed) {
    window().toggleCollapsed();
    finishResizing(32);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lowerCornersHave(255); }, 3000));
    window().updateFrame();
    EXPECT_TRUE(lowerCornersHave(255));
    window().toggleCollapsed();
    finishResizing(256);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lowerCornersHave(0); }, 3000));
}

} // namespace
} // namespace tessaline
