#include "render/markdown/WordTally.h"

#include "render/markdown/WordCount.h"
#include "support/texts/RandomMarkdown.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Several pieces of what any document may hold.
QString longDocument(RandomMarkdown& random) {
    QString text;
    while (text.size() < 30'000)
        text += random.document().left(300) + u"\n[x](y)\nplain ]) words\n"_s.repeated(20);
    return text;
}

TEST(WordTally, CountsTheWordsOfAText) {
    WordTally tally;
    EXPECT_EQ(tally.count(u""_s), 0);
    EXPECT_EQ(tally.count(u"# Two words\n- [a link](page.md)"_s), 4);
    EXPECT_EQ(tally.count(u"# Two words\n- [a link](page.md)"_s), 4);
    EXPECT_EQ(tally.count(u""_s), 0);
}

TEST(WordTally, CountsEditedTextsLikeNewOnes) {
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        RandomMarkdown random(seed);
        std::mt19937 generator(seed);
        const QString other = longDocument(random);
        QString text = longDocument(random);
        WordTally tally;
        ASSERT_EQ(tally.count(text), countWords(text));
        for (int edit = 0; edit < 100; ++edit) {
            const qsizetype begin = qsizetype(generator() % std::size_t(text.size() + 1));
            const qsizetype length = qsizetype(generator() % (edit % 10 == 0 ? 9000U : 20U));
            const QString inserted[] = {QString(), u"\n"_s,       u"("_s,  u"[a"_s,
                                        u"](b"_s,  u")"_s,        other,   random.line(),
                                        other,     text.left(50), u"\na"_s};
            text.replace(begin, length, inserted[generator() % std::size(inserted)]);
            if (text.size() > 120'000) text.truncate(60'000);
            ASSERT_EQ(tally.count(text), countWords(text)) << seed << ", " << edit;
        }
    }
}

} // namespace
} // namespace tessaline
