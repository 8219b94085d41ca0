#include "sources/notes/HtmlToMarkdown.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <string>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

struct Conversion {
    const char* name;
    QStringView html;
    QStringView markdown;
};

class HtmlToMarkdown : public ::testing::TestWithParam<Conversion> {};

TEST_P(HtmlToMarkdown, Converts) {
    EXPECT_EQ(convertHtmlToMarkdown(GetParam().html.toString()), GetParam().markdown.toString());
}

constexpr Conversion conversions[] = {
    {"Nothing", u"", u""},
    {"PlainText", u" a < b \n", u"a < b"},
    {"HeadingAndParagraph", u"<h2 class=\"x\">Title</h2><p>a&amp;b</p>", u"## Title\na&b"},
    {"List", u"<ul><li>one</li><li>two</li></ul>", u"• one\n• two"},
    {"FiveLineBreaks", u"one<br><br><br><br><br>two", u"one\n\ntwo"},
    {"AmpersandFirst", u"&amp;lt;", u"<"},
    {"EncodedTag", u"&lt;i&gt;", u"<i>"},
    {"StyleOnOneLine", u"<style type=\"text/css\">p { }</style>text", u"text"},
    {"StyleOnSeveralLines", u"<style>\np { }\n</style>text", u"p { }\ntext"},
    {"TwoStyles", u"a<style>1</style>b<style>2</style>c", u"abc"},
    {"StyleAfterOneThatIsNotClosed", u"<style>1\n<style>2</style>3", u"1\n3"},
    {"StyleTagOnSeveralLines", u"<style\ntype=\"a\">1</style>2", u"2"},
    {"StyleTagEndingOnALineOfItsOwn", u"<style\n>1</style>2", u"2"},
    {"LineBreaks", u"a<br>b<br/>c<br />d", u"a\nb\nc\nd"},
    {"ParagraphsAndDivisions", u"<p>a</p><div>b</div><div>c</div>", u"a\n\nb\nc"},
    {"Headings", u"<h1>a</h1><h2>b</h2><h3 id=\"c\">c</h3><h4>d</h4>", u"# a\n## b\n### c\nd"},
    {"Bold", u"<b>a</b> <strong>b</strong>", u"**a** **b**"},
    {"Italic", u"<i>a</i> <em>b</em>", u"_a_ _b_"},
    {"ListItemWithAttributes", u"<li class=\"x\">a</li>", u"• a"},
    {"TagThatBeginsLikeAListItem", u"<link rel=\"x\">a", u"• a"},
    {"OtherTags", u"<span style=\"a\">b</span><a href=\"c\">d</a>", u"bd"},
    {"EmptyTag", u"a<>b", u"a<>b"},
    {"TagLeftOpen", u"a<b", u"a<b"},
    {"TagOnSeveralLines", u"a<span\nclass=\"x\">b", u"ab"},
    {"CaseMatters", u"<B>a</B><BR>b&AMP;", u"ab&AMP;"},
    {"Entities", u"a&nbsp;&lt;&gt;&quot;&#39;&amp;&copy;b", u"a <>\"'&&copy;b"},
    {"TwoNewlinesStay", u"a\n\nb", u"a\n\nb"},
    {"ReturnsAreNotNewlines", u"a\r\n\r\n\r\nb", u"a\r\n\r\n\r\nb"},
    {"Trimming", u"\u00a0\u2028<div>\t</div>a\u3000\u0085\n", u"a"},
};

INSTANTIATE_TEST_SUITE_P(Such, HtmlToMarkdown, ::testing::ValuesIn(conversions),
                         byMember<&Conversion::name>);

/// Repeats `unit`, puts `tail` at the end: what makes a careless scanner quadratic.
struct LongHtml {
    const char* name;
    QStringView unit;
    QStringView tail;
};

class LongHtmlToMarkdown : public ::testing::TestWithParam<LongHtml> {};

TEST_P(LongHtmlToMarkdown, IsConverted) {
    // A quadratic scanner would need hours for this many units.
    constexpr qsizetype length = 10'000'000;
    QString html;
    html.reserve(length + GetParam().unit.size() + GetParam().tail.size());
    while (html.size() < length)
        html += GetParam().unit;
    html += GetParam().tail;
    EXPECT_LE(convertHtmlToMarkdown(html).size(), html.size());
}

constexpr LongHtml longHtml[] = {
    {"Openings", u"<", u""},
    {"OpeningsBeforeAClosing", u"<", u">"},
    {"EmptyTags", u"<>", u""},
    {"Closings", u">", u""},
    {"Entities", u"&amp;lt;", u""},
    {"Ampersands", u"&", u""},
    {"Newlines", u"\n", u""},
    {"NewlinesInThrees", u"a\n\n\n", u""},
    {"LineBreaks", u"<br>", u""},
    {"Styles", u"<style", u""},
    {"StylesBeforeAnEnd", u"<style", u">\n</style>"},
    {"StylesLeftOpen", u"<style>", u""},
    {"StylesBeforeTheirEnd", u"<style>", u"</style>"},
    {"StylesCutByNewlines", u"<style>\n", u"</style>"},
    {"StylesBeforeANewline", u"<style>", u"\n</style>"},
    {"StyleElements", u"<style></style>", u""},
    {"StyleEnds", u"</style>", u""},
    {"Headings", u"<h1", u""},
    {"HeadingTags", u"<h1>", u""},
    {"ListItems", u"<li", u""},
    {"Bolds", u"<b>a</b>", u""},
    {"StrongsLeftOpen", u"<strong", u""},
};

INSTANTIATE_TEST_SUITE_P(Such, LongHtmlToMarkdown, ::testing::ValuesIn(longHtml),
                         byMember<&LongHtml::name>);

} // namespace
} // namespace tessaline
