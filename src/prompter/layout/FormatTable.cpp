#include "prompter/layout/FormatTable.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr TextFont plainFont{TextFont::Family::system, TextFont::Weight::regular, false, 12.0};

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

double lineHeightOf(const QFont& font, double lineSpacing) {
    const QFontMetricsF metrics(font);
    const double height = scaledLineHeight(metrics.height(), metrics.leading(), scaleOf(font));
    return height + extraLineHeight(height, lineSpacing);
}

QFont grown(TextFont font, double growth, const QString& family) {
    font.size += growth;
    return resolvedFont(font, family);
}

FormatTable::Entry makeEntry(const TextAttributes& attributes, double growth,
                             const Typography& typography) {
    const QFont font = grown(attributes.font.value_or(plainFont), attributes.font ? growth : 0.0,
                             typography.family);
    FormatTable::Entry entry;
    entry.font = font;
    entry.font.setStrikeOut(attributes.strikethrough != 0);
    entry.format.setFont(entry.font);
    entry.format.setForeground(resolvedColor(attributes.foreground.value_or(TextColor{})));
    if (attributes.background) entry.background = resolvedColor(*attributes.background);
    const QFontMetricsF metrics(font);
    entry.scale = scaleOf(font);
    entry.lineHeight = lineHeightOf(font, typography.lineSpacing);
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

QFont resolvedFont(const TextFont& font, const QString& family) {
    const double size = std::max(font.size, 1.0);
    const bool isCode = font.family == TextFont::Family::monospaced;
    QFont resolved = isCode ? monospacedFont(size, resolvedWeight(font.weight))
                            : systemFont(size, resolvedWeight(font.weight));
    if (!isCode && !family.isEmpty()) resolved.setFamilies({family});
    resolved.setItalic(font.italic);
    // Hinted glyphs sit on whole pixels; text that moves by fractions must keep its shapes.
    resolved.setHintingPreference(QFont::PreferNoHinting);
    return resolved;
}

QFont defaultTextFont() {
    return resolvedFont(plainFont);
}

double scaledLineHeight(double height, double leading, double scale) {
    return std::ceil(height * scale) + std::max(leading, 0.0) * scale;
}

double extraLineHeight(double height, double lineSpacing) {
    return std::round(height * (lineSpacing - 1.0));
}

double lineHeightOf(const TextFont& font, const Typography& typography) {
    return lineHeightOf(resolvedFont(font, typography.family), typography.lineSpacing);
}

FormatTable::FormatTable() : plainEntry(makeEntry({}, 0.0, {})) {}

void FormatTable::assign(const std::vector<TextAttributes>& styles, double growth,
                         const Typography& typography) {
    spacing = typography.lineSpacing;
    plainEntry = makeEntry({}, 0.0, typography);
    entries.clear();
    entries.reserve(styles.size());
    for (const auto& attributes : styles)
        entries.push_back(makeEntry(attributes, growth, typography));
}

FormatTable FormatTable::ofSelected() const {
    FormatTable table = *this;
    std::ranges::for_each(table.entries, turnWhite);
    turnWhite(table.plainEntry);
    return table;
}

} // namespace tessaline
