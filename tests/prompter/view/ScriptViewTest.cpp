#include "prompter/view/ScriptView.h"
#include "prompter/controls/ThemedScroller.h"
#include "support/PaintCounter.h"

#include "ScriptViewFixture.h"
#include "reading/MarkdownScript.h"
#include "render/markdown/MarkdownRenderer.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ScriptViewTest : public ScriptViewFixture {
protected:
    /// The height, in pixels, of the centre of all light that the view draws.
    double centreOfLight() {
        const QImage picture = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
        double light = 0;
        double moment = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const double value = qGray(picture.pixel(x, y));
                light += value;
                moment += value * y;
            }
        }
        return moment / light;
    }
};

TEST_F(ScriptViewTest, StartsAtTheTop) {
    show(lines(100));
    EXPECT_EQ(view.scrollPosition(), 0);
    EXPECT_GT(view.maximumScrollPosition(), 1000);
}

TEST_F(ScriptViewTest, LeavesAMarginAroundTheText) {
    show(u"word "_s.repeated(200));
    EXPECT_EQ(view.caretRect(0).topLeft(), QPointF(15, 10));
    const qsizetype last = view.script().length();
    EXPECT_DOUBLE_EQ(view.caretRect(last).bottom() + 10, view.documentHeight());
    double rightmost = 0;
    for (qsizetype offset = 0; offset < last; ++offset)
        rightmost = std::max(rightmost, view.caretRect(offset).left());
    EXPECT_LE(rightmost, view.width() - 15);
    EXPECT_GT(rightmost, view.width() - 100);
}

TEST_F(ScriptViewTest, StaysWithinTheDocument) {
    show(lines(100));
    view.scrollTo(-50);
    EXPECT_EQ(view.scrollPosition(), 0);
    view.scrollTo(1e9);
    EXPECT_EQ(view.scrollPosition(), view.maximumScrollPosition());
    EXPECT_DOUBLE_EQ(view.maximumScrollPosition(), view.documentHeight() - view.height());
}

TEST_F(ScriptViewTest, CannotScrollWhatFits) {
    show(u"short"_s);
    EXPECT_EQ(view.maximumScrollPosition(), 0);
    view.scrollTo(10);
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewTest, GoesFromHeaderToHeader) {
    show(u"# First\n"_s + lines(30) + u"## Second\n"_s + lines(30) + u"# Third\n"_s + lines(30));
    EXPECT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(topLine(), u"Second"_s);
    EXPECT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(topLine(), u"Third"_s);
    EXPECT_FALSE(view.jumps().toNextHeading());
    EXPECT_TRUE(view.jumps().toPreviousHeading());
    EXPECT_EQ(topLine(), u"Second"_s);
    EXPECT_TRUE(view.jumps().toPreviousHeading());
    EXPECT_EQ(view.scrollPosition(), 0);
    EXPECT_FALSE(view.jumps().toPreviousHeading());
}

TEST_F(ScriptViewTest, ReturnsToTheHeaderOfTheTextBeingRead) {
    show(u"# First\n"_s + lines(30) + u"## Second\n"_s + lines(60));
    view.jumps().toNextHeading();
    const double header = view.scrollPosition();
    view.scrollTo(header + 100);
    EXPECT_TRUE(view.jumps().toPreviousHeading());
    EXPECT_DOUBLE_EQ(view.scrollPosition(), header);
}

TEST_F(ScriptViewTest, FindsHeadersInTextThatIsNotLaidOutYet) {
    setScript(markdownScript(lines(20000) + u"# Far away\n"_s +
                                 u"a much longer line than any other "_s.repeated(200) + u"\n"_s +
                                 lines(100),
                             16));
    ASSERT_FALSE(view.isLayoutComplete());
    EXPECT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(topLine(), u"Far away"_s);
}

TEST_F(ScriptViewTest, HasNoHeaderToGoToInPlainText) {
    show(lines(100));
    view.scrollTo(200);
    EXPECT_FALSE(view.jumps().toNextHeading());
    EXPECT_FALSE(view.jumps().toPreviousHeading());
    EXPECT_EQ(view.scrollPosition(), 200);
}

