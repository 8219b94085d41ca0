#include "prompter/PrompterLook.h"

#include "PrompterWindowFixture.h"
#include "prompter/covers/CountdownView.h"
#include "reading/PrompterStatus.h"
#include "support/WidgetPicture.h"

#include <gmock/gmock.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using ::testing::HasSubstr;

class PrompterLookTest : public PrompterWindowTest {
protected:
    void choose(const std::function<void(ReadingOptions& options)>& edit) {
        window();
        readingSettings.change(edit);
    }

    /// How much of what lies below a place of the window is hidden there, in parts of 255.
    int alphaAt(int x, int y) { return qAlpha(pictureOf(window()).pixel(x, y)); }
    int alphaOfText() { return alphaAt(14, 60); }
    int alphaOfMargin() { return alphaAt(4, 60); }
    int alphaOfStrip() { return alphaAt(240, 34); }

    QRect stripArea() { return window().controls().geometry(); }
};

TEST_F(PrompterLookTest, HasTheWindowTakeTheMouseInItsStripAlone) {
    window();
    EXPECT_EQ(traits.inputArea, std::nullopt);
    choose([](auto& options) { options.clickThrough = true; });
    EXPECT_EQ(traits.inputArea, stripArea());

    settings.setWidth(600);
    window().updateFrame();
    EXPECT_EQ(traits.inputArea->width(), 600);
    window().toggleCollapsed();
    finishResizing(32);
    EXPECT_EQ(traits.inputArea, std::nullopt) << "there is nothing but the strip";
    window().toggleCollapsed();
    finishResizing(256);
    EXPECT_EQ(traits.inputArea, stripArea());
    window().cutOut(QRect(0, 100, 50, 50));
    EXPECT_EQ(traits.inputArea, stripArea());
    choose([](auto& options) { options.clickThrough = false; });
    EXPECT_EQ(traits.inputArea, std::nullopt);
}

TEST_F(PrompterLookTest, TellsWhereTheMouseCannotGoThrough) {
    traits.letsMouseThrough = false;
    choose([](auto& options) { options.clickThrough = true; });
    EXPECT_EQ(traits.inputArea, std::nullopt);
    EXPECT_FALSE(window().status().clickedThrough);
    traits.letsMouseThrough = true;
    EXPECT_TRUE(window().status().clickedThrough);
}

TEST_F(PrompterLookTest, LetsBeSeenThroughTheGroundBelowTheStrip) {
    show(u"text"_s);
    EXPECT_EQ(alphaOfText(), 255);
    EXPECT_EQ(alphaOfMargin(), 255);
    choose([](auto& options) { options.groundOpacity = 0.6; });
    EXPECT_EQ(alphaOfText(), 153);
    EXPECT_EQ(alphaOfMargin(), 153);
    EXPECT_EQ(alphaOfStrip(), 255);
    EXPECT_EQ(alphaAt(1, window().height() - 1), 0) << "the corner is round as ever";
}

TEST_F(PrompterLookTest, IsOpaqueWhereNothingWouldBeSeenThroughIt) {
    traits.translucency = false;
    show(u"text"_s);
    choose([](auto& options) { options.groundOpacity = 0.6; });
    EXPECT_EQ(alphaOfText(), 255);
    EXPECT_EQ(window().status().opacityShown, 100);
    traits.translucency = true;
    traits.translucencyChanged();
    EXPECT_EQ(alphaOfText(), 153);
    EXPECT_EQ(window().status().opacityShown, 60);
    traits.translucency = false;
    traits.translucencyChanged();
    EXPECT_EQ(alphaOfText(), 255);
}

TEST_F(PrompterLookTest, ShowsTheDefaultFontWhereAnotherIsMissingAndSaysSoOnce) {
    testing::internal::CaptureStdout();
    choose([](auto& options) { options.fontFamily = u"Gone With It"_s; });
    choose([](auto& options) { options.lineSpacing = 1.5; });
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "⚠️ The font “Gone With It” is not installed: the default is shown\n");
    EXPECT_EQ(window().status().fontShown, u"default"_s);
    EXPECT_EQ(window().look().family(), QString());
    EXPECT_EQ(readingSettings.values().fontFamily, u"Gone With It"_s);
}

TEST_F(PrompterLookTest, TurnsTheDigitsOverAsTheText) {
    readingSettings.change([](auto& options) { options.countdownSeconds = 7; });
    settings.setAutoScrollEnabled(true);
    auto& countdown = *part<CountdownView>(window(), "prompter_countdown");
    ASSERT_TRUE(countdown.isVisible());
    const QImage written = pictureOf(countdown);
    choose([](auto& options) { options.mirror = Mirroring::horizontal; });
    const QImage seen = pictureOf(countdown);
    EXPECT_NE(seen, written);
    // Seven has its ink at the top; turned sideways its foot is at the other end.
    const QRectF ink =
        boundsOf(written, [&](int x, int y) { return written.pixelColor(x, y).red() > 100; });
    const QRectF mirrored =
        boundsOf(seen, [&](int x, int y) { return seen.pixelColor(x, y).red() > 100; });
    EXPECT_NEAR(mirrored.left(), countdown.width() - ink.right(), 1);
    EXPECT_NEAR(mirrored.top(), ink.top(), 1);
}

} // namespace
} // namespace tessaline
