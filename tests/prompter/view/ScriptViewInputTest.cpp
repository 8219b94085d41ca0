#include "ScriptViewFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QWheelEvent>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ScriptViewInputTest : public ScriptViewFixture {
protected:
    QPoint placeOf(const QString& word) {
        return view.caretRect(view.script().text().indexOf(word)).center().toPoint();
    }

    bool wheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWheelEvent event({10, 10}, view.mapToGlobal(QPointF(10, 10)), {}, {0, notches * 120},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }

    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, Qt::Key(code), modifiers);
    }

    bool uses(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, code, modifiers);
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }
};

TEST_F(ScriptViewInputTest, ScrollsWithTheWheel) {
    show(lines(100));
    wheel(-1);
    const double notch = QApplication::wheelScrollLines() * 20.0;
    EXPECT_DOUBLE_EQ(view.scrollPosition(), notch);
    wheel(1);
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewInputTest, LeavesTheWheelWithControlToTheWindow) {
    show(lines(100));
    EXPECT_FALSE(wheel(-1, Qt::ControlModifier));
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewInputTest, ScrollsWithTheKeys) {
    show(lines(100));
    key(Qt::Key_Down);
    EXPECT_EQ(view.scrollPosition(), 20);
    key(Qt::Key_Up);
    EXPECT_EQ(view.scrollPosition(), 0);
    key(Qt::Key_End);
    EXPECT_EQ(view.scrollPosition(), view.maximumScrollPosition());
    key(Qt::Key_Home);
    EXPECT_EQ(view.scrollPosition(), 0);
}

TEST_F(ScriptViewInputTest, LeavesTheKeysThatItHasNoUseForToTheWindow) {
    show(lines(100));
    EXPECT_TRUE(uses(Qt::Key_Down));
    EXPECT_TRUE(uses(Qt::Key_A, Qt::ControlModifier));
    EXPECT_TRUE(uses(Qt::Key_C, Qt::ControlModifier));
    EXPECT_FALSE(uses(Qt::Key_X));
    EXPECT_FALSE(uses(Qt::Key_X, Qt::ControlModifier));
}

TEST_F(ScriptViewInputTest, SelectsByDragging) {
    show(u"alpha beta gamma"_s);
    QTest::mousePress(&view, Qt::LeftButton, {}, placeOf(u"beta"_s));
    QTest::mouseMove(&view, placeOf(u"gamma"_s));
    QMouseEvent move(QEvent::MouseMove, placeOf(u"gamma"_s), view.mapToGlobal(QPointF(0, 0)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, placeOf(u"gamma"_s));
    EXPECT_EQ(view.selectedText(), u"beta "_s);
}

TEST_F(ScriptViewInputTest, SelectsAWordByADoubleClickAndAParagraphByAThird) {
    show(u"first line\nalpha beta gamma\nlast"_s);
    const QPoint place = placeOf(u"beta"_s) + QPoint(4, 0);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, place);
    EXPECT_EQ(view.selectedText(), u"beta"_s);
    QTest::mousePress(&view, Qt::LeftButton, {}, place);
    EXPECT_EQ(view.selectedText(), u"alpha beta gamma"_s);
}

TEST_F(ScriptViewInputTest, ExtendsTheSelectionByAClickWithShift) {
    show(u"alpha beta gamma"_s);
    QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(u"beta"_s));
    EXPECT_TRUE(view.selectedText().isEmpty());
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, placeOf(u"gamma"_s));
    EXPECT_EQ(view.selectedText(), u"beta "_s);
}

TEST_F(ScriptViewInputTest, ExtendsTheSelectionWithTheKeys) {
    show(u"alpha beta\nsecond line"_s);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedText(), u"a"_s);
    key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view.selectedText(), u"alpha "_s);
    key(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedText(), u"alpha beta"_s);
    key(Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(view.selectedText(), u"alpha beta\nsecond line"_s);
    key(Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_TRUE(view.selectedText().isEmpty());
}

TEST_F(ScriptViewInputTest, KeepsTheCaretInSightWhileSelecting) {
    show(lines(100));
    for (int i = 0; i < 30; ++i)
        key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_GT(view.scrollPosition(), 100);
    EXPECT_GE(view.caretRect(view.selection().caret()).top(), 0);
    EXPECT_LE(view.caretRect(view.selection().caret()).bottom(), view.height());
}

TEST_F(ScriptViewInputTest, CopiesTheSelection) {
    show(u"# Title\n**bold** text"_s);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Title\nbold text"_s);
}

TEST_F(ScriptViewInputTest, LeavesTheClipboardAloneWithoutASelection) {
    show(u"text"_s);
    QApplication::clipboard()->setText(u"before"_s);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"before"_s);
}

TEST_F(ScriptViewInputTest, KeepsTheSelectionOnItsTextWhenTheTextAboveChanges) {
    show(u"first\nsecond\nthird"_s);
    TextSelection selection;
    selection.selectUnit(view.script(), 14, TextSelection::Unit::word);
    view.setSelection(selection);
    ASSERT_EQ(view.selectedText(), u"third"_s);
    show(u"first, longer than before\nsecond\nthird"_s);
    EXPECT_EQ(view.selectedText(), u"third"_s);
}

} // namespace
} // namespace tessaline
