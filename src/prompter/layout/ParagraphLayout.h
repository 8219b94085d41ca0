#pragma once

#include "prompter/layout/FormatTable.h"
#include "prompter/layout/Script.h"

#include <QColor>
#include <QTextLayout>

#include <cstddef>
#include <memory>

namespace tessaline {

/// One paragraph laid out in lines.
struct ParagraphLayout {
    std::unique_ptr<QTextLayout> lines; ///< its top is at 0, spacing included
    QColor pen;                         ///< what the lines are drawn in where they do not say
    double height = 0.0;                ///< points, with the spacing before and after
};

/// Lays a paragraph of a script out for a column of this width in points.
ParagraphLayout layOutParagraph(const Script& script, std::size_t index, const FormatTable& formats,
                                double textWidth);

/// What the paragraph's height will be, judged from its length alone.
double estimatedHeight(const Script& script, std::size_t index, const FormatTable& formats,
                       double textWidth);

} // namespace tessaline
