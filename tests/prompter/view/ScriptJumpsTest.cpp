#include "ScriptViewFixture.h"
#include "prompter/controls/ThemedScroller.h"
#include "support/FakeAnimationTime.h"

#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <functional>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A view of a script with three headings, whose jumps glide.
class ScriptJumpsTest : public ScriptViewFixture {
protected:
    ScriptJumpsTest() {
        show(u"# One\n"_s + lines(60) + u"# Two\n"_s + lines(60) + u"# Three\n"_s + lines(60));
        view.setReadingFrame({.glides = true});
    }

    double position() { return view.scrollPosition(); }
    double heading(const QString& name) {
        return view.positionOf(view.script().text().indexOf(name));
    }

    /// The positions at the beginning and after each of so many sixtieths of a second.
    std::vector<double> positionsDuring(int frames) {
        std::vector<double> positions{position()};
        for (int frame = 0; frame < frames; ++frame) {
            time.pass(1.0 / 60);
            positions.push_back(position());
        }
        return positions;
    }

    void key(int code) { QTest::keyClick(&view, Qt::Key(code)); }

    FakeAnimationTime time;
};

TEST_F(ScriptJumpsTest, GlideForHalfASecondSmoothlyAtBothEnds) {
    ASSERT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(position(), 0) << "nothing moves at once";
    const double way = heading(u"Two"_s);
    const auto positions = positionsDuring(27);
    double fastest = 0;
    for (std::size_t i = 1; i < positions.size(); ++i) {
        EXPECT_GE(positions[i], positions[i - 1]);
        fastest = std::max(fastest, positions[i] - positions[i - 1]);
    }
    EXPECT_LT(positions[2], way * 0.01);
    EXPECT_LT(way - positions.back(), way * 0.01);
    EXPECT_LT(fastest, way * 0.12);
    EXPECT_TRUE(view.jumps().isUnderWay());
    time.pass(0.1);
    EXPECT_DOUBLE_EQ(position(), way);
    EXPECT_FALSE(view.jumps().isUnderWay());
}

TEST_F(ScriptJumpsTest, GoAtOnceUnlessTheReaderWantsThemToGlide) {
    view.setReadingFrame({});
    view.jumps().toNextHeading();
    EXPECT_DOUBLE_EQ(position(), heading(u"Two"_s));
    key(Qt::Key_End);
    EXPECT_EQ(position(), view.maximumScrollPosition());
    key(Qt::Key_Home);
    EXPECT_EQ(position(), 0);
}

TEST_F(ScriptJumpsTest, GoAtOnceWhileNobodySeesThem) {
    view.hide();
    view.jumps().toNextHeading();
    EXPECT_DOUBLE_EQ(position(), heading(u"Two"_s));
}

TEST_F(ScriptJumpsTest, GlideToTheEndAndTheTop) {
    key(Qt::Key_End);
    time.pass(0.25);
    EXPECT_NEAR(position(), view.maximumScrollPosition() / 2, view.maximumScrollPosition() / 20);
    time.pass(0.3);
    EXPECT_EQ(position(), view.maximumScrollPosition());
    key(Qt::Key_Home);
    time.pass(0.25);
    EXPECT_NEAR(position(), view.maximumScrollPosition() / 2, view.maximumScrollPosition() / 20);
    time.pass(0.3);
    EXPECT_EQ(position(), 0);
}

TEST_F(ScriptJumpsTest, GlideOnUnderAKeyThatIsHeld) {
    key(Qt::Key_End);
    for (int i = 0; i < 20; ++i) {
        time.pass(0.03);
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_End, {}, {}, true);
        QCoreApplication::sendEvent(&view, &repeat);
    }
    EXPECT_EQ(position(), view.maximumScrollPosition());
}

TEST_F(ScriptJumpsTest, TurnPagesGlidingWhateverTheReaderWantsOfOthers) {
    view.setReadingFrame({});
    const double page = view.height() - 20;
    key(Qt::Key_PageDown);
    EXPECT_EQ(position(), 0) << "nothing moves at once";
    time.pass(0.25);
    EXPECT_NEAR(position(), page / 2, page / 8);
    key(Qt::Key_PageDown);
    time.pass(0.6);
    EXPECT_EQ(position(), 2 * page) << "the second one counts from where the first one goes";
    key(Qt::Key_PageUp);
    time.pass(0.6);
    EXPECT_EQ(position(), page);
    key(Qt::Key_PageUp);
    key(Qt::Key_PageUp);
    time.pass(0.6);
    EXPECT_EQ(position(), 0);
}

