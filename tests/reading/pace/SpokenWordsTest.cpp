#include "reading/pace/SpokenWords.h"

#include "reading/MarkdownScript.h"
#include "reading/ScriptChange.h"
#include "reading/pace/SpokenWordIndex.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

#include <random>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Spoken {
    QString name;
    QString text;
    std::vector<int> starts;
    ParagraphKind kind = ParagraphKind::body;
};

class SpokenWords : public testing::TestWithParam<Spoken> {};

TEST_P(SpokenWords, AreThoseThatAReaderSays) {
    EXPECT_EQ(spokenWordStarts(GetParam().text, GetParam().kind), GetParam().starts);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, SpokenWords,
    testing::Values(Spoken{u"None"_s, u""_s, {}}, Spoken{u"Spaces"_s, u"  a  bc\td "_s, {2, 5, 8}},
                    Spoken{u"Signs"_s, u"one - two … 3 & (four)"_s, {0, 6, 12, 16}},
                    Spoken{u"Joined"_s, u"don't twenty-two, e.g."_s, {0, 6, 18}},
                    Spoken{u"Bullet"_s, u"• an item"_s, {2, 5}, ParagraphKind::listItem},
                    Spoken{u"Number"_s, u"12. an item"_s, {4, 7}, ParagraphKind::listItem},
                    Spoken{u"NumberInProse"_s, u"12. May"_s, {0, 4}},
                    Spoken{u"Quote"_s, u"┃ said"_s, {2}, ParagraphKind::quote},
                    Spoken{u"Rule"_s, u"abc"_s, {}, ParagraphKind::rule},
                    Spoken{u"Brackets"_s, u"a [slow breath] b[x]c [] d"_s, {0, 16, 20, 25}},
                    Spoken{u"NestedBrackets"_s, u"a [b [c] d] e"_s, {0, 12}},
                    Spoken{u"OpenBracket"_s, u"a [b c [d] e"_s, {0, 2, 5, 11}},
                    Spoken{u"Chinese"_s, u"你好世界吗 ok"_s, {0, 2, 4, 6}},
                    Spoken{u"OutsideThePlane"_s, u"𝐚𝐛 𝐜"_s, {0, 5}}),
    byMember<&Spoken::name>);

qint64 wordsOf(const QString& markdown) {
    const Script script = markdownScript(markdown, 16);
    return SpokenWordIndex().before(script, script.paragraphs.size());
}

TEST(SpokenWordIndexTest, LeavesOutWhatMarkdownPutsThere) {
    EXPECT_EQ(
        wordsOf(u"# One heading\n\n- two\n- [ ] three\n- [x] four\n\n1. five\n\n> six\n\n---\n\n"
                "```\nseven\n\n\neight\n```\n\n[nothing here]\n\n**nine** ten"_s),
        11);
}

TEST(SpokenWordIndexTest, IsTheSameAfterAnyEdits) {
    std::mt19937 random(5);
    QStringList lines;
    for (int i = 0; i < 40; ++i)
        lines.append(u"line %1 of it"_s.arg(i));
    Script before = markdownScript(lines.join(u'\n'), 16);
    SpokenWordIndex index;
    for (int edit = 0; edit < 300; ++edit) {
        const auto at = qsizetype(random() % std::uint32_t(lines.size()));
        switch (random() % 4) {
        case 0:
            lines.insert(at, u"more words"_s);
            break;
        case 1:
            if (lines.size() > 1) lines.removeAt(at);
            break;
        case 2:
            lines[at] += " [not said] and"_L1;
            break;
        default:
            lines[at] = u"```"_s;
        }
        Script after = markdownScript(lines.join(u'\n'), 16);
        index.scriptChanged(ScriptChange::between(before, after));
        if (random() % 2 == 0) {
            for (std::size_t i = 0; i <= after.paragraphs.size(); ++i)
                ASSERT_EQ(index.before(after, i), SpokenWordIndex().before(after, i)) << edit;
        }
        before = std::move(after);
    }
}

TEST(SpokenWordIndexTest, EstimatesWhatNobodyReadsInADay) {
    const Script script = markdownScript(u"a word or two\n"_s.repeated(100'000), 16);
    EXPECT_NEAR(double(SpokenWordIndex().before(script, script.paragraphs.size())), 4e5, 2.5e5);
}

} // namespace
} // namespace tessaline
