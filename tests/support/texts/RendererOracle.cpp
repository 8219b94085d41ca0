#include "support/texts/RendererOracle.h"

#include "support/texts/IcuExpression.h"
#include "support/texts/UnitStyledText.h"

#include <QList>
#include <QStringList>

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <optional>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using Match = IcuExpression::Match;

constexpr TextColor textColor{TextColor::Base::text, 1.0};
constexpr TextColor white{TextColor::Base::white, 1.0};

bool isBlank(char16_t unit) {
    return unit == u'\t' || u_charType(unit) == U_SPACE_SEPARATOR;
}

QString trimmed(QStringView text) {
    while (!text.isEmpty() && isBlank(text.front().unicode())) {
        text = text.mid(1);
    }
    while (!text.isEmpty() && isBlank(text.back().unicode())) {
        text.chop(1);
    }
    return text.toString();
}

QString withoutOuterNonDigits(const QString& text) {
    const QList<uint> points = text.toUcs4();
    const auto isDigit = [](uint point) { return u_isdigit(static_cast<UChar32>(point)) != 0; };
    const auto first = std::find_if(points.begin(), points.end(), isDigit);
    const auto last = std::find_if(points.rbegin(), points.rend(), isDigit).base();
    return first < last
               ? QString::fromUcs4(reinterpret_cast<const char32_t*>(&*first), last - first)
               : QString();
}

/// The end of an anchored expression's match, or nothing.
std::optional<qsizetype> prefixEnd(const IcuExpression& expression, QStringView text) {
    const std::vector<Match> matches = expression.matches(text);
    return matches.empty() ? std::nullopt : std::optional(matches.front().end);
}

QString indentOf(QStringView prefix) {
    const auto* end = std::find_if(prefix.begin(), prefix.end(),
                                   [](QChar unit) { return unit != u' ' && unit != u'\t'; });
    return prefix.left(end - prefix.begin()).toString();
}

int indentWidth(const QString& indent) {
    int width = 0;
    for (const QChar unit : indent) {
        width += unit == u'\t' ? 4 : 1;
    }
    return width;
}

ParagraphStyle listParagraph(const QString& indent, double hang) {
    const double first = indentWidth(indent) * 4.0;
    return {.firstLineHeadIndent = first,
            .headIndent = first + hang,
            .spacingAfter = 2,
            .kind = ParagraphKind::listItem};
}

TextFont systemFont(double size, TextFont::Weight weight) {
    return {TextFont::Family::system, weight, false, size};
}

TextFont monospacedFont(double size) {
    return {TextFont::Family::monospaced, TextFont::Weight::regular, false, size};
}

/// Renders with one font size; holds what the block and inline rules share.
class Rules {
public:
    explicit Rules(double bodySize)
        : fontSize(bodySize), baseFont(systemFont(bodySize, TextFont::Weight::medium)) {}

    UnitStyledText document(QStringView content) const;

private:
    UnitStyledText line(const QString& line) const;
    UnitStyledText header(const QString& text, qsizetype level) const;
    UnitStyledText bulletItem(const QString& text, const QString& indent) const;
    UnitStyledText taskItem(const QString& text, bool checked, const QString& indent) const;
    UnitStyledText numberedItem(const QString& text, const QString& number,
                                const QString& indent) const;
    UnitStyledText blockquote(const QString& text) const;
    UnitStyledText codeBlock(const QString& code) const;
    UnitStyledText horizontalRule() const;
    UnitStyledText inlineText(const QString& text, std::optional<TextFont> font = {},
                              std::optional<TextColor> color = {}) const;

    TextAttributes body(TextColor color) const { return {.font = baseFont, .foreground = color}; }

    double fontSize;
    TextFont baseFont;
};

UnitStyledText Rules::document(QStringView content) const {
    UnitStyledText output;
    bool inCodeBlock = false;
    QString code;
    const QStringList lines = content.toString().split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (trimmed(lines[i]).startsWith("```"_L1)) {
            if (inCodeBlock) {
                output.append(codeBlock(code));
                code.clear();
            }
            inCodeBlock = !inCodeBlock;
        } else if (inCodeBlock) {
            if (!code.isEmpty()) code += u'\n';
            code += lines[i];
        } else {
            output.append(line(lines[i]));
            if (i + 1 < lines.size()) output.append({u"\n", {}});
        }
    }
    if (inCodeBlock && !code.isEmpty()) output.append(codeBlock(code));
    return output;
}

