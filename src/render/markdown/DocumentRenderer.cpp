#include "render/markdown/DocumentRenderer.h"

#include <QString>

#include <algorithm>
#include <array>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = MarkdownLine::Kind;

constexpr double pointsPerIndentUnit = 4.0;

TextFont systemFont(double size, TextFont::Weight weight) {
    return {TextFont::Family::system, weight, false, size};
}

TextFont monospacedFont(double size) {
    return {TextFont::Family::monospaced, TextFont::Weight::regular, false, size};
}

double headerSizeIncrease(qsizetype level) {
    constexpr std::array increases{10.0, 7.0, 4.0, 2.0, 1.0, 0.0};
    return increases[std::size_t(std::clamp<qsizetype>(level, 1, 6) - 1)];
}

QString bulletGlyph(qsizetype indentWidth) {
    constexpr std::array glyphs{u'\u2022', u'\u25E6', u'\u25AA', u'\u25AB'};
    return QChar(glyphs[std::size_t(std::min<qsizetype>(indentWidth / 4, 3))]);
}

/// What distinguishes two lines of one kind: the level of headers, the indent of list items.
qsizetype variantOf(const MarkdownLine& line) {
    return line.kind == Kind::header ? line.headerLevel : line.indentWidth;
}

} // namespace

DocumentRenderer::DocumentRenderer(const MarkdownRenderer& markdownRenderer,
                                   qsizetype expectedLength)
    : renderer(markdownRenderer), builder(expectedLength), plainIndex(builder.styleIndex({})) {}

void DocumentRenderer::appendNewline() {
    builder.append(u"\n", plainIndex);
}

StyledText DocumentRenderer::take() {
    StyledText styled = builder.take();
    styled.fontSize = renderer.fontSize;
    return styled;
}

void DocumentRenderer::appendLine(QStringView line) {
    const MarkdownLine parsed = MarkdownLine::parse(line);
    if (parsed.kind == Kind::rule) return appendRule();

    LineStyle& style = styleOf(parsed);
    builder.append(parsed.number, prefixIndex(style));
    builder.append(style.prefix, prefixIndex(style));
    for (const auto& span : formatter.format(parsed.text))
        builder.append(span.text, inlineIndex(style, span.style));
}

void DocumentRenderer::appendRule() {
    static const QString rule(21, u'\u2500');
    const ParagraphStyle paragraph{.spacingBefore = 8,
                                   .spacingAfter = 8,
                                   .alignment = ParagraphStyle::Alignment::center,
                                   .kind = ParagraphKind::rule};
    builder.append(rule, builder.styleIndex({.font = renderer.baseFont,
                                             .foreground = renderer.textColor.withAlpha(0.3),
                                             .paragraph = paragraph}));
}

void DocumentRenderer::appendCode(QStringView code) {
    builder.append(code, codeStyle());
}

int DocumentRenderer::codeStyle() {
    const ParagraphStyle paragraph{.firstLineHeadIndent = 8,
                                   .headIndent = 8,
                                   .tailIndent = -8,
                                   .spacingBefore = 8,
                                   .spacingAfter = 8,
                                   .kind = ParagraphKind::code};
    return builder.styleIndex({.font = monospacedFont(renderer.fontSize - 1),
                               .foreground = renderer.textColor.withAlpha(0.9),
                               .background = TextColor{TextColor::Base::white, 0.05},
                               .paragraph = paragraph});
}

DocumentRenderer::LineStyle& DocumentRenderer::styleOf(const MarkdownLine& line) {
    const auto [entry, isNew] = lineStyles.try_emplace({line.kind, variantOf(line)});
    if (isNew) entry->second = makeStyle(line);
    return entry->second;
}

DocumentRenderer::LineStyle DocumentRenderer::makeStyle(const MarkdownLine& line) const {
    const TextColor& color = renderer.textColor;
    LineStyle style;
    switch (line.kind) {
    case Kind::header:
        style = {.font = systemFont(renderer.fontSize + headerSizeIncrease(line.headerLevel),
                                    TextFont::Weight::bold),
                 .color = color,
                 .paragraph = ParagraphStyle{.spacingBefore = 12,
                                             .spacingAfter = 6,
                                             .kind = ParagraphKind::heading,
                                             .headingLevel = line.headerLevel}};
        break;
    case Kind::bullet:
        style = listStyle(16, line.indentWidth);
        style.prefix = bulletGlyph(line.indentWidth) + u' ';
        style.prefixColor = color.withAlpha(0.7);
        break;
    case Kind::uncheckedTask:
        style = listStyle(20, line.indentWidth);
        style.prefix = u"\u2610 "_s;
        style.prefixColor = color.withAlpha(0.6);
        break;
    case Kind::checkedTask:
        style = listStyle(20, line.indentWidth);
        style.prefix = u"\u2611 "_s;
        style.prefixColor = {TextColor::Base::systemGreen, 1.0};
        style.color = color.withAlpha(0.5);
        style.struckThrough = true;
        break;
    case Kind::numbered:
        style = listStyle(20, line.indentWidth);
        style.prefix = u". "_s;
        style.prefixColor = color.withAlpha(0.7);
        break;
    case Kind::quote:
        style = {.prefix = u"\u2503 "_s,
                 .prefixColor = color.withAlpha(0.4),
                 .font = renderer.baseFont,
                 .color = color.withAlpha(0.8),
                 .paragraph = ParagraphStyle{.firstLineHeadIndent = 16,
                                             .headIndent = 16,
                                             .spacingAfter = 4,
                                             .kind = ParagraphKind::quote}};
        break;
    case Kind::rule:
    case Kind::paragraph:
        style = {.font = renderer.baseFont, .color = color};
        break;
    }
    style.indices.fill(-1);
    return style;
}

DocumentRenderer::LineStyle DocumentRenderer::listStyle(double hangingIndent,
                                                        qsizetype indentWidth) const {
    const double indent = double(indentWidth) * pointsPerIndentUnit;
    return {.font = renderer.baseFont,
            .color = renderer.textColor,
            .paragraph = ParagraphStyle{.firstLineHeadIndent = indent,
                                        .headIndent = indent + hangingIndent,
                                        .spacingAfter = 2,
                                        .kind = ParagraphKind::listItem}};
}

int DocumentRenderer::prefixIndex(LineStyle& style) {
    if (style.prefixIndex < 0) {
        style.prefixIndex = builder.styleIndex({.font = renderer.baseFont,
                                                .foreground = style.prefixColor,
                                                .paragraph = style.paragraph});
    }
    return style.prefixIndex;
}

int DocumentRenderer::inlineIndex(LineStyle& style, std::uint8_t inlineStyle) {
    int& index = style.indices[inlineStyle];
    if (index >= 0) return index;

    TextAttributes attributes{
        .font = style.font, .foreground = style.color, .paragraph = style.paragraph};
    if (inlineStyle & InlineFormatter::bold)
        attributes.font = systemFont(style.font.size, TextFont::Weight::bold);
    if (inlineStyle & InlineFormatter::italic) attributes.font->italic = true;
    if (inlineStyle & InlineFormatter::code) {
        attributes.font = monospacedFont(style.font.size - 1);
        attributes.background = TextColor{TextColor::Base::white, 0.08};
    }
    if (inlineStyle & InlineFormatter::strikethrough)
        attributes.foreground = style.color.withAlpha(0.5);
    if (style.struckThrough || (inlineStyle & InlineFormatter::strikethrough))
        attributes.strikethrough = 1;
    return index = builder.styleIndex(attributes);
}

} // namespace tessaline
