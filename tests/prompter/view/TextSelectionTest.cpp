#include "prompter/view/TextSelection.h"

#include "reading/Script.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;
using Unit = TextSelection::Unit;

namespace {

Script plainScript(const QString& text) {
    return Script({.text = text, .runs = {{0, int(text.size()), 0}}, .styles = {{}}});
}

TEST(TextSelection, IsEmptyWhereTheCaretIs) {
    TextSelection selection;
    selection.moveTo(5, false);
    EXPECT_TRUE(selection.range().isEmpty());
    EXPECT_EQ(selection.caret(), 5);
}

TEST(TextSelection, ReachesFromTheAnchorToTheCaretEitherWay) {
    TextSelection selection;
    selection.moveTo(5, false);
    selection.moveTo(9, true);
    EXPECT_EQ(selection.range(), (TextRange{5, 9}));
    selection.moveTo(2, true);
    EXPECT_EQ(selection.range(), (TextRange{2, 5}));
    EXPECT_EQ(selection.caret(), 2);
}

TEST(TextSelection, SelectsTheWordAroundAnOffset) {
    const Script text = plainScript(u"say hello, world\nnext"_s);
    TextSelection selection;
    selection.selectUnit(text, 6, Unit::word);
    EXPECT_EQ(selection.range(), (TextRange{4, 9}));
    selection.selectUnit(text, 4, Unit::word);
    EXPECT_EQ(selection.range(), (TextRange{4, 9}));
    selection.selectUnit(text, 16, Unit::word);
    EXPECT_EQ(selection.range(), (TextRange{11, 16}));
}

TEST(TextSelection, SelectsTheParagraphAroundAnOffset) {
    const Script text = plainScript(u"one\ntwo words\n\nlast"_s);
    TextSelection selection;
    selection.selectUnit(text, 6, Unit::paragraph);
    EXPECT_EQ(selection.range(), (TextRange{4, 13}));
    selection.selectUnit(text, 14, Unit::paragraph);
    EXPECT_TRUE(selection.range().isEmpty());
    selection.selectUnit(text, text.length(), Unit::paragraph);
    EXPECT_EQ(selection.range(), (TextRange{15, 19}));
}

TEST(TextSelection, GrowsByWholeWordsInBothDirections) {
    const Script text = plainScript(u"alpha beta gamma"_s);
    TextSelection selection;
    selection.selectUnit(text, 7, Unit::word);
    selection.extendByUnit(text, 13, Unit::word);
    EXPECT_EQ(selection.range(), (TextRange{6, 16}));
    selection.extendByUnit(text, 1, Unit::word);
    EXPECT_EQ(selection.range(), (TextRange{0, 10}));
}

TEST(TextSelection, NeverSplitsWhatTheUserSeesAsOneCharacter) {
    const QString family = u"👩‍👩‍👧"_s;
    const Script text = plainScript(u"a"_s + family + u"e\u0301b"_s);
    TextSelection selection;
    selection.moveTo(1, false);
    EXPECT_EQ(selection.neighbour(text, Unit::character, true), 1 + family.size());
    selection.moveTo(1 + family.size(), false);
    EXPECT_EQ(selection.neighbour(text, Unit::character, true), 1 + family.size() + 2);
    EXPECT_EQ(selection.neighbour(text, Unit::character, false), 1);
}

TEST(TextSelection, MovesAcrossLinesAndStopsAtTheEnds) {
    const Script text = plainScript(u"ab\ncd"_s);
    TextSelection selection;
    selection.moveTo(2, false);
    EXPECT_EQ(selection.neighbour(text, Unit::character, true), 3);
    selection.moveTo(3, false);
    EXPECT_EQ(selection.neighbour(text, Unit::character, false), 2);
    selection.moveTo(5, false);
    EXPECT_EQ(selection.neighbour(text, Unit::character, true), 5);
    selection.moveTo(0, false);
    EXPECT_EQ(selection.neighbour(text, Unit::word, false), 0);
}

TEST(TextSelection, MovesByWords) {
    const Script text = plainScript(u"alpha beta, gamma"_s);
    TextSelection selection;
    EXPECT_EQ(selection.neighbour(text, Unit::word, true), 6);
    selection.moveTo(6, false);
    EXPECT_EQ(selection.neighbour(text, Unit::word, true), 12);
    selection.moveTo(12, false);
    EXPECT_EQ(selection.neighbour(text, Unit::word, true), 17);
    EXPECT_EQ(selection.neighbour(text, Unit::word, false), 6);
}

TEST(TextSelection, SelectsEverything) {
    TextSelection selection;
    selection.selectAll(plainScript(u"12345"_s));
    EXPECT_EQ(selection.range(), (TextRange{0, 5}));
    selection.clear();
    EXPECT_TRUE(selection.range().isEmpty());
}

TEST(TextSelection, StandsAnEmptyText) {
    TextSelection selection;
    selection.selectUnit({}, 0, Unit::word);
    EXPECT_TRUE(selection.range().isEmpty());
    EXPECT_EQ(selection.neighbour({}, Unit::word, true), 0);
}

} // namespace
} // namespace tessaline