UnitStyledText Rules::line(const QString& line) const {
    static const IcuExpression headerPrefix(uR"(^#{1,6}\s+)");
    static const IcuExpression openTaskPrefix(uR"(^(\s*)[-*]\s+\[\s\]\s+)");
    static const IcuExpression doneTaskPrefix(uR"(^(\s*)[-*]\s+\[[xX]\]\s+)");
    static const IcuExpression bulletPrefix(uR"(^(\s*)[-*]\s+)");
    static const IcuExpression numberPrefix(uR"(^(\s*)\d+\.\s+)");

    const QString content = trimmed(line);
    if (content == "---"_L1 || content == "***"_L1 || content == "___"_L1) return horizontalRule();
    if (const auto end = prefixEnd(headerPrefix, content)) {
        return header(content.mid(*end), content.left(*end).count(u'#'));
    }
    if (const auto end = prefixEnd(openTaskPrefix, line)) {
        return taskItem(line.mid(*end), false, indentOf(line.left(*end)));
    }
    if (const auto end = prefixEnd(doneTaskPrefix, line)) {
        return taskItem(line.mid(*end), true, indentOf(line.left(*end)));
    }
    if (const auto end = prefixEnd(bulletPrefix, line)) {
        return bulletItem(line.mid(*end), indentOf(line.left(*end)));
    }
    if (const auto end = prefixEnd(numberPrefix, line)) {
        const QString prefix = line.left(*end);
        const QString number = withoutOuterNonDigits(trimmed(prefix).remove(u'.'));
        return numberedItem(line.mid(*end), number, indentOf(prefix));
    }
    if (content.startsWith(u'>')) return blockquote(trimmed(content.mid(1)));
    return inlineText(line);
}

UnitStyledText Rules::header(const QString& text, qsizetype level) const {
    constexpr std::array<double, 7> growth{0, 10, 7, 4, 2, 1, 0};
    const double size = fontSize + growth[std::min<qsizetype>(level, 6)];
    UnitStyledText result = inlineText(text, systemFont(size, TextFont::Weight::bold));
    result.setParagraph({.spacingBefore = 12,
                         .spacingAfter = 6,
                         .kind = ParagraphKind::heading,
                         .headingLevel = int(level)});
    return result;
}

UnitStyledText Rules::bulletItem(const QString& text, const QString& indent) const {
    constexpr std::array glyphs{u"• ", u"◦ ", u"▪ ", u"▫ "};
    const int depth = std::min(indentWidth(indent) / 4, 3);
    UnitStyledText result(glyphs[depth], body(textColor.withAlpha(0.7)));
    result.append(inlineText(text));
    result.setParagraph(listParagraph(indent, 16));
    return result;
}

UnitStyledText Rules::taskItem(const QString& text, bool checked, const QString& indent) const {
    const TextColor boxColor =
        checked ? TextColor{TextColor::Base::systemGreen, 1.0} : textColor.withAlpha(0.6);
    UnitStyledText result(checked ? u"☑ " : u"☐ ", body(boxColor));
    result.append(inlineText(text, {}, checked ? textColor.withAlpha(0.5) : textColor));
    for (qsizetype i = 2; checked && i < result.size(); ++i) {
        result.at(i).strikethrough = 1;
    }
    result.setParagraph(listParagraph(indent, 20));
    return result;
}

UnitStyledText Rules::numberedItem(const QString& text, const QString& number,
                                   const QString& indent) const {
    UnitStyledText result(QString(number + ". "_L1), body(textColor.withAlpha(0.7)));
    result.append(inlineText(text));
    result.setParagraph(listParagraph(indent, 20));
    return result;
}

UnitStyledText Rules::blockquote(const QString& text) const {
    UnitStyledText result(u"┃ ", body(textColor.withAlpha(0.4)));
    result.append(inlineText(text, {}, textColor.withAlpha(0.8)));
    result.setParagraph({.firstLineHeadIndent = 16,
                         .headIndent = 16,
                         .spacingAfter = 4,
                         .kind = ParagraphKind::quote});
    return result;
}

UnitStyledText Rules::codeBlock(const QString& code) const {
    UnitStyledText result(code, {.font = monospacedFont(fontSize - 1),
                                 .foreground = textColor.withAlpha(0.9),
                                 .background = white.withAlpha(0.05)});
    result.setParagraph({.firstLineHeadIndent = 8,
                         .headIndent = 8,
                         .tailIndent = -8,
                         .spacingBefore = 8,
                         .spacingAfter = 8,
                         .kind = ParagraphKind::code});
    result.append({u"\n", {}});
    return result;
}

UnitStyledText Rules::horizontalRule() const {
    UnitStyledText result(QString(21, u'─'), body(textColor.withAlpha(0.3)));
    result.setParagraph({.spacingBefore = 8,
                         .spacingAfter = 8,
                         .alignment = ParagraphStyle::Alignment::center,
                         .kind = ParagraphKind::rule});
    return result;
}

