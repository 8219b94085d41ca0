#pragma once

#include <QStringView>

#include <optional>

namespace tessaline {

/// What a scanner found; offsets in UTF-16 units.
struct HtmlMatch {
    qsizetype begin;
    qsizetype end;
};

// Each scanner finds the next stretch of its kind at or after a position. As long as positions do
// not decrease, all calls together are linear in the text's length.

/// A fixed text.
class LiteralScanner {
public:
    LiteralScanner(QStringView html, QStringView literal) : text(html), find(literal) {}
    std::optional<HtmlMatch> next(qsizetype position);

private:
    QStringView text;
    QStringView find;
};

/// A tag that begins with a fixed text, up to the first ">" thereafter; at least `shortest` other
/// units, 0 or 1, lie between the two.
class TagScanner {
public:
    TagScanner(QStringView html, QStringView opening, qsizetype shortest)
        : text(html), find(opening), fewest(shortest) {}
    std::optional<HtmlMatch> next(qsizetype position);

private:
    QStringView text;
    QStringView find;
    qsizetype fewest;
};

/// A style element whose content has no line break.
class StyleScanner {
public:
    explicit StyleScanner(QStringView html) : text(html) {}
    std::optional<HtmlMatch> next(qsizetype position);

private:
    qsizetype nextClosing(qsizetype position);
    qsizetype nextTerminator(qsizetype position);

    QStringView text;
    qsizetype closing = -1;    ///< the last closing tag that was looked for; the text's end: none
    qsizetype terminator = -1; ///< the last line terminator that was looked for, likewise
};

/// Three newlines or more.
class BlankLinesScanner {
public:
    explicit BlankLinesScanner(QStringView html) : text(html) {}
    std::optional<HtmlMatch> next(qsizetype position);

private:
    QStringView text;
};

} // namespace tessaline
