#include "ScriptViewFixture.h"

#include <QImage>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr ReadingFrame atTheEyeLine{.isActive = true};

class ReadingFrameTest : public ScriptViewFixture {
protected:
    /// The middle of the line of an offset, from the view's top.
    double middleOf(qsizetype offset) { return view.caretRect(offset).center().y(); }

    qsizetype offsetOf(const QString& word) { return view.script().text().indexOf(word); }

    /// The first offset of the line that the eye line goes through.
    qsizetype lineRead() { return view.offsetAt({16, view.eyeLine()}); }
};

TEST_F(ReadingFrameTest, TakesTheSecondLineUnlessTheReaderSaysWhere) {
    show(lines(100));
    EXPECT_DOUBLE_EQ(view.eyeLine(), middleOf(offsetOf(u"line 1\n"_s)));
    view.setReadingFrame({.eyeLine = 0.25});
    EXPECT_DOUBLE_EQ(view.eyeLine(), 0.25 * view.height());
}

TEST_F(ReadingFrameTest, GivesTheSecondLineInEveryFont) {
    show(lines(100));
    for (const double size : {12.0, 15.5, 24.0, 48.0}) {
        view.setFontSize(size);
        EXPECT_DOUBLE_EQ(view.eyeLine(), middleOf(offsetOf(u"line 1\n"_s))) << size;
    }
}

TEST_F(ReadingFrameTest, ChangesNothingWhileItIsNotActive) {
    show(lines(100));
    view.scrollTo(150);
    const QImage before = view.grab().toImage();
    const double end = view.maximumScrollPosition();
    view.setReadingFrame({.eyeLine = 0.5});
    EXPECT_EQ(view.grab().toImage(), before);
    EXPECT_EQ(view.maximumScrollPosition(), end);
    EXPECT_EQ(view.scrollPosition(), 150);
}

TEST_F(ReadingFrameTest, LetsTheFirstAndTheLastLineComeToTheEyeLine) {
    show(u"first\nsecond"_s);
    for (const double share : {0.25, 0.4, 0.5}) {
        view.setReadingFrame({.isActive = true, .eyeLine = share});
        view.scrollTo(0);
        EXPECT_NEAR(middleOf(0), share * view.height(), 1e-9);
        view.scrollTo(1e9);
        EXPECT_NEAR(middleOf(offsetOf(u"second"_s)), share * view.height(), 1e-9);
    }
}

TEST_F(ReadingFrameTest, EndsAtTheLastLineWithText) {
    show(u"# Title\n"_s + lines(100) + u"last\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n"_s);
    view.setReadingFrame(atTheEyeLine);
    EXPECT_NEAR(middleOf(0), view.eyeLine(), 1e-9) << "also where the first line is a high one";
    view.scrollTo(1e9);
    EXPECT_NEAR(middleOf(offsetOf(u"last"_s)), view.eyeLine(), 1e-9);
}

TEST_F(ReadingFrameTest, StandsStillWhenItIsSwitchedOnAndOff) {
    show(lines(100));
    view.scrollTo(150.25);
    const double before = middleOf(0);
    view.setReadingFrame({.isActive = true, .eyeLine = 0.4});
    EXPECT_NEAR(middleOf(0), before, 1e-9);
    view.setReadingFrame({});
    EXPECT_NEAR(middleOf(0), before, 1e-9);
    EXPECT_NEAR(view.scrollPosition(), 150.25, 1e-9);
}

TEST_F(ReadingFrameTest, StaysAtTheBeginning) {
    show(lines(100));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.5});
    EXPECT_EQ(view.scrollPosition(), 0);
    view.setReadingFrame({});
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ReadingFrameTest, TakesTheLineThatIsReadAlongWhenTheEyeLineMoves) {
    show(lines(100));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.25});
    view.scrollTo(200);
    const qsizetype line = lineRead();
    view.setReadingFrame({.isActive = true, .eyeLine = 0.45});
    EXPECT_EQ(lineRead(), line);
    EXPECT_EQ(view.scrollPosition(), 200);
}

TEST_F(ReadingFrameTest, KeepsTheLineThatIsReadInAnotherSize) {
    show(lines(100));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.4});
    view.scrollTo(view.positionOf(offsetOf(u"line 50"_s)));
    const qsizetype line = lineRead();
    ASSERT_EQ(line, offsetOf(u"line 50"_s));
    view.setFontSize(30);
    EXPECT_EQ(lineRead(), line);
    view.resize(300, 400);
    EXPECT_EQ(lineRead(), line);
    view.resize(300, 0);
    view.resize(430, 202);
    EXPECT_EQ(lineRead(), line);
}