TEST_F(ScriptViewTest, GoesToTheEndForAHeaderThatCannotReachTheTop) {
    show(lines(60) + u"# Last\nend"_s);
    EXPECT_TRUE(view.jumps().toNextHeading());
    EXPECT_EQ(view.scrollPosition(), view.maximumScrollPosition());
    EXPECT_FALSE(view.jumps().toNextHeading());
}

TEST_F(ScriptViewTest, MovesWhatItDrawsByFractionsOfAPixel) {
    show(u"\n\n\nOne line of text\n"_s + u"\n"_s.repeated(40));
    double before = centreOfLight();
    for (int frame = 1; frame <= 120; ++frame) {
        view.scrollTo(frame * 0.16);
        const double now = centreOfLight();
        EXPECT_NEAR(before - now, 0.16, 0.03) << "frame " << frame;
        before = now;
    }
}

TEST_F(ScriptViewTest, PaintsNothingWhileNothingMoves) {
    show(lines(100));
    PaintCounter paints(view);
    paints.take();
    view.scrollTo(5.25);
    EXPECT_EQ(paints.take(), 1);
    view.scrollTo(5.25);
    EXPECT_EQ(paints.take(), 0);
    view.scrollTo(5.5);
    view.scrollTo(5.75);
    EXPECT_EQ(paints.take(), 1);
}

TEST_F(ScriptViewTest, KeepsThePositionWhenTheEndChanges) {
    show(lines(100));
    view.scrollTo(333.25);
    show(lines(100) + u"one more"_s);
    EXPECT_DOUBLE_EQ(view.scrollPosition(), 333.25);
}

TEST_F(ScriptViewTest, KeepsTheReadersLineWhenSomethingIsInsertedAbove) {
    show(lines(100));
    view.scrollTo(500);
    const QString before = topLine();
    QString edited = lines(100);
    edited.insert(edited.indexOf(u"line 3\n"_s), u"# A new header\n\nand more\n"_s);
    show(edited);
    EXPECT_EQ(topLine(), before);
    EXPECT_GT(view.scrollPosition(), 520);
}

TEST_F(ScriptViewTest, StaysAtTheTopWhenSomethingIsInsertedThere) {
    show(lines(100));
    show(u"# First of all\n"_s + lines(100));
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewTest, KeepsTheReadersLineWhenTheFontGrows) {
    show(lines(100));
    view.scrollTo(700);
    const QString before = topLine();
    setScript(markdownScript(lines(100), 28));
    view.completeLayout();
    EXPECT_EQ(topLine(), before);
}

TEST_F(ScriptViewTest, LooksTheSameInAnotherFontSizeAsATextThatWasMadeForIt) {
    const QString text = u"# Title\n- item\n**bold** `code`\n```\nblock\n```\n"_s + lines(20);
    show(text);
    view.setFontSize(24.5);
    const QImage resized = view.grab().toImage();
    setScript(markdownScript(text, 24.5));
    view.completeLayout();
    EXPECT_EQ(view.grab().toImage(), resized);
}

TEST_F(ScriptViewTest, KeepsTheReadersLineAndTheSelectionWhenTheFontSizeChanges) {
    show(lines(100));
    view.scrollTo(700);
    const QString line = topLine();
    TextSelection selection;
    selection.moveTo(10, false);
    selection.moveTo(600, true);
    view.setSelection(selection);
    const QString selected = view.selectedText();
    view.setFontSize(28);
    EXPECT_EQ(topLine(), line);
    EXPECT_EQ(view.selectedText(), selected);
}

TEST_F(ScriptViewTest, LeavesFontsThatBelongToNoBodySizeAsTheyAre) {
    StyledText styled = MarkdownRenderer(16).render(u"text"_s);
    styled.fontSize = 0;
    setScript(Script(std::move(styled)));
    const double height = view.documentHeight();
    view.setFontSize(40);
    EXPECT_EQ(view.documentHeight(), height);
}

