#include "prompter/controls/ThemedScroller.h"
#include "prompter/view/ScriptView.h"
#include "support/CaseName.h"

#include "ScriptViewFixture.h"
#include "reading/MarkdownScript.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using ScriptViewMeasuringTest = ScriptViewFixture;

/// The mean brightness of a picture, 0 to 255.
double brightness(const QImage& picture) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            sum += qGray(picture.pixel(x, y));
    }
    return sum / (picture.width() * picture.height());
}

TEST_F(ScriptViewMeasuringTest, LaysLongTextsOutWhileTheProgramGoesOn) {
    setScript(markdownScript(lines(20000), 16));
    EXPECT_FALSE(view.isLayoutComplete());
    bool completed = false;
    QObject::connect(&view, &ScriptView::layoutCompleted, &view, [&] { completed = true; });
    for (int turn = 0; turn < 100000 && !completed; ++turn)
        QCoreApplication::processEvents();
    EXPECT_TRUE(completed);
    EXPECT_TRUE(view.isLayoutComplete());
}

/// A way by which the last open paragraph of a text comes to be measured.
struct Measuring {
    const char* name;
    void (*measureTheEnd)(ScriptView& view);
};

class ScriptViewMeasuring : public ScriptViewFixture,
                            public testing::WithParamInterface<Measuring> {};

TEST_P(ScriptViewMeasuring, IsToldOnceWhenItIsComplete) {
    // Of two paragraphs that are laid out later, the first one at once.
    setScript(
        markdownScript(u"words "_s.repeated(1300) + u"\n"_s + u"wider words "_s.repeated(650), 16));
    view.reveal(0);
    int completions = 0;
    QObject::connect(&view, &ScriptView::layoutCompleted, &view, [&] { ++completions; });
    ASSERT_FALSE(view.isLayoutComplete());
    const double estimate = view.maximumScrollPosition();

    GetParam().measureTheEnd(view);

    EXPECT_TRUE(view.isLayoutComplete());
    EXPECT_NE(view.maximumScrollPosition(), estimate);
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(view.findChild<ThemedScroller*>()->maximum(), int(view.maximumScrollPosition() * 8));
    for (int turn = 0; turn < 10; ++turn)
        QCoreApplication::processEvents();
    view.completeLayout();
    EXPECT_EQ(completions, 1);
}

INSTANTIATE_TEST_SUITE_P(
    EveryWay, ScriptViewMeasuring,
    testing::Values(Measuring{"Reveal",
                              [](ScriptView& view) { view.reveal(view.script().length()); }},
                    Measuring{"Paint",
                              [](ScriptView& view) {
                                  view.scrollTo(view.maximumScrollPosition());
                                  view.grab();
                              }},
                    Measuring{"Events",
                              [](ScriptView& view) {
                                  while (!view.isLayoutComplete())
                                      QCoreApplication::processEvents();
                              }},
                    Measuring{"Request", [](ScriptView& view) { view.completeLayout(); }}),
    byMember<&Measuring::name>);

TEST_F(ScriptViewMeasuringTest, IsChangedByNoQuestion) {
    setScript(markdownScript((u"words "_s.repeated(1300) + u"\n"_s).repeated(9), 16));
    view.scrollTo(view.maximumScrollPosition());
    const double height = view.documentHeight();
    const double position = view.scrollPosition();
    const qsizetype end = view.script().length();
    EXPECT_GT(view.caretRect(end).top(), view.caretRect(end / 2).top());
    EXPECT_GT(view.offsetAt({20, 1}), view.offsetAt({20, -height / 2}));
    EXPECT_FALSE(view.isLayoutComplete());
    EXPECT_EQ(view.documentHeight(), height);
    EXPECT_EQ(view.scrollPosition(), position);
}

TEST_F(ScriptViewMeasuringTest, DoesNotMoveTheReaderWhileALongTextIsLaidOut) {
    const QString text = (u"words "_s.repeated(70) + u"\n"_s).repeated(2000);
    setScript(markdownScript(text, 16));
    view.scrollTo(view.maximumScrollPosition() / 2);
    view.grab();
    const qsizetype before = view.offsetAt({20, 100});
    while (!view.isLayoutComplete())
        QCoreApplication::processEvents();
    EXPECT_NEAR(double(view.offsetAt({20, 100})), double(before), 60);
}

TEST_F(ScriptViewMeasuringTest, DrawsTheSamePageWhetherOrNotTheTextAboveHasBeenLaidOut) {
    QString text;
    for (int i = 0; i < 3000; ++i)
        text += u"Paragraph %1 "_s.arg(i) + u"words "_s.repeated(i % 90) + u"\n"_s;
    setScript(markdownScript(text, 16));
    view.scrollTo(1e9);
    view.grab();
    for (int page = 0; page < 5; ++page) {
        view.scrollTo(view.scrollPosition() - 150);
        view.grab();
    }
    ASSERT_FALSE(view.isLayoutComplete());
    const QString line = topLine();
    const QImage before = view.grab().toImage();
    view.completeLayout();
    EXPECT_EQ(topLine(), line);
    view.scrollTo(std::round(view.scrollPosition()));
    const QImage after = view.grab().toImage();
    // The place may differ by a fraction of a pixel, which the rounding has taken away.
    EXPECT_LT(std::abs(brightness(before) - brightness(after)), 2.0);
}

TEST_F(ScriptViewMeasuringTest, StaysAtTheEndWhileHeightsAreMeasured) {
    setScript(markdownScript((u"words "_s.repeated(70) + u"\n"_s).repeated(2000), 16));
    view.scrollTo(1e9);
    while (!view.isLayoutComplete())
        QCoreApplication::processEvents();
    EXPECT_EQ(view.scrollPosition(), view.maximumScrollPosition());
}

TEST_F(ScriptViewMeasuringTest, DrawsTheEndOfAVeryTallDocument) {
    setScript(markdownScript(u"line\n"_s.repeated(2'500'000), 16));
    ASSERT_GT(view.documentHeight(), 4e7);
    view.scrollTo(view.documentHeight() - 300);
    EXPECT_GT(brightness(view.grab().toImage()), 1.0);
}

} // namespace
} // namespace tessaline
