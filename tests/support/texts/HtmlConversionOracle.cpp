#include "support/texts/HtmlConversionOracle.h"

#include "support/texts/IcuExpression.h"

#include <utility>
#include <vector>

namespace tessaline {

namespace {

using Steps = std::vector<std::pair<IcuExpression, QStringView>>;

Steps makeSteps() {
    constexpr std::pair<QStringView, QStringView> rows[] = {
        {u"<style[^>]*>.*?</style>", u""},
        {u"<br>", u"\n"},
        {u"<br/>", u"\n"},
        {u"<br />", u"\n"},
        {u"</p>", u"\n\n"},
        {u"</div>", u"\n"},
        {u"</li>", u"\n"},
        {u"<h1[^>]*>", u"# "},
        {u"</h1>", u"\n"},
        {u"<h2[^>]*>", u"## "},
        {u"</h2>", u"\n"},
        {u"<h3[^>]*>", u"### "},
        {u"</h3>", u"\n"},
        {u"<b>", u"**"},
        {u"</b>", u"**"},
        {u"<strong>", u"**"},
        {u"</strong>", u"**"},
        {u"<i>", u"_"},
        {u"</i>", u"_"},
        {u"<em>", u"_"},
        {u"</em>", u"_"},
        {u"<li[^>]*>", u"• "},
        {u"<[^>]+>", u""},
        {u"&nbsp;", u" "},
        {u"&amp;", u"&"},
        {u"&lt;", u"<"},
        {u"&gt;", u">"},
        {u"&quot;", u"\""},
        {u"&#39;", u"'"},
        {u"\\n{3,}", u"\n\n"},
        {u"^\\s+", u""},
        {u"\\s+$(?![\\s\\S])", u""},
    };
    Steps steps;
    for (const auto& [pattern, replacement] : rows)
        steps.emplace_back(IcuExpression(pattern), replacement);
    return steps;
}

} // namespace

QString htmlConversionByIcu(const QString& html) {
    static const Steps steps = makeSteps();
    QString text = html;
    for (const auto& [expression, replacement] : steps)
        text = expression.replaceAll(text, replacement);
    return text;
}

} // namespace tessaline