TEST_F(ScriptJumpsTest, TurnAPageAfterTheOtherUnderAKeyThatIsHeld) {
    view.setReadingFrame({});
    const double page = view.height() - 20;
    key(Qt::Key_PageDown);
    for (int i = 0; i < 33; ++i) {
        time.pass(0.03);
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_PageDown, {}, {}, true);
        QCoreApplication::sendEvent(&view, &repeat);
    }
    EXPECT_GE(position(), page);
    EXPECT_LE(position(), 2 * page);
}

TEST_F(ScriptJumpsTest, GoToHeadingsByTheirNumber) {
    view.setReadingFrame({});
    EXPECT_TRUE(view.jumps().toHeadingNumber(3));
    EXPECT_DOUBLE_EQ(position(), heading(u"Three"_s));
    EXPECT_TRUE(view.jumps().toHeadingNumber(1));
    EXPECT_EQ(position(), 0);
    EXPECT_TRUE(view.jumps().toHeadingNumber(2));
    EXPECT_DOUBLE_EQ(position(), heading(u"Two"_s));
    EXPECT_FALSE(view.jumps().toHeadingNumber(4));
    EXPECT_FALSE(view.jumps().toHeadingNumber(0));
    EXPECT_DOUBLE_EQ(position(), heading(u"Two"_s));
}

TEST_F(ScriptJumpsTest, CountFromWhereTheLastOneGoes) {
    view.jumps().toNextHeading();
    time.pass(0.1);
    const double onTheWay = position();
    ASSERT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(position(), onTheWay) << "from where it is";
    time.pass(0.6);
    EXPECT_DOUBLE_EQ(position(), heading(u"Three"_s));
    EXPECT_FALSE(view.jumps().toNextHeading());

    ASSERT_TRUE(view.jumps().toPreviousHeading());
    time.pass(0.1);
    ASSERT_TRUE(view.jumps().toPreviousHeading());
    time.pass(0.6);
    EXPECT_EQ(position(), 0);
}

TEST_F(ScriptJumpsTest, EndUnderTheReadersHand) {
    const auto wheel = [this] {
        QWheelEvent event({10, 10}, view.mapToGlobal(QPointF(10, 10)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    };
    auto* scroller = view.findChild<ThemedScroller*>();
    const auto pressKnob = [scroller] {
        QTest::mousePress(scroller, Qt::LeftButton, {}, scroller->knobRect().center().toPoint());
        QTest::mouseRelease(scroller, Qt::LeftButton, {}, scroller->knobRect().center().toPoint());
    };
    const std::vector<std::function<void()>> hands{
        wheel,
        pressKnob,
        [this] { key(Qt::Key_Down); },
        [this] {
            QTest::mouseClick(&view, Qt::LeftButton, {}, {100, 100});
        },
        [scroller] {
            QTest::mouseClick(scroller, Qt::LeftButton, {}, {4, 195});
        },
    };
    for (std::size_t i = 0; i < hands.size(); ++i) {
        view.scrollTo(0);
        view.jumps().toNextHeading();
        time.pass(0.2);
        const double onTheWay = position();
        ASSERT_GT(onTheWay, 10) << i;
        hands[i]();
        const double left = position();
        EXPECT_LT(left - onTheWay, 250) << i;
        time.pass(1);
        EXPECT_EQ(position(), left) << i;
    }
}

TEST_F(ScriptJumpsTest, ArriveThoughAutoScrollMovesTheTextMeanwhile) {
    view.jumps().toNextHeading();
    for (int i = 0; i < 55; ++i) {
        time.pass(0.01);
        session->moveBy(0.3);
    }
    EXPECT_GE(position(), heading(u"Two"_s));
    EXPECT_LT(position(), heading(u"Two"_s) + 3) << "and it goes on from there";
}

TEST_F(ScriptJumpsTest, FindTheirHeadingInATextThatIsStillBeingMeasured) {
    const QString paragraph =
        u"a paragraph of several lines of an estimated height. "_s.repeated(9);
    setScript(markdownScript(u"# One\n"_s + (paragraph + u"\n\n"_s).repeated(150) + u"# Two\n"_s +
                                 (paragraph + u"\n\n"_s).repeated(150),
                             16));
    ASSERT_FALSE(view.isLayoutComplete());
    view.jumps().toNextHeading();
    for (int i = 0; i < 60; ++i) {
        time.pass(0.01);
        view.grab();
    }
    view.completeLayout();
    EXPECT_NEAR(position(), heading(u"Two"_s), 1e-6);
}

TEST_F(ScriptJumpsTest, EndWhenAnotherTextIsShown) {
    view.jumps().toNextHeading();
    time.pass(0.1);
    show(lines(300));
    const double shown = position();
    time.pass(1);
    EXPECT_EQ(position(), shown);
}

} // namespace
} // namespace tessaline