TEST_F(ReadingFrameTest, KeepsTheLineThatIsReadWhenTheTextAboveChanges) {
    show(lines(100));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.4});
    view.scrollTo(view.positionOf(offsetOf(u"line 50"_s)));
    // Between the view's top and the eye line.
    show(lines(100).replace(u"line 48\n"_s, u"line 48\nnew\nnew\nnew\n"_s));
    EXPECT_EQ(lineRead(), offsetOf(u"line 50"_s));
}

TEST_F(ReadingFrameTest, TellsTheSessionWhatIsAtTheEyeLine) {
    show(lines(100));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.4});
    session->moveTo(offsetOf(u"line 50"_s));
    EXPECT_EQ(session->place().paragraph, 50U);
    EXPECT_NEAR(session->place().fraction, 0.5, 1e-9);
    EXPECT_NEAR(middleOf(offsetOf(u"line 50"_s)), view.eyeLine(), 1e-9);
}

TEST_F(ReadingFrameTest, BringsHeadingsToTheEyeLine) {
    show(u"# One\n"_s + lines(30) + u"## Two\n"_s + lines(30) + u"### Three"_s);
    view.setReadingFrame({.isActive = true, .eyeLine = 0.5});
    for (const QString& heading : {u"Two"_s, u"Three"_s}) {
        EXPECT_TRUE(view.jumps().toNextHeading());
        EXPECT_NEAR(middleOf(offsetOf(heading)), view.eyeLine(), 1e-9);
    }
    EXPECT_FALSE(view.jumps().toNextHeading());
    EXPECT_TRUE(view.jumps().toPreviousHeading());
    EXPECT_NEAR(middleOf(offsetOf(u"Two"_s)), view.eyeLine(), 1e-9);
    EXPECT_TRUE(view.jumps().toPreviousHeading());
    EXPECT_EQ(view.scrollPosition(), 0);
    EXPECT_FALSE(view.jumps().toPreviousHeading());
}

TEST_F(ReadingFrameTest, KeepsTheLineThatIsReadWhileALongTextIsMeasured) {
    setScript(markdownScript(
        u"WIDER WORDS THAN ESTIMATED. "_s.repeated(18).append(u"\n\n"_s).repeated(300), 16));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.5});
    view.scrollTo(40000);
    view.grab();
    const double before = middleOf(lineRead()) - view.eyeLine();
    const qsizetype line = lineRead();
    ASSERT_FALSE(view.isLayoutComplete());
    const double end = view.maximumScrollPosition();
    while (!view.isLayoutComplete())
        QCoreApplication::processEvents();
    EXPECT_NE(view.maximumScrollPosition(), end) << "the estimates were wrong";
    EXPECT_NEAR(middleOf(line) - view.eyeLine(), before, 1e-6);
    view.scrollTo(1e9);
    EXPECT_NEAR(middleOf(view.script().length() - 2), view.eyeLine(), 1e-6);
}

TEST_F(ReadingFrameTest, KeepsTheLineThatIsReadWhenItIsSeenForTheFirstTime) {
    setScript(markdownScript(
        u"WIDER WORDS THAN ESTIMATED. "_s.repeated(5).append(u"\n\n"_s).repeated(600), 16));
    view.setReadingFrame({.isActive = true, .eyeLine = 0.5});
    view.scrollTo(40000);
    ASSERT_FALSE(view.isLayoutComplete());
    const std::size_t paragraph = session->place().paragraph;
    const double before = view.paragraphRect(paragraph).top();
    const double end = view.maximumScrollPosition();
    view.grab();
    EXPECT_NE(view.maximumScrollPosition(), end) << "the estimates were wrong";
    EXPECT_NEAR(view.paragraphRect(paragraph).top(), before, 1e-6);
}

TEST_F(ReadingFrameTest, ComesBackFromATextOfNothing) {
    show(QString());
    view.setReadingFrame(atTheEyeLine);
    EXPECT_EQ(view.maximumScrollPosition(), 0);
    show(lines(10));
    EXPECT_NEAR(middleOf(0), view.eyeLine(), 1e-9);
}

} // namespace
} // namespace tessaline
