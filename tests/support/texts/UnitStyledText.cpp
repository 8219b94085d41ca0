#include "support/texts/UnitStyledText.h"

#include "render/markdown/StyledTextBuilder.h"

namespace tessaline {

UnitStyledText::UnitStyledText(QStringView text, const TextAttributes& style)
    : characters(text.toString()), attributes(text.size(), style) {}

void UnitStyledText::append(const UnitStyledText& other) {
    characters += other.characters;
    attributes.insert(attributes.end(), other.attributes.begin(), other.attributes.end());
}

void UnitStyledText::replace(qsizetype start, qsizetype end, const QString& replacement,
                             const TextAttributes& style) {
    const TextAttributes copy = style; // may live in the stretch that goes away
    characters.replace(start, end - start, replacement);
    attributes.erase(attributes.begin() + start, attributes.begin() + end);
    attributes.insert(attributes.begin() + start, replacement.size(), copy);
}

void UnitStyledText::setParagraph(const ParagraphStyle& paragraph) {
    for (TextAttributes& unit : attributes) {
        unit.paragraph = paragraph;
    }
}

StyledText UnitStyledText::toStyledText() const {
    StyledTextBuilder builder(size());
    for (qsizetype start = 0; start < size();) {
        qsizetype end = start + 1;
        while (end < size() && attributes[end] == attributes[start]) {
            ++end;
        }
        builder.append(QStringView(characters).mid(start, end - start),
                       builder.styleIndex(attributes[start]));
        start = end;
    }
    return builder.take();
}

} // namespace tessaline
