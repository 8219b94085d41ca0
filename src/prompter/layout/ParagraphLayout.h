#pragma once

#include "prompter/layout/FormatTable.h"
#include "prompter/layout/TextRange.h"
#include "reading/ReadingView.h"
#include "reading/Script.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

class QPainter;

namespace tessaline {

/// One paragraph laid out in lines. Coordinates are points from the paragraph's top left corner,
/// spacing included; positions are UTF-16 units from its beginning. Qt lays text out in fonts of
/// whole pixels: the lines are drawn under a scale that makes up for the fraction.
class ParagraphLayout {
public:
    ParagraphLayout() = default;

    /// Lays a paragraph of a script out for a column of this width.
    ParagraphLayout(const Script& script, std::size_t index, const FormatTable& formats,
                    double textWidth);

    /// With the spacing before and after.
    double height() const { return wholeHeight; }

    /// Draws the lines that reach between two heights.
    void draw(QPainter& painter, double top, double bottom) const;

    /// Draws what a range holds of them on a ground that hides what was drawn there before.
    void drawOver(QPainter& painter, double top, double bottom, const TextRange& range,
                  const QColor& ground) const;

    /// Appends its lines, as those of this paragraph with its top at a height.
    void appendLines(std::vector<LineBox>& boxes, std::size_t paragraph, double top) const;

    /// The position nearest to a point.
    qsizetype positionAt(const QPointF& point) const;

    /// The place of the caret before a position, without width.
    QRectF caretRect(qsizetype position) const;

private:
    /// A line's place; its text begins at the left edge of the column, unscaled, and so far below
    /// the line's top.
    struct Line {
        double top;
        double height;
        double textTop;
    };

    struct Ground {
        TextRange range;
        QColor color;
    };

    void setFormats(const std::vector<StyledText::Run>& runs, const FormatTable& formats);
    void breakLines(const ParagraphStyle& style, bool rightToLeft, double textWidth,
                    double lineSpacing);
    std::pair<std::size_t, std::size_t> linesBetween(double top, double bottom) const;
    std::vector<QRectF> placesOf(int line, const TextRange& range) const;

    std::unique_ptr<QTextLayout> text;
    std::vector<Line> lines;
    std::vector<Ground> grounds; ///< behind parts of the text
    QColor pen;                  ///< what the text is drawn in where its formats do not say
    double scale = 1.0;
    double wholeHeight = 0.0;
};

/// What the paragraph's height will be, judged from its length alone.
double estimatedHeight(const Script& script, std::size_t index, const FormatTable& formats,
                       double textWidth);

} // namespace tessaline
