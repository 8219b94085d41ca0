#pragma once

#include <QtGlobal>

#include <cstddef>
#include <limits>
#include <vector>

namespace tessaline {

struct Script;
struct ScriptChange;

/// A place in a script that means the same in every font and width. A new one is the beginning,
/// which stays the beginning whatever is inserted there.
struct ReadingPlace {
    std::size_t paragraph = 0;
    double fraction = -std::numeric_limits<double>::infinity(); ///< of the paragraph's height
};

/// A line of text as a view has set it.
struct LineBox {
    std::size_t paragraph = 0;
    int start = 0;       ///< of its text in the paragraph, in UTF-16 units
    double top = 0.0;    ///< points from the document's top
    double height = 0.0; ///< points
};

/// What a session needs of those who show it: they know how high its paragraphs are, and turn
/// places into points. A view tells the session where the reader is after each of these, and
/// whenever its layout moved them.
class ReadingView {
public:
    virtual ~ReadingView() = default;

    /// Shows the session's script, which has replaced `before`, at the reader's place, or, if what
    /// the reader had before the eyes is gone, as many points down as before.
    virtual void scriptChanged(const Script& before, const ScriptChange& change,
                               bool placeIsKept) = 0;

    /// Moves the text on by so many points, as far as there is any.
    virtual void moveBy(double points) = 0;

    /// Moves the line that an offset is in to where the reader reads.
    virtual void moveTo(qsizetype offset) = 0;

    /// Shows the place that the reader is at in another view.
    virtual void follow(const ReadingPlace& place) = 0;

    /// How many points the whole text can be moved by.
    virtual double distance() const = 0;

    /// The middle of the line that is being read, and the furthest that it gets, in points from the
    /// document's top.
    virtual double readerPosition() const = 0;
    virtual double lastReaderPosition() const = 0;

    /// Where a paragraph begins, in the same points. In part an estimate.
    virtual double topOf(std::size_t paragraph) const = 0;

    /// The lines of all paragraphs that reach between two heights, from the top down, laid out.
    virtual std::vector<LineBox> linesBetween(double top, double bottom) = 0;
};

} // namespace tessaline
