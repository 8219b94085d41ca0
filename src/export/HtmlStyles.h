#pragma once

#include "render/StyledText.h"

#include <QByteArray>

#include <vector>

namespace tessaline {

/// The attribute sets of a text as classes of a style sheet.
class HtmlStyles {
public:
    explicit HtmlStyles(const std::vector<TextAttributes>& styles);

    /// The rules for all classes, and for text without one.
    QByteArray sheet() const { return rules; }

    /// The class of text with these attributes; empty when it needs none.
    const QByteArray& textClass(int style) const { return textClasses[std::size_t(style)]; }

    /// The class of a paragraph that begins with these attributes; empty when it needs none.
    const QByteArray& paragraphClass(int style) const {
        return paragraphClasses[std::size_t(style)];
    }

private:
    QByteArray rules;
    std::vector<QByteArray> textClasses;
    std::vector<QByteArray> paragraphClasses;
};

} // namespace tessaline
