#include "reading/ScriptChange.h"

#include "ScriptOf.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Case {
    QString before;
    QString after;
    std::size_t first;
    std::size_t oldCount;
    std::size_t newCount;
};

class ScriptChangeOf : public testing::TestWithParam<Case> {};

TEST_P(ScriptChangeOf, CoversJustTheLinesThatDiffer) {
    const auto& [before, after, first, oldCount, newCount] = GetParam();
    const ScriptChange change = ScriptChange::between(scriptOf(before), scriptOf(after));
    EXPECT_EQ(change.first, first);
    EXPECT_EQ(change.oldCount, oldCount);
    EXPECT_EQ(change.newCount, newCount);
}

INSTANTIATE_TEST_SUITE_P(Edits, ScriptChangeOf,
                         testing::Values(Case{u"a\nb\nc"_s, u"a\nb\nc"_s, 3, 0, 0},
                                         Case{u"a\nb\nc"_s, u"a\nX\nc"_s, 1, 1, 1},
                                         Case{u"a\nb\nc"_s, u"a\nc"_s, 1, 1, 0},
                                         Case{u"a\nc"_s, u"a\nb\nc"_s, 1, 0, 1},
                                         Case{u"a"_s, u"b"_s, 0, 1, 1},
                                         Case{u"a\na"_s, u"a\na\na"_s, 2, 0, 1},
                                         Case{u"a\nb"_s, u"a\n**b**"_s, 1, 1, 1},
                                         Case{u"a **b** c\nd"_s, u"a **b** c\nX"_s, 1, 1, 1},
                                         Case{u"a\nb\nc\nd"_s, u"a\nX\nc\nY\nd"_s, 1, 2, 3}),
                         byMember<&Case::before>);

TEST(ScriptChange, TellsWhatBecomesOfTheText) {
    const QString versions[] = {u""_s,          u"a"_s,  u"a\nb"_s,      u"b\na"_s,
                                u"a\n\nb\nc"_s, u"\n"_s, u"a\n# B\nc"_s, u"a\nb\n"_s};
    for (const QString& first : versions) {
        for (const QString& second : versions) {
            const Script before = scriptOf(first);
            const Script after = scriptOf(second);
            const auto [begin, removed, inserted] =
                ScriptChange::between(before, after).textChange(before, after);
            QString text = before.text();
            EXPECT_EQ(text.mid(begin, removed.size()), removed);
            text.replace(begin, removed.size(), inserted);
            EXPECT_EQ(text, after.text()) << qPrintable(first) << " to " << qPrintable(second);
        }
    }
    const Script before = scriptOf(u"one\ntwo\nthree"_s);
    const Script after = scriptOf(u"one\nother\nthree"_s);
    const auto [begin, removed, inserted] =
        ScriptChange::between(before, after).textChange(before, after);
    EXPECT_EQ(begin, 4);
    EXPECT_EQ(removed, u"two\n"_s);
    EXPECT_EQ(inserted, u"other\n"_s);
}

TEST(ScriptChange, MovesOffsetsWithTheTextAroundTheChange) {
    const Script before = scriptOf(u"first\nsecond\nthird"_s);
    const Script after = scriptOf(u"first\nsecond, longer\nthird"_s);
    const ScriptChange change = ScriptChange::between(before, after);
    const auto moved = [&](qsizetype offset) {
        return ScriptChange::movedOffset(offset, before, after, change);
    };
    EXPECT_EQ(moved(0), 0);
    EXPECT_EQ(moved(5), 5);
    EXPECT_EQ(moved(6), 6);
    EXPECT_EQ(moved(before.length()), after.length());
    EXPECT_EQ(moved(before.text().indexOf(u"third"_s)), after.text().indexOf(u"third"_s));
    EXPECT_EQ(moved(before.text().indexOf(u"ond"_s)), 6);
    EXPECT_EQ(moved(before.text().indexOf(u"d\nthird"_s)), after.text().indexOf(u"third"_s));
}

} // namespace
} // namespace tessaline