/// Changes the attributes of every match of `expression`; `change` is also given those that the
/// match's first unit had before.
template <typename Change>
void styleMatches(UnitStyledText& text, const IcuExpression& expression, Change change) {
    for (const Match& match : expression.matches(text.text())) {
        const TextAttributes before = text.at(match.start);
        for (qsizetype i = match.start; i < match.end; ++i) {
            change(text.at(i), before);
        }
    }
}

void removeMarkers(UnitStyledText& text, const IcuExpression& expression) {
    const QString searched = text.text();
    const std::vector<Match> matches = expression.matches(searched);
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
        const QString inner = searched.mid(match->groupStart, match->groupEnd - match->groupStart);
        text.replace(match->start, match->end, inner, text.at(match->groupStart));
    }
}

UnitStyledText Rules::inlineText(const QString& text, std::optional<TextFont> font,
                                 std::optional<TextColor> color) const {
    static const IcuExpression bold(uR"(\*\*(.+?)\*\*|__(.+?)__)");
    static const IcuExpression italic(
        uR"((?<!\*)\*(?!\*)(.+?)(?<!\*)\*(?!\*)|(?<!_)_(?!_)(.+?)(?<!_)_(?!_))");
    static const IcuExpression code(uR"(`([^`]+)`)");
    static const IcuExpression strikethrough(uR"(~~(.+?)~~)");
    static const std::array<IcuExpression, 6> markers{
        IcuExpression(uR"(\*\*(.+?)\*\*)"),
        IcuExpression(uR"(__(.+?)__)"),
        IcuExpression(uR"((?<!\*)\*(?!\*)(.+?)(?<!\*)\*(?!\*))"),
        IcuExpression(uR"((?<!_)_(?!_)(.+?)(?<!_)_(?!_))"),
        IcuExpression(uR"(`([^`]+)`)"),
        IcuExpression(uR"(~~(.+?)~~)")};

    const TextColor baseColor = color.value_or(textColor);
    UnitStyledText result(text, {.font = font.value_or(baseFont), .foreground = baseColor});
    styleMatches(result, bold, [](TextAttributes& unit, const TextAttributes& before) {
        unit.font = systemFont(before.font->size, TextFont::Weight::bold);
    });
    styleMatches(result, italic, [](TextAttributes& unit, const TextAttributes& before) {
        unit.font = before.font;
        unit.font->italic = true;
    });
    styleMatches(result, code, [](TextAttributes& unit, const TextAttributes& before) {
        unit.font = monospacedFont(before.font->size - 1);
        unit.background = white.withAlpha(0.08);
    });
    styleMatches(result, strikethrough, [&](TextAttributes& unit, const TextAttributes&) {
        unit.strikethrough = 1;
        unit.foreground = baseColor.withAlpha(0.5);
    });
    for (const IcuExpression& marker : markers) {
        removeMarkers(result, marker);
    }
    return result;
}

} // namespace

RendererOracle::RendererOracle(double bodySize) : fontSize(bodySize) {}

StyledText RendererOracle::render(QStringView content) const {
    return Rules(fontSize).document(content).toStyledText();
}

qsizetype RendererOracle::wordCount(QStringView text) {
    struct Rule {
        IcuExpression find;
        QString replacement;
    };
    static const std::array<Rule, 10> rules{{{IcuExpression(uR"((?m)^#{1,6}\s+)"), u""_s},
                                             {IcuExpression(uR"(\*{1,3})"), u""_s},
                                             {IcuExpression(uR"(_{1,3})"), u""_s},
                                             {IcuExpression(uR"(`)"), u""_s},
                                             {IcuExpression(uR"(\[([^\]]+)\]\([^)]+\))"), u"$1"_s},
                                             {IcuExpression(uR"(!\[[^\]]*\]\([^)]+\))"), u""_s},
                                             {IcuExpression(uR"((?m)^\s*[-*+]\s+)"), u""_s},
                                             {IcuExpression(uR"((?m)^\s*\d+\.\s+)"), u""_s},
                                             {IcuExpression(uR"((?m)^```.*$)"), u""_s},
                                             {IcuExpression(uR"((?m)^[-*_]{3,}$)"), u""_s}}};
    QString rest = text.toString();
    for (const Rule& rule : rules) {
        rest = rule.find.replaceAll(rest, rule.replacement);
    }

    qsizetype words = 0;
    bool inWord = false;
    for (const QChar unit : rest) {
        const bool space = u_isUWhiteSpace(unit.unicode()) != 0;
        if (!space && !inWord) ++words;
        inWord = !space;
    }
    return words;
}

} // namespace tessaline
