#include "support/texts/StyledPiece.h"

#include "support/texts/EscapedText.h"

#include <QStringView>

#include <array>
#include <ostream>

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;

void print(std::ostream& out, const char* name, const TextColor& color) {
    constexpr std::array bases{"text", "systemGreen", "white"};
    out << ' ' << name << '=' << bases[static_cast<int>(color.base)] << '@' << color.alpha;
}

void print(std::ostream& out, const TextFont& font) {
    constexpr std::array families{"system", "monospaced"};
    constexpr std::array weights{"regular", "medium", "bold"};
    out << " font=" << families[static_cast<int>(font.family)] << ','
        << weights[static_cast<int>(font.weight)] << (font.italic ? ",italic," : ",") << font.size;
}

void print(std::ostream& out, const ParagraphStyle& style) {
    out << " paragraph=" << style.firstLineHeadIndent << ',' << style.headIndent << ','
        << style.tailIndent << ',' << style.spacingBefore << ',' << style.spacingAfter
        << (style.alignment == ParagraphStyle::Alignment::center ? ",center" : ",natural")
        << ",kind " << int(style.kind) << ",level " << style.headingLevel;
}

} // namespace

std::vector<StyledPiece> piecesOf(const StyledText& styled) {
    std::vector<StyledPiece> pieces;
    for (const StyledText::Run& run : styled.runs) {
        pieces.push_back({styled.text.mid(run.start, run.length), styled.attributes(run)});
    }
    return pieces;
}

QString runDefect(const StyledText& styled) {
    qsizetype covered = 0;
    const TextAttributes* previous = nullptr;
    for (const StyledText::Run& run : styled.runs) {
        if (run.start != covered) return u"a gap or an overlap at %1"_s.arg(covered);
        if (run.length <= 0) return u"an empty run at %1"_s.arg(covered);
        if (run.style < 0 || run.style >= static_cast<qsizetype>(styled.styles.size())) {
            return u"an unknown style at %1"_s.arg(covered);
        }
        if (previous != nullptr && *previous == styled.attributes(run)) {
            return u"equal neighbours at %1"_s.arg(covered);
        }
        previous = &styled.attributes(run);
        covered += run.length;
    }
    if (covered != styled.text.size()) return u"an end at %1"_s.arg(covered);
    return {};
}

std::ostream& operator<<(std::ostream& out, const StyledPiece& piece) {
    out << '"' << escapedText(piece.text) << '"';
    if (piece.attributes.font) print(out, *piece.attributes.font);
    if (piece.attributes.foreground) print(out, "foreground", *piece.attributes.foreground);
    if (piece.attributes.background) print(out, "background", *piece.attributes.background);
    if (piece.attributes.strikethrough != 0) {
        out << " strikethrough=" << piece.attributes.strikethrough;
    }
    if (piece.attributes.paragraph) print(out, *piece.attributes.paragraph);
    return out << '\n';
}

} // namespace tessaline
