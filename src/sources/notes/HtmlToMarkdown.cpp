#include "sources/notes/HtmlToMarkdown.h"

#include "sources/notes/HtmlScanners.h"

namespace tessaline {

namespace {

struct Step {
    enum class Find { styleElement, text, tag, anyTag, blankLines };

    Find kind;
    QStringView find;
    QStringView replacement;
};

// The order matters: entities are decoded once all tags are gone, so that an encoded tag stays as a
// text, and the ampersand before the others.
constexpr Step steps[] = {
    {Step::Find::styleElement, u"", u""},    {Step::Find::text, u"<br>", u"\n"},
    {Step::Find::text, u"<br/>", u"\n"},     {Step::Find::text, u"<br />", u"\n"},
    {Step::Find::text, u"</p>", u"\n\n"},    {Step::Find::text, u"</div>", u"\n"},
    {Step::Find::text, u"</li>", u"\n"},     {Step::Find::tag, u"<h1", u"# "},
    {Step::Find::text, u"</h1>", u"\n"},     {Step::Find::tag, u"<h2", u"## "},
    {Step::Find::text, u"</h2>", u"\n"},     {Step::Find::tag, u"<h3", u"### "},
    {Step::Find::text, u"</h3>", u"\n"},     {Step::Find::text, u"<b>", u"**"},
    {Step::Find::text, u"</b>", u"**"},      {Step::Find::text, u"<strong>", u"**"},
    {Step::Find::text, u"</strong>", u"**"}, {Step::Find::text, u"<i>", u"_"},
    {Step::Find::text, u"</i>", u"_"},       {Step::Find::text, u"<em>", u"_"},
    {Step::Find::text, u"</em>", u"_"},      {Step::Find::tag, u"<li", u"\u2022 "},
    {Step::Find::anyTag, u"<", u""},         {Step::Find::text, u"&nbsp;", u" "},
    {Step::Find::text, u"&amp;", u"&"},      {Step::Find::text, u"&lt;", u"<"},
    {Step::Find::text, u"&gt;", u">"},       {Step::Find::text, u"&quot;", u"\""},
    {Step::Find::text, u"&#39;", u"'"},      {Step::Find::blankLines, u"", u"\n\n"},
};

/// QString's own replacing moves the rest of the text again and again, which is not linear.
template <typename Scanner>
QString replaceAll(const QString& text, Scanner scanner, QStringView replacement) {
    auto match = scanner.next(0);
    if (!match) return text;
    const QStringView view(text);
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    for (; match; match = scanner.next(copied)) {
        result += view.sliced(copied, match->begin - copied);
        result += replacement;
        copied = match->end;
    }
    result += view.sliced(copied);
    return result;
}

QString apply(const Step& step, const QString& text) {
    switch (step.kind) {
    case Step::Find::styleElement:
        return replaceAll(text, StyleScanner(text), step.replacement);
    case Step::Find::text:
        return replaceAll(text, LiteralScanner(text, step.find), step.replacement);
    case Step::Find::tag:
        return replaceAll(text, TagScanner(text, step.find, 0), step.replacement);
    case Step::Find::anyTag:
        return replaceAll(text, TagScanner(text, step.find, 1), step.replacement);
    case Step::Find::blankLines:
        return replaceAll(text, BlankLinesScanner(text), step.replacement);
    }
    return text;
}

} // namespace

QString convertHtmlToMarkdown(const QString& html) {
    QString text = html;
    for (const Step& step : steps)
        text = apply(step, text);
    return text.trimmed();
}

} // namespace tessaline
