#include "app/ControlDeeds.h"
#include "AppDelegateFixture.h"
#include "prompter/PrompterKey.h"
#include "prompter/PrompterWindow.h"
#include "prompter/covers/TextCovers.h"
#include "prompter/view/ScriptView.h"
#include "settings/ReadingSettings.h"

#include <QTest>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The running program; keys are pressed in its prompter's text.
class ControlDeedsTest : public AppDelegateFixture {
protected:
    ControlDeedsTest() {
        configure([](PersistedSettings& saved) {
            saved.hasCompletedOnboarding = true;
            saved.scrollSpeed = 2;
        });
        launch();
        const QString text = u"# One\n"_s + u"line\n"_s.repeated(40) + u"# Two\n"_s +
                             u"line\n"_s.repeated(40) + u"# Three\n"_s + u"line\n"_s.repeated(40);
        delegate->scripts().open(text);
        mainQueue.runAll();
        view().completeLayout();
    }

    ScriptView& view() { return delegate->prompter().textView(); }
    TextCovers& covers() { return delegate->prompter().covers(); }
    const ReadingOptions& options() { return delegate->reading().values(); }
    const AppSettings& settings() { return delegate->currentSettings(); }
    void press(Qt::Key key) { QTest::keyClick(&view(), key); }
};

TEST_F(ControlDeedsTest, SpaceAndF5StartAndStopAsTheButtonDoes) {
    press(Qt::Key_Space);
    EXPECT_TRUE(settings().autoScrollEnabled());
    EXPECT_TRUE(recorded(u"auto_scroll_toggled"_s));
    press(Qt::Key_F5);
    EXPECT_FALSE(settings().autoScrollEnabled());
}

TEST_F(ControlDeedsTest, PlusAndMinusStepWhateverThePaceGoesBy) {
    press(Qt::Key_Plus);
    EXPECT_EQ(settings().scrollSpeed(), 2.25);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    EXPECT_EQ(settings().scrollSpeed(), 1.75);
    EXPECT_EQ(options(), ReadingOptions()) << "nothing else is chosen";

    delegate->reading().change([](ReadingOptions& values) { values.pace = PaceMode::words; });
    press(Qt::Key_Equal);
    EXPECT_EQ(options().wordsPerMinute, 155);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    EXPECT_EQ(options().wordsPerMinute, 145);

    delegate->reading().change([](ReadingOptions& values) { values.pace = PaceMode::finish; });
    press(Qt::Key_Plus);
    EXPECT_EQ(options().finishMinutes, 11.5);
    press(Qt::Key_Minus);
    EXPECT_EQ(options().finishMinutes, 12);
    EXPECT_EQ(settings().scrollSpeed(), 1.75);
}

TEST_F(ControlDeedsTest, DigitsGoToHeadings) {
    const auto heading = [this](const QString& name) {
        return view().positionOf(view().script().text().indexOf(name));
    };
    press(Qt::Key_3);
    EXPECT_DOUBLE_EQ(view().scrollPosition(), heading(u"Three"_s));
    press(Qt::Key_2);
    EXPECT_DOUBLE_EQ(view().scrollPosition(), heading(u"Two"_s));
    press(Qt::Key_9);
    EXPECT_DOUBLE_EQ(view().scrollPosition(), heading(u"Two"_s)) << "there is none";
    press(Qt::Key_1);
    EXPECT_EQ(view().scrollPosition(), 0);
}

TEST_F(ControlDeedsTest, BAndThePeriodBlackTheTextOutAndBringItBack) {
    press(Qt::Key_B);
    EXPECT_TRUE(covers().isBlack());
    press(Qt::Key_Period);
    EXPECT_FALSE(covers().isBlack());
}

TEST_F(ControlDeedsTest, MMirrorsTheTextAndEndsAnyMirroring) {
    press(Qt::Key_M);
    EXPECT_EQ(options().mirror, Mirroring::horizontal);
    press(Qt::Key_M);
    EXPECT_EQ(options().mirror, Mirroring::none);
    delegate->reading().change([](ReadingOptions& values) { values.mirror = Mirroring::both; });
    press(Qt::Key_M);
    EXPECT_EQ(options().mirror, Mirroring::none);
}

TEST_F(ControlDeedsTest, GGoesRoundTheGuides) {
    std::vector<ReadingGuide> guides;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_G);
        guides.push_back(options().guide);
    }
    EXPECT_EQ(guides, (std::vector{ReadingGuide::marker, ReadingGuide::band, ReadingGuide::none}));
}

TEST_F(ControlDeedsTest, F1AndTheQuestionMarkShowTheKeysAndPutThemAway) {
    press(Qt::Key_F1);
    EXPECT_TRUE(covers().showsKeys());
    press(Qt::Key_Question);
    EXPECT_FALSE(covers().showsKeys());
}

} // namespace
} // namespace tessaline
