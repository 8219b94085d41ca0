#include "render/markdown/AwkwardLines.h"
#include "render/markdown/RenderComparison.h"
#include "support/CaseName.h"
#include "support/texts/PathologicalTexts.h"
#include "support/texts/RandomMarkdown.h"

#include <QChar>
#include <QString>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;

/// Compares every text of up to `maxLength` units over `alphabet`.
void compareEveryText(QStringView alphabet, int maxLength) {
    for (int length = 0; length <= maxLength; ++length) {
        std::size_t count = 1;
        for (int i = 0; i < length; ++i) {
            count *= static_cast<std::size_t>(alphabet.size());
        }
        for (std::size_t number = 0; number < count; ++number) {
            QString text;
            for (std::size_t rest = number; text.size() < length; rest /= alphabet.size()) {
                text += alphabet[static_cast<qsizetype>(rest % alphabet.size())];
            }
            ASSERT_EQ(differenceFromOracle(text), "");
        }
    }
}

/// Of the tens of thousands of ideographs, syllables and private characters a sample will do. What
/// one side's edition of Unicode does not know cannot be compared.
bool isWorthComparing(char32_t point) {
    const QChar::Category category = QChar::category(point);
    if (category == QChar::Other_NotAssigned) return false;
    const bool isOneOfMany = category == QChar::Letter_Other || category == QChar::Other_PrivateUse;
    return !isOneOfMany || point % 61 == 0;
}

class RandomTexts : public testing::TestWithParam<int> {};

class PathologicalTextsInSmall : public testing::TestWithParam<PathologicalText> {};

} // namespace

TEST(RendererOracle, AgreesOnAwkwardLinesInEveryBlock) {
    const std::vector<QString> blocks{u"%1"_s,         u"# %1"_s,   u"  - %1"_s, u"\t* [x] %1"_s,
                                      u"- [ ] %1"_s,   u"1. %1"_s,  u"> %1"_s,   u"%1\r"_s,
                                      u"a\n%1\n\nb"_s, u"```\n%1"_s};
    for (const QString& line : awkwardLines()) {
        for (const QString& block : blocks) {
            EXPECT_EQ(differenceFromOracle(QString(block).replace("%1"_L1, line)), "");
        }
    }
}

TEST(RendererOracle, AgreesOnEveryShortTextOfAsterisks) {
    compareEveryText(u"*a", 13);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfEmphasis) {
    compareEveryText(u"*_a", 8);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfInlineMarkers) {
    compareEveryText(u"*_`~a", 6);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfStrikesAndTerminators) {
    compareEveryText(u"~*`\r\u2028a", 5);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfBlockMarkers) {
    compareEveryText(u"#->1. \n", 5);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfTasks) {
    compareEveryText(u"-[] x\t", 6);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfLinks) {
    compareEveryText(u"![]()a", 6);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfLineTerminators) {
    compareEveryText(u"\r\n\u2028-#1", 5);
}

TEST(RendererOracle, AgreesOnEveryShortTextOfFences) {
    compareEveryText(u"`\n a", 7);
}

TEST(RendererOracle, AgreesOnEveryKindOfCharacterInEveryRole) {
    for (char32_t point = 0; point <= 0x10ffff; ++point) {
        if (!isWorthComparing(point)) continue;
        const QString character = QString::fromUcs4(&point, 1);
        const QString text = u"%1. a\n-%1a\n%1---\n*a%1b*\n- [%1] b\n%1- c\n#%1d\n1%1. e\n%1```"_s;
        ASSERT_EQ(differenceFromOracle(text.arg(character)), "") << std::hex << unsigned(point);
    }
}

TEST_P(RandomTexts, AgreeLineByLine) {
    RandomMarkdown random(static_cast<std::uint32_t>(GetParam()));
    for (int i = 0; i < 15'000; ++i) {
        ASSERT_EQ(differenceFromOracle(random.line()), "") << "line " << i;
    }
}

TEST_P(RandomTexts, AgreeAsDocuments) {
    RandomMarkdown random(static_cast<std::uint32_t>(1000 + GetParam()));
    for (int i = 0; i < 2'000; ++i) {
        ASSERT_EQ(differenceFromOracle(random.document()), "") << "document " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(RendererOracle, RandomTexts, testing::Range(1, 11), byValue);

TEST_P(PathologicalTextsInSmall, Agree) {
    for (const int length : {1, 2, 3, 5, 8, 63, 64, 65, 300}) {
        ASSERT_EQ(differenceFromOracle(GetParam().make(length)), "") << "length " << length;
    }
}

INSTANTIATE_TEST_SUITE_P(RendererOracle, PathologicalTextsInSmall,
                         testing::ValuesIn(pathologicalTexts().begin(), pathologicalTexts().end()),
                         byMember<&PathologicalText::name>);

} // namespace tessaline
