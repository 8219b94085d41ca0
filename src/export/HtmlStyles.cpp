#include "export/HtmlStyles.h"

#include "settings/PlainNumber.h"

#include <algorithm>
#include <map>

namespace tessaline {

namespace {

QByteArray pixels(double points) {
    return plainNumber(points) + "px";
}

QByteArray percent(double component) {
    return QByteArray::number(qRound(component * 100)) + '%';
}

QByteArray cssColor(const TextColor& color) {
    QByteArray components;
    switch (color.base) {
    case TextColor::Base::text:
        components = percent(AmberComponents::red) + ' ' + percent(AmberComponents::green) + ' ' +
                     percent(AmberComponents::blue);
        break;
    case TextColor::Base::systemGreen:
        components = "48 209 88";
        break;
    case TextColor::Base::white:
        components = "255 255 255";
        break;
    }
    return "rgb(" + components + " / " + plainNumber(color.alpha) + ")";
}

QByteArray cssWeight(TextFont::Weight weight) {
    switch (weight) {
    case TextFont::Weight::regular:
        return "400";
    case TextFont::Weight::medium:
        return "500";
    case TextFont::Weight::bold:
        return "700";
    }
    Q_UNREACHABLE();
}

QByteArray textDeclarations(const TextAttributes& attributes) {
    QByteArray css;
    if (const auto& font = attributes.font) {
        const bool isSystem = font->family == TextFont::Family::system;
        css += font->italic ? "font: italic " : "font: ";
        css += cssWeight(font->weight) + ' ' + pixels(std::max(font->size, 1.0)) + ' ';
        css += isSystem ? "system-ui, sans-serif; " : "ui-monospace, monospace; ";
    }
    if (attributes.foreground) css += "color: " + cssColor(*attributes.foreground) + "; ";
    if (attributes.background) css += "background: " + cssColor(*attributes.background) + "; ";
    if (attributes.strikethrough != 0) css += "text-decoration: line-through; ";
    return css;
}

/// Padding in place of margins, since the spacing of neighbours adds up.
QByteArray paragraphDeclarations(const TextAttributes& attributes) {
    if (!attributes.paragraph) return {};
    const ParagraphStyle& style = *attributes.paragraph;
    QByteArray css = "padding-block: " + pixels(style.spacingBefore) + ' ' +
                     pixels(style.spacingAfter) + "; padding-inline: " + pixels(style.headIndent) +
                     ' ' + pixels(std::max(-style.tailIndent, 0.0)) +
                     "; text-indent: " + pixels(style.firstLineHeadIndent - style.headIndent) +
                     "; ";
    if (style.alignment == ParagraphStyle::Alignment::center) css += "text-align: center; ";
    return css;
}

/// What text without attributes looks like.
TextAttributes plainText() {
    return {.font = TextFont{.weight = TextFont::Weight::regular, .size = 12},
            .foreground = TextColor{}};
}

/// Names classes, the same one for the same declarations, and writes their rules.
class ClassNames {
public:
    ClassNames(char prefixLetter, QByteArray& styleSheet)
        : prefix(prefixLetter), sheet(styleSheet) {}

    QByteArray nameFor(const QByteArray& declarations) {
        if (declarations.isEmpty()) return {};
        QByteArray& name = names[declarations];
        if (name.isEmpty()) {
            name = prefix + QByteArray::number(names.size());
            sheet += '.' + name + " { " + declarations + "}\n";
        }
        return name;
    }

private:
    char prefix;
    QByteArray& sheet;
    std::map<QByteArray, QByteArray> names;
};

} // namespace

HtmlStyles::HtmlStyles(const std::vector<TextAttributes>& styles) {
    rules = "body { " + textDeclarations(plainText()) + "}\n";
    ClassNames texts('t', rules);
    ClassNames paragraphs('p', rules);
    for (const TextAttributes& attributes : styles) {
        textClasses.push_back(texts.nameFor(textDeclarations(attributes)));
        paragraphClasses.push_back(paragraphs.nameFor(paragraphDeclarations(attributes)));
    }
}

} // namespace tessaline
