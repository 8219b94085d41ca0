#include "prompter/layout/FormatTable.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr double defaultFontSize = 12.0;

QFont::Weight resolvedWeight(TextFont::Weight weight) {
    switch (weight) {
    case TextFont::Weight::regular:
        return QFont::Normal;
    case TextFont::Weight::medium:
        return QFont::Medium;
    case TextFont::Weight::bold:
        return QFont::Bold;
    }
    Q_UNREACHABLE();
}

double scaleOf(const QFont& font) {
    const double drawn = drawnPointsOf(font);
    return drawn > 0.0 ? pointsOf(font) / drawn : 1.0;
}

double lineHeightOf(const QFont& font) {
    const QFontMetricsF metrics(font);
    return scaledLineHeight(metrics.height(), metrics.leading(), scaleOf(font));
}

QFont grown(TextFont font, double growth) {
    font.size += growth;
    return resolvedFont(font);
}

FormatTable::Entry makeEntry(const TextAttributes& attributes, double growth) {
    const QFont font = attributes.font ? grown(*attributes.font, growth) : defaultTextFont();
    FormatTable::Entry entry;
    entry.font = font;
    entry.font.setStrikeOut(attributes.strikethrough != 0);
    entry.format.setFont(entry.font);
    entry.format.setForeground(resolvedColor(attributes.foreground.value_or(TextColor{})));
    if (attributes.background) entry.background = resolvedColor(*attributes.background);
    const QFontMetricsF metrics(font);
    entry.scale = scaleOf(font);
    entry.lineHeight = lineHeightOf(font);
    entry.averageAdvance = metrics.averageCharWidth() * entry.scale;
    return entry;
}

void turnWhite(FormatTable::Entry& entry) {
    entry.format.setForeground(SystemPalette::white);
    entry.background = QColor();
}

} // namespace

QColor resolvedColor(const TextColor& color) {
    switch (color.base) {
    case TextColor::Base::text:
        return SystemPalette::withAlpha(SystemPalette::amber(), color.alpha);
    case TextColor::Base::systemGreen:
        return SystemPalette::withAlpha(SystemPalette::green, color.alpha);
    case TextColor::Base::white:
        return SystemPalette::withAlpha(SystemPalette::white, color.alpha);
    }
    Q_UNREACHABLE();
}

QFont resolvedFont(const TextFont& font) {
    const double size = std::max(font.size, 1.0);
    QFont resolved = font.family == TextFont::Family::monospaced
                         ? monospacedFont(size, resolvedWeight(font.weight))
                         : systemFont(size, resolvedWeight(font.weight));
    resolved.setItalic(font.italic);
    // Hinted glyphs sit on whole pixels; text that moves by fractions must keep its shapes.
    resolved.setHintingPreference(QFont::PreferNoHinting);
    return resolved;
}

QFont defaultTextFont() {
    return resolvedFont(
        {TextFont::Family::system, TextFont::Weight::regular, false, defaultFontSize});
}

double scaledLineHeight(double height, double leading, double scale) {
    return std::ceil(height * scale) + std::max(leading, 0.0) * scale;
}

double lineHeightOf(const TextFont& font) {
    return lineHeightOf(resolvedFont(font));
}

FormatTable::FormatTable() : plainEntry(makeEntry({}, 0.0)) {}

void FormatTable::assign(const std::vector<TextAttributes>& styles, double growth) {
    entries.clear();
    entries.reserve(styles.size());
    for (const auto& attributes : styles)
        entries.push_back(makeEntry(attributes, growth));
}

FormatTable FormatTable::ofSelected() const {
    FormatTable table = *this;
    std::ranges::for_each(table.entries, turnWhite);
    turnWhite(table.plainEntry);
    return table;
}

} // namespace tessaline
