#include "render/markdown/StyledTextBuilder.h"

#include <QHashFunctions>

#include <utility>

namespace tessaline {

namespace {

/// Memory for so many UTF-16 units is kept for the next line; a line of megabytes is rare.
constexpr qsizetype longestKept = 16384;

std::size_t hashOf(const std::optional<TextFont>& font) {
    if (!font) return 0;
    return qHashMulti(1, int(font->family), int(font->weight), font->italic, font->size);
}

std::size_t hashOf(const std::optional<TextColor>& color) {
    if (!color) return 0;
    return qHashMulti(2, int(color->base), color->alpha);
}

std::size_t hashOf(const std::optional<ParagraphStyle>& style) {
    if (!style) return 0;
    return qHashMulti(3, style->firstLineHeadIndent, style->headIndent, style->tailIndent,
                      style->spacingBefore, style->spacingAfter, int(style->alignment),
                      int(style->kind), style->headingLevel);
}

} // namespace

std::size_t StyledTextBuilder::Hash::operator()(const TextAttributes& attributes) const {
    return qHashMulti(0, hashOf(attributes.font), hashOf(attributes.foreground),
                      hashOf(attributes.background), hashOf(attributes.paragraph),
                      attributes.strikethrough);
}

StyledTextBuilder::StyledTextBuilder(qsizetype expectedLength) {
    result.text.reserve(expectedLength);
}

int StyledTextBuilder::styleIndex(const TextAttributes& attributes) {
    const auto [entry, isNew] = indices.try_emplace(attributes, int(result.styles.size()));
    if (isNew) result.styles.push_back(attributes);
    return entry->second;
}

void StyledTextBuilder::append(QStringView text, int style) {
    if (text.isEmpty() || text.size() > StyledText::longest - result.text.size()) return;
    if (result.runs.empty() || result.runs.back().style != style)
        result.runs.push_back({int(result.text.size()), 0, style});
    result.runs.back().length += int(text.size());
    result.text.append(text);
}

StyledText StyledTextBuilder::take() {
    indices.clear();
    return std::exchange(result, {});
}

void StyledTextBuilder::clear() {
    if (result.text.capacity() > longestKept) {
        result.text = QString();
        result.runs = {};
    }
    result.text.resize(0); // unlike clear(), keeps the memory
    result.runs.clear();
}

} // namespace tessaline
