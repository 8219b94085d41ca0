#include "sources/notes/HtmlToMarkdown.h"

#include "support/texts/EscapedText.h"
#include "support/texts/HtmlConversionOracle.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

constexpr QStringView tokens[] = {u"<style",
                                  u"</style>",
                                  u"<style>",
                                  u"<style type=\"a\">",
                                  u"<br>",
                                  u"<br/>",
                                  u"<br />",
                                  u"<p>",
                                  u"</p>",
                                  u"<div>",
                                  u"</div>",
                                  u"<li",
                                  u"<li>",
                                  u"</li>",
                                  u"<link>",
                                  u"<h1",
                                  u"<h1>",
                                  u"</h1>",
                                  u"<h2 class=\"x\">",
                                  u"</h2>",
                                  u"<h3>",
                                  u"</h3>",
                                  u"<h4>",
                                  u"<b>",
                                  u"</b>",
                                  u"<strong>",
                                  u"</strong>",
                                  u"<i>",
                                  u"</i>",
                                  u"<em>",
                                  u"</em>",
                                  u"&nbsp;",
                                  u"&amp;",
                                  u"&lt;",
                                  u"&gt;",
                                  u"&quot;",
                                  u"&#39;",
                                  u"&amp",
                                  u"amp;",
                                  u"lt;",
                                  u"&",
                                  u"<",
                                  u"<",
                                  u">",
                                  u">",
                                  u"/",
                                  u"<>",
                                  u"\n",
                                  u"\n",
                                  u"\n\n",
                                  u"\r",
                                  u"\r\n",
                                  u"\v",
                                  u"\f",
                                  u"\u0085",
                                  u"\u2028",
                                  u"\u2029",
                                  u" ",
                                  u"\t",
                                  u"\u00a0",
                                  u"\u200b",
                                  u"\u3000",
                                  u"\u180e",
                                  u"a",
                                  u"b",
                                  u"STYLE",
                                  u"<B>",
                                  u"\u0338",
                                  u"\U0001f600",
                                  u"\xd800",
                                  u"\xdfff",
                                  u"$1",
                                  u"\\",
                                  u"style>"};

class RandomHtml {
public:
    explicit RandomHtml(std::uint32_t seed) : generator(seed) {}

    QString text() {
        constexpr std::size_t lengths[] = {3, 8, 15, 40};
        QString text;
        for (std::size_t left = below(lengths[below(std::size(lengths))] + 1); left > 0; --left)
            text += tokens[below(std::size(tokens))];
        return text;
    }

private:
    std::size_t below(std::size_t bound) { return generator() % bound; }

    std::mt19937 generator;
};

} // namespace

TEST(HtmlToMarkdownOracle, AgreesOnRandomTexts) {
    constexpr int inputs = 100'000;
    RandomHtml random(20'240'607);
    for (int input = 0; input < inputs; ++input) {
        const QString html = random.text();
        const QString converted = convertHtmlToMarkdown(html);
        ASSERT_EQ(escapedText(converted), escapedText(htmlConversionByIcu(html)))
            << escapedText(html);
    }
}

TEST(HtmlToMarkdownOracle, AgreesOnEveryUnitByItself) {
    for (char32_t code = 0; code <= 0xffff; ++code) {
        const QString unit(static_cast<char16_t>(code));
        for (const QString& html :
             {unit, "<style>"_L1 + unit + "</style>"_L1, u'a' + unit, "<h1"_L1 + unit + u'>'})
            ASSERT_EQ(escapedText(convertHtmlToMarkdown(html)),
                      escapedText(htmlConversionByIcu(html)));
    }
}

} // namespace tessaline
