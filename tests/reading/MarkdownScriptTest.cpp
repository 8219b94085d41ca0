#include "reading/MarkdownScript.h"

#include "reading/ScriptDifference.h"
#include "render/markdown/MarkdownRenderer.h"
#include "support/texts/EscapedText.h"
#include "support/texts/RandomMarkdown.h"

#include <gtest/gtest.h>

#include <random>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double fontSize = 16;

/// The script of a text that was rendered as a whole.
Script wholeScript(const QString& markdown) {
    return Script(MarkdownRenderer(fontSize).render(markdown));
}

class MarkdownScriptOf : public testing::TestWithParam<QString> {};

TEST_P(MarkdownScriptOf, IsThatOfTheWholeRenderedText) {
    const QString& markdown = GetParam();
    EXPECT_EQ(difference(markdownScript(markdown, fontSize), wholeScript(markdown)), QString());
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, MarkdownScriptOf,
    testing::Values(u""_s, u"\n"_s, u"a\n"_s, u"```"_s, u"```\n"_s, u"```\n```"_s, u"```\n```\n"_s,
                    u"```\na"_s, u"```\na\n"_s, u"```\n\n\na\n\n\n"_s, u"```\n\n\na\n\n```\nb"_s,
                    u"```\n\r\na\r\n\r\n```\r\nb"_s, u"```\n\n```"_s, u"a\n```\nb\n```"_s,
                    u"```\na\n```\n```\nb\n```\n"_s, u"a\r\n\r\n# b\r\n"_s, u"~~**```**~~\nx"_s),
    [](const auto& parameter) { return "case" + std::to_string(parameter.index); });

TEST(MarkdownScript, IsThatOfTheWholeTextForAnyDocument) {
    RandomMarkdown random(7);
    for (int i = 0; i < 5000; ++i) {
        const QString markdown = random.document();
        ASSERT_EQ(difference(markdownScript(markdown, fontSize), wholeScript(markdown)), QString())
            << escapedText(markdown);
    }
}

TEST(MarkdownScript, IsThatOfTheWholeTextForVeryLongLines) {
    const QString markdown = u"short\n- "_s + u"**bold** and `code` "_s.repeated(3000) +
                             u"\n```\n"_s + u"code "_s.repeated(5000) + u"\n```\nshort"_s;
    EXPECT_EQ(difference(markdownScript(markdown, fontSize), wholeScript(markdown)), QString());
}

/// A document that is changed in one place after the other.
class EditedDocument {
public:
    explicit EditedDocument(std::uint32_t seed) : random(seed), generator(seed) {
        text = random.document() + u'\n' + random.document();
    }

    const QString& edit() {
        const qsizetype begin = below(text.size() + 1);
        const qsizetype length = std::min<qsizetype>(below(12), text.size() - begin);
        const QString inserted[] = {QString(),  u"\n"_s,       u"x"_s,
                                    u"```\n"_s, random.line(), u"\n"_s + random.line() + u"\n"_s};
        text.replace(begin, length, inserted[below(std::size(inserted))]);
        return text;
    }

    QString text;

private:
    qsizetype below(std::size_t bound) { return qsizetype(generator() % bound); }

    RandomMarkdown random;
    std::mt19937 generator;
};

TEST(MarkdownScript, OfAnEditedTextIsTheSameAsMadeAnew) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        EditedDocument document(seed);
        Script script = markdownScript(document.text, fontSize);
        for (int i = 0; i < 100; ++i) {
            const QString before = document.text;
            script = markdownScript(document.edit(), fontSize, &script);
            ASSERT_EQ(difference(script, markdownScript(document.text, fontSize)), QString())
                << escapedText(before) << "\nto\n"
                << escapedText(document.text);
        }
    }
}

TEST(MarkdownScript, OfAnEditedTextWithVeryLongLinesIsTheSameAsMadeAnew) {
    const QString longLine = u"**bold** word "_s.repeated(2000);
    const QString text = u"a\n"_s + longLine + u"\nb\n"_s + longLine + u"\nc"_s;
    const Script before = markdownScript(text, fontSize);
    for (const qsizetype place : {qsizetype(0), qsizetype(2), text.size() / 2, text.size()}) {
        QString edited = text;
        edited.insert(place, u"# new\n"_s);
        EXPECT_EQ(difference(markdownScript(edited, fontSize, &before), wholeScript(edited)),
                  QString());
    }
}

TEST(MarkdownScript, OfAnotherFontSizeTakesNothingOver) {
    const Script before = markdownScript(u"text"_s, fontSize);
    const Script larger = markdownScript(u"text"_s, 20, &before);
    EXPECT_EQ(larger.attributes(0)->font->size, 20);
}

TEST(MarkdownScript, DoesNotKeepTheStylesOfAllThatItEverWas) {
    Script script = markdownScript(u""_s, fontSize);
    for (int indent = 0; indent < 1000; ++indent)
        script = markdownScript(QString(indent, u' ') + u"- item"_s, fontSize, &script);
    EXPECT_LT(script.styles.size(), 600U);
}

} // namespace
} // namespace tessaline
