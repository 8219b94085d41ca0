#pragma once

#include "prompter/layout/FormatTable.h"
#include "prompter/layout/HeightIndex.h"
#include "prompter/layout/ParagraphLayout.h"
#include "prompter/layout/TextRange.h"
#include "prompter/layout/Typography.h"
#include "reading/ReadingView.h"
#include "reading/Script.h"
#include "reading/ScriptChange.h"

#include <QPointF>
#include <QRectF>

#include <map>
#include <memory>
#include <vector>

class QPainter;

namespace tessaline {

/// A script set in a column. The heights of paragraphs are estimated until they are drawn or
/// measured, so that a text of any length is ready at once. Questions change no height. Coordinates
/// are points from the column's top left corner, y downwards; offsets are UTF-16 units of the
/// script's text.
class ScriptLayout {
public:
    ScriptLayout();

    /// Takes another script. What it shares with the present one at both ends stays laid out.
    void setScript(std::shared_ptr<const Script> script);

    /// The same where it is known already how the two differ.
    void setScript(std::shared_ptr<const Script> script, const ScriptChange& change);

    /// Sets the column's width in points.
    void setTextWidth(double points);

    /// Sets the size of body text in points; other text that the script sizes by it follows. Before
    /// that, and for 0, everything has the size that the script says.
    void setFontSize(double points);

    /// Sets what the text is set in.
    void setTypography(const Typography& wanted);

    const Script& script() const { return *currentScript; }
    double textWidth() const { return columnWidth; }
    double fontSize() const { return bodySize; }

    /// By how many points the fonts here are larger than the script says.
    double fontGrowth() const;

    /// How high a line of body text is.
    double bodyLineHeight() const;

    /// The column's height, in part estimated until `isMeasured`.
    double height() const { return heights.total(); }

    /// Whether every paragraph has been measured.
    bool isMeasured() const { return unmeasured == 0; }

    /// Measures paragraphs from the top on, until about so many UTF-16 units are done. Returns by
    /// how many points this moved what lies at `anchor`.
    double measureMore(qsizetype units, double anchor);

    /// Measures everything between two heights, so that drawing there changes nothing any more.
    void measureBetween(double top, double bottom);

    /// Measures the paragraph that an offset lies in.
    void measureAt(qsizetype offset);

    /// The paragraph at a height, and where a paragraph begins.
    std::size_t paragraphAt(double y) const { return heights.indexAt(y); }
    double topOf(std::size_t paragraph) const { return heights.topOf(paragraph); }
    double heightOf(std::size_t paragraph) const { return heights.height(paragraph); }

    /// The lines of all paragraphs that reach between two heights, which are measured.
    std::vector<LineBox> linesBetween(double top, double bottom);

    /// Draws what lies between two heights, with the selected text highlighted.
    void draw(QPainter& painter, double top, double bottom, const TextRange& selection);

    /// The offset nearest to a point.
    qsizetype offsetAt(const QPointF& point) const;

    /// The place of the caret before an offset, without width.
    QRectF caretRect(qsizetype offset) const;

private:
    const ParagraphLayout& laidOut(std::size_t index) const;
    const ParagraphLayout& measuredLayout(std::size_t index);
    void setMeasured(std::size_t index, double height);
    void assignFormats();
    void estimateAll();
    void forgetLayoutsOutside(std::size_t first, std::size_t last);
    void keepMeasured(const ScriptChange& change, std::size_t oldCount);

    std::shared_ptr<const Script> currentScript = std::make_shared<const Script>();
    Typography typography;
    FormatTable formats;
    HeightIndex heights;
    std::vector<bool> measured;
    std::size_t unmeasured = 0;
    std::size_t nextToMeasure = 0; ///< no paragraph before this one is unmeasured
    mutable std::map<std::size_t, ParagraphLayout> layouts; ///< kept for the next question
    double columnWidth = 400.0;
    double bodySize = 0.0;
};

} // namespace tessaline
