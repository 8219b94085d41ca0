#include "ScriptViewFixture.h"

#include <QAccessible>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ScriptViewAccessibleTest : public ScriptViewFixture {
protected:
    QAccessibleInterface& interface() { return *QAccessible::queryAccessibleInterface(&view); }
    QAccessibleTextInterface& text() { return *interface().textInterface(); }
};

TEST_F(ScriptViewAccessibleTest, IsAReadOnlyTextOfManyLines) {
    EXPECT_EQ(interface().role(), QAccessible::EditableText);
    EXPECT_TRUE(interface().state().readOnly);
    EXPECT_TRUE(interface().state().multiLine);
    EXPECT_TRUE(interface().state().selectableText);
}

TEST_F(ScriptViewAccessibleTest, SpeaksTheRenderedText) {
    show(u"# Title\n**bold**"_s);
    EXPECT_EQ(text().characterCount(), 10);
    EXPECT_EQ(text().text(0, 10), u"Title\nbold"_s);
    EXPECT_EQ(text().text(6, -1), u"bold"_s);
    EXPECT_EQ(text().text(-3, 500), u"Title\nbold"_s);
}

TEST_F(ScriptViewAccessibleTest, TellsAndSetsTheSelection) {
    show(u"alpha beta"_s);
    EXPECT_EQ(text().selectionCount(), 0);
    text().setSelection(0, 6, 10);
    EXPECT_EQ(view.selectedText(), u"beta"_s);
    int begin = 0;
    int end = 0;
    text().selection(0, &begin, &end);
    EXPECT_EQ(begin, 6);
    EXPECT_EQ(end, 10);
    EXPECT_EQ(text().cursorPosition(), 10);
    text().removeSelection(0);
    EXPECT_EQ(text().selectionCount(), 0);
}

TEST_F(ScriptViewAccessibleTest, BringsTheCaretIntoSight) {
    show(lines(100));
    text().setCursorPosition(text().characterCount());
    EXPECT_GT(view.scrollPosition(), 1000);
    text().scrollToSubstring(0, 4);
    EXPECT_EQ(view.scrollPosition(), 0);
    text().scrollToSubstring(0, text().characterCount());
    EXPECT_EQ(view.scrollPosition(), 0) << "of a long one, the beginning";
}

TEST_F(ScriptViewAccessibleTest, FindsCharactersOnScreen) {
    show(u"alpha beta"_s);
    const QRect first = text().characterRect(0);
    EXPECT_GT(first.height(), 10);
    EXPECT_GT(first.width(), 4);
    EXPECT_EQ(text().offsetAtPoint(first.center() - QPoint(first.width() / 2, 0)), 0);
    EXPECT_GT(text().characterRect(6).left(), first.right());
    EXPECT_TRUE(text().characterRect(-1).isNull());
    EXPECT_TRUE(text().characterRect(99).isNull());
}

TEST_F(ScriptViewAccessibleTest, DescribesTheLookOfTheText) {
    show(u"plain **bold** *slanted* ~~gone~~"_s);
    int begin = 0;
    int end = 0;
    EXPECT_TRUE(text().attributes(7, &begin, &end).contains(u"font-weight:bold"_s));
    EXPECT_EQ(begin, 6);
    EXPECT_EQ(end, 10);
    EXPECT_TRUE(text().attributes(12, &begin, &end).contains(u"font-style:italic"_s));
    EXPECT_TRUE(text().attributes(20, &begin, &end).contains(u"text-line-through"_s));
    EXPECT_TRUE(text().attributes(0, &begin, &end).contains(u"font-size:16pt"_s));
}

TEST_F(ScriptViewAccessibleTest, HasItsHeadingsAsObjects) {
    const int widgets = interface().childCount();
    show(u"# One\n"_s + lines(50) + u"### Two *more*\n"_s + lines(50));
    ASSERT_EQ(interface().childCount(), widgets + 2);
    const auto* one = interface().child(widgets);
    const auto* two = interface().child(widgets + 1);
    EXPECT_EQ(one->role(), QAccessible::Heading);
    EXPECT_EQ(one->text(QAccessible::Name), u"One"_s);
    EXPECT_EQ(one->text(QAccessible::Description), u"Level 1"_s);
    EXPECT_EQ(two->text(QAccessible::Name), u"Two more"_s);
    EXPECT_EQ(two->text(QAccessible::Description), u"Level 3"_s);
    EXPECT_EQ(interface().indexOfChild(two), widgets + 1);
    EXPECT_EQ(two->parent(), &interface());
    EXPECT_EQ(interface().child(widgets + 2), nullptr);
}

TEST_F(ScriptViewAccessibleTest, PlacesHeadingsWhereTheyAreSeen) {
    show(lines(50) + u"# Far\n"_s + lines(50));
    const auto* heading = interface().child(interface().childCount() - 1);
    EXPECT_TRUE(heading->state().offscreen);
    EXPECT_TRUE(view.jumps().toNextHeading());
    EXPECT_FALSE(heading->state().offscreen);
    const QPoint corner = view.mapToGlobal(QPoint(0, 0));
    EXPECT_NEAR(heading->rect().top(), corner.y(), 1);
    EXPECT_GT(heading->rect().height(), 20);
}

TEST_F(ScriptViewAccessibleTest, HasTheHeadingsOfTheTextThatIsShown) {
    show(u"# One\n## Two"_s);
    const int count = interface().childCount();
    const QAccessible::Id old = QAccessible::uniqueId(interface().child(count - 1));
    show(u"# Other"_s);
    EXPECT_FALSE(QAccessible::accessibleInterface(old)->isValid());
    EXPECT_EQ(interface().childCount(), count - 1);
    EXPECT_EQ(interface().child(count - 2)->text(QAccessible::Name), u"Other"_s);
    EXPECT_EQ(QAccessible::accessibleInterface(old), nullptr);
}

TEST_F(ScriptViewAccessibleTest, TellsWhatAParagraphIs) {
    show(u"# One\n###### *Six*\nbody\n- item\n> quote\n```\ncode\n```\n---"_s);
    const auto styleOf = [this](const QString& words) {
        int begin = 0;
        int end = 0;
        const auto offset = int(view.script().text().indexOf(words));
        const QString attributes = text().attributes(offset, &begin, &end);
        const qsizetype style = attributes.indexOf(u"paragraph-style:"_s);
        return style < 0 ? QString() : attributes.sliced(style);
    };
    EXPECT_EQ(styleOf(u"One"_s), u"paragraph-style:Heading 1;"_s);
    EXPECT_EQ(styleOf(u"Six"_s), u"paragraph-style:Heading 6;"_s);
    EXPECT_EQ(styleOf(u"body"_s), QString());
    EXPECT_EQ(styleOf(u"item"_s), u"paragraph-style:List;"_s);
    EXPECT_EQ(styleOf(u"quote"_s), u"paragraph-style:Quotations;"_s);
    EXPECT_EQ(styleOf(u"code"_s), u"paragraph-style:Preformatted Text;"_s);
    EXPECT_EQ(styleOf(u"\u2500"_s), u"paragraph-style:Horizontal Line;"_s);
}

} // namespace
} // namespace tessaline
