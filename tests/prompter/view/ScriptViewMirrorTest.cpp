#include "ScriptViewFixture.h"
#include "prompter/view/ScriptViewAccessible.h"
#include "support/PointerEvents.h"

#include <QAccessible>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int roundingOfPolygons = 2;

int greatestDifference(const QImage& one, const QImage& other) {
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor here = one.pixelColor(x, y);
            const QColor there = other.pixelColor(x, y);
            greatest = std::max({greatest, std::abs(here.red() - there.red()),
                                 std::abs(here.green() - there.green()),
                                 std::abs(here.blue() - there.blue())});
        }
    }
    return greatest;
}

/// A view that is turned over, one for each way.
class ScriptViewMirror : public ScriptViewFixture, public testing::WithParamInterface<Mirroring> {
protected:
    void turnOver() { view.setLook({.frame = {.mirroring = GetParam()}}); }

    bool isSideways() const { return FrameLook{.mirroring = GetParam()}.isSideways(); }
    bool isUpsideDown() const { return FrameLook{.mirroring = GetParam()}.isUpsideDown(); }

    QImage picture() { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }

    /// Where a word is seen.
    QPoint placeOf(const QString& word) {
        QPoint place = view.caretRect(view.script().text().indexOf(word)).center().toPoint();
        if (isSideways()) place.setX(view.width() - place.x());
        if (isUpsideDown()) place.setY(view.height() - place.y());
        return place;
    }
};

TEST_P(ScriptViewMirror, IsSeenInAMirrorAsItIsWritten) {
    show(u"# Title\n\nalpha *beta* `gamma` delta\n\n"_s + lines(30));
    TextSelection word;
    word.selectUnit(view.script(), view.script().text().indexOf(u"beta"), // with its ground
                    TextSelection::Unit::word);
    view.setSelection(word);
    view.setReadingFrame({.isActive = true, .guide = ReadingGuide::marker});
    for (const double position : {0.0, 33.25}) {
        view.scrollTo(position);
        view.setLook({});
        const QImage written = picture();
        turnOver();
        EXPECT_LE(greatestDifference(picture().mirrored(isSideways(), isUpsideDown()), written),
                  roundingOfPolygons)
            << position;
        EXPECT_NE(picture(), written);
    }
}

TEST_P(ScriptViewMirror, IsHitByTheMouseWhereItIsSeen) {
    show(u"first line\nalpha beta gamma\nlast"_s);
    turnOver();
    mouseDown(view, placeOf(u"beta"_s));
    mouseDrag(view, placeOf(u"gamma"_s));
    mouseUp(view, placeOf(u"gamma"_s));
    EXPECT_EQ(view.selectedText(), u"beta "_s);

    const QPoint place = placeOf(u"pha"_s);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, place);
    EXPECT_EQ(view.selectedText(), u"alpha"_s);
    QTest::mousePress(&view, Qt::LeftButton, {}, place);
    EXPECT_EQ(view.selectedText(), u"alpha beta gamma"_s);
}

TEST_P(ScriptViewMirror, IsOnTheScreenWhereItIsSeenForScreenReaders) {
    show(u"# Title\n\nalpha beta gamma"_s);
    turnOver();
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
    QAccessibleTextInterface& text = *accessible->textInterface();
    const auto beta = int(view.script().text().indexOf(u"beta"));
    const QPoint place = placeOf(u"beta"_s);
    const QRect letter = text.characterRect(beta).translated(-view.mapToGlobal(QPoint(0, 0)));
    EXPECT_TRUE(letter.adjusted(-1, -1, 1, 1).contains(place));
    EXPECT_EQ(letter.center().x() < place.x(), isSideways());
    EXPECT_EQ(text.offsetAtPoint(view.mapToGlobal(place)), beta);
    const QAccessibleInterface* heading = accessible->child(accessible->childCount() - 1);
    EXPECT_EQ(heading->rect().center().y() > view.mapToGlobal(view.rect().center()).y(),
              isUpsideDown());
}

TEST_P(ScriptViewMirror, HasTheScrollerWhereTheEndOfItsLinesIs) {
    show(lines(100));
    turnOver();
    auto* scroller = view.findChild<QScrollBar*>();
    EXPECT_EQ(scroller->geometry().left() == 0, isSideways());
    const QPoint shaftAtTheEnd(scroller->width() / 2, isUpsideDown() ? 4 : scroller->height() - 4);
    QTest::mouseClick(scroller, Qt::LeftButton, {}, shaftAtTheEnd);
    EXPECT_GT(view.scrollPosition(), 0);
}

TEST_P(ScriptViewMirror, ScrollsWithTheWheelAndKeysAsEver) {
    show(lines(100));
    turnOver();
    wheelDown(view);
    EXPECT_GT(view.scrollPosition(), 0);
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(view.scrollPosition(), 0);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_GT(view.scrollPosition(), 0);
}

TEST_P(ScriptViewMirror, ScrollsOnWhileTheMouseIsHeldBeyondTheEndOfWhatIsSeen) {
    show(lines(100));
    turnOver();
    const QPoint beyond(50, isUpsideDown() ? -40 : view.height() + 40);
    mouseDown(view, {50, view.height() / 2});
    mouseDrag(view, beyond);
    const TextRange range = view.selection().range();
    const double bottom = view.caretRect(range.end).top();
    EXPECT_GT(bottom, view.height() - 1) << "selected as far as the mouse is below";
    mouseUp(view, beyond);
}

INSTANTIATE_TEST_SUITE_P(Ways, ScriptViewMirror,
                         testing::Values(Mirroring::horizontal, Mirroring::vertical,
                                         Mirroring::both));

} // namespace
} // namespace tessaline