TEST_F(ScriptViewTest, KeepsTheReadersLineWhenTheWidthChanges) {
    show((u"words "_s.repeated(40) + u"\n"_s).repeated(50) + lines(50));
    view.scrollTo(view.maximumScrollPosition() * 0.5);
    const qsizetype before = view.offsetAt({20, 1});
    view.resize(300, 202);
    view.completeLayout();
    EXPECT_NEAR(double(view.offsetAt({20, 1})), double(before), 60);
}

TEST_F(ScriptViewTest, MovesTheLineOfAnOffsetToTheTop) {
    show(lines(30) + u"words "_s.repeated(400) + u"\n"_s + lines(60));
    const qsizetype start = view.script().text().indexOf(u"words"_s);
    for (const qsizetype offset : {start, start + 1000}) {
        session->moveTo(offset);
        EXPECT_NEAR(view.caretRect(offset).top(), 0, 1e-6);
    }
    session->moveTo(0);
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewTest, ShowsThePlaceOfAnotherViewOfItsSession) {
    show((u"words "_s.repeated(40) + u"\n"_s).repeated(20) + lines(50));
    ScriptView other(session);
    other.resize(300, 150);
    other.show();
    const auto expectSameLine = [&] {
        const auto line = [](ScriptView& shown) {
            return unitAround(shown.script(), shown.offsetAt({20, 1}),
                              TextSelection::Unit::paragraph)
                .begin;
        };
        EXPECT_EQ(line(other), line(view));
    };
    view.scrollTo(701);
    expectSameLine();
    EXPECT_GT(other.scrollPosition(), 701) << "it is narrower";
    view.resize(350, 202);
    expectSameLine();
    const double before = view.scrollPosition();
    other.scrollByHand(other.scrollPosition() + 200);
    EXPECT_NEAR(view.scrollPosition(), before + 200, 1e-6);
    expectSameLine();
    show(u"# New\n"_s + view.script().text());
    other.completeLayout();
    expectSameLine();
}

TEST_F(ScriptViewTest, ClampsThePositionToAShorterText) {
    show(lines(100));
    view.scrollTo(1e9);
    show(u"something\nelse entirely"_s);
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewTest, ShowsTheScrollerOnlyForTheReadersHand) {
    show(lines(100));
    auto* scroller = view.findChild<ThemedScroller*>();
    ASSERT_TRUE(scroller);
    view.scrollTo(100);
    EXPECT_EQ(scroller->opacity(), 0);
    view.scrollByHand(200);
    EXPECT_GT(scroller->opacity(), 0);
    EXPECT_NEAR(double(scroller->value()) / scroller->maximum(),
                view.scrollPosition() / view.maximumScrollPosition(), 0.01);
}

TEST_F(ScriptViewTest, FollowsTheScroller) {
    show(lines(100));
    auto* scroller = view.findChild<ThemedScroller*>();
    scroller->setValue(scroller->maximum());
    EXPECT_NEAR(view.scrollPosition(), view.maximumScrollPosition(), 0.2);
}

TEST_F(ScriptViewTest, StandsAnythingAsText) {
    for (const QString& text :
         {QString(), QString(QChar(0xD800)), QString(QChar(0)), u"\r\r\r"_s, u"\u2028\u2029\v\f"_s,
          QString(QChar(0x202E)) + u"override"_s.repeated(100), u"e"_s + u"\u0301"_s.repeated(500),
          u"\t"_s.repeated(1000), u"m"_s.repeated(20000), u"مرحبا عالم"_s,
          u"日本語の文章"_s.repeated(50), u"👨‍👩‍👧‍👦"_s.repeated(200)}) {
        show(text);
        view.grab();
        view.scrollTo(1e9);
        view.grab();
        EXPECT_GE(view.documentHeight(), 20);
    }
}

} // namespace
} // namespace tessaline
