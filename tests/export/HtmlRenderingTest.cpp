#include "export/HtmlRendering.h"

#include "export/MemorySink.h"
#include "render/markdown/MarkdownRenderer.h"
#include "support/CaseName.h"

#include <QRegularExpression>
#include <QString>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::HasSubstr;
using testing::Not;

std::string pageOf(const StyledText& styled, const QString& title = u"Title"_s, int width = 450) {
    MemorySink sink;
    EXPECT_TRUE(writeHtml(styled, title, width, sink));
    return sink.bytes.toStdString();
}

std::string pageOf(QStringView markdown) {
    return pageOf(MarkdownRenderer(16).render(markdown));
}

/// The page's paragraphs with the declarations of their classes in place of the classes.
QStringList paragraphsOf(QStringView markdown) {
    const QString page = QString::fromStdString(pageOf(markdown));
    QStringList lines = page.sliced(page.indexOf("<body>\n"_L1) + 7).split(u'\n');
    lines.resize(lines.indexOf("</body>"_L1));
    static const QRegularExpression rule(u"^\\.(\\w+) \\{ (.*); \\}$"_s,
                                         QRegularExpression::MultilineOption);
    for (const auto& match : rule.globalMatch(page)) {
        lines.replaceInStrings("class=\""_L1 + match.captured(1) + u'"',
                               u'{' + match.captured(2) + u'}');
    }
    lines.replaceInStrings(u" dir=\"auto\""_s, QString());
    return lines;
}

TEST(HtmlRendering, IsOnePageInAColumnOfTheWidthOnBlack) {
    const std::string page = pageOf({}, u"A < B"_s, 600);
    EXPECT_THAT(page, testing::StartsWith("<!DOCTYPE html>\n<html>\n"));
    EXPECT_THAT(page, testing::EndsWith("</body>\n</html>\n"));
    EXPECT_THAT(page, HasSubstr("<meta charset=\"utf-8\">"));
    EXPECT_THAT(page, HasSubstr("<title>A &lt; B</title>"));
    EXPECT_THAT(page, HasSubstr("html { background: #000;"));
    EXPECT_THAT(page, HasSubstr("box-sizing: border-box; width: 600px;"));
}

TEST(HtmlRendering, GivesTheWholePageTheLookOfPlainText) {
    EXPECT_THAT(pageOf(u""), HasSubstr("\nbody { font: 400 12px system-ui, sans-serif; "
                                       "color: rgb(82% 71% 55% / 1); }\n"));
}

TEST(HtmlRendering, NeedsNothingFromElsewhere) {
    const std::string page = pageOf(u"[a](https://example.org/x.png) ![b](c.png) <img src=x>");
    for (const char* reference : {"<img", "<a ", "<link", "<script", "url(", "@import", " src=\""})
        EXPECT_THAT(page, Not(HasSubstr(reference)));
}

TEST(HtmlRendering, SetsInlineStyles) {
    const QStringList paragraphs = paragraphsOf(u"a **b** *c* `d` ~~e~~");
    const QString amber = u"color: rgb(82% 71% 55% / 1)"_s;
    const QString plain = u"<span {font: 500 16px system-ui, sans-serif; "_s + amber + u"}>"_s;
    ASSERT_EQ(paragraphs.size(), 1);
    EXPECT_EQ(
        paragraphs[0],
        u"<p>"_s + plain + u"a </span>"_s + u"<span {font: 700 16px system-ui, sans-serif; "_s +
            amber + u"}>b</span>"_s + plain + u" </span>"_s +
            u"<span {font: italic 500 16px system-ui, sans-serif; "_s + amber + u"}>c</span>"_s +
            plain + u" </span>"_s + u"<span {font: 400 15px ui-monospace, monospace; "_s + amber +
            u"; background: rgb(255 255 255 / 0.08)}>d</span>"_s + plain + u" </span>"_s +
            u"<span {font: 500 16px system-ui, sans-serif; color: rgb(82% 71% 55% / 0.5); "_s +
            u"text-decoration: line-through}>e</span></p>"_s);
}

struct ParagraphCase {
    const char16_t* markdown;
    QString declarations;
};

class HtmlParagraph : public testing::TestWithParam<ParagraphCase> {};

TEST_P(HtmlParagraph, HasItsIndentsAndSpacing) {
    EXPECT_TRUE(paragraphsOf(GetParam().markdown)
                    .first()
                    .startsWith("<p {"_L1 + GetParam().declarations + "}><span "_L1));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, HtmlParagraph,
    testing::Values(
        ParagraphCase{u"# a",
                      u"padding-block: 12px 6px; padding-inline: 0px 0px; text-indent: 0px"_s},
        ParagraphCase{u"  - a",
                      u"padding-block: 0px 2px; padding-inline: 24px 0px; text-indent: -16px"_s},
        ParagraphCase{u"\t1. a",
                      u"padding-block: 0px 2px; padding-inline: 36px 0px; text-indent: -20px"_s},
        ParagraphCase{u"> a",
                      u"padding-block: 0px 4px; padding-inline: 16px 0px; text-indent: 0px"_s},
        ParagraphCase{u"```\na\n```",
                      u"padding-block: 8px 8px; padding-inline: 8px 8px; text-indent: 0px"_s},
        ParagraphCase{u"---", u"padding-block: 8px 8px; padding-inline: 0px 0px; text-indent: 0px; "
                              u"text-align: center"_s}),
    byMember<&ParagraphCase::markdown>);

TEST(HtmlRendering, ColoursTheBoxOfADoneTaskGreen) {
    EXPECT_TRUE(paragraphsOf(u"- [x] a").first().contains(u"color: rgb(48 209 88 / 1)}>☑ "_s));
}

TEST(HtmlRendering, KeepsBlankLines) {
    const QStringList paragraphs = paragraphsOf(u"a\n\n\nb\n");
    ASSERT_EQ(paragraphs.size(), 5);
    for (const int blank : {1, 2, 4})
        EXPECT_EQ(paragraphs[blank], u"<p><br></p>"_s);
}

TEST(HtmlRendering, GivesBlankLinesOfCodeTheirStyle) {
    const QStringList paragraphs = paragraphsOf(u"```\na\n\nb\n```");
    ASSERT_EQ(paragraphs.size(), 4);
    EXPECT_EQ(QString(paragraphs[0]).replace(u">a<"_s, u"><br><"_s), paragraphs[1]);
}

TEST(HtmlRendering, LeavesCarriageReturnsOut) {
    EXPECT_EQ(paragraphsOf(u"a\r\n\r\nb\r"), paragraphsOf(u"a\n\nb"));
}

TEST(HtmlRendering, KeepsAVeryLongLineInOneParagraph) {
    const QStringList paragraphs = paragraphsOf(u"word "_s.repeated(10000));
    ASSERT_EQ(paragraphs.size(), 1);
    EXPECT_EQ(paragraphs[0].count("word "_L1), 10000);
}

TEST(HtmlRendering, EscapesTheText) {
    EXPECT_THAT(pageOf(u"</span><script>&\"\a"),
                HasSubstr(">&lt;/span&gt;&lt;script&gt;&amp;&quot;\uFFFD</span>"));
}

TEST(HtmlRendering, AsksForNoFontWithoutSize) {
    MemorySink sink;
    EXPECT_TRUE(writeHtml(MarkdownRenderer(0.5).render(u"`a`"), u""_s, 450, sink));
    EXPECT_THAT(sink.bytes.toStdString(), HasSubstr("font: 400 1px ui-monospace"));
}

} // namespace
} // namespace tessaline
