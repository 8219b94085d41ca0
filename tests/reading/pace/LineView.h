#pragma once

#include "reading/ReadingView.h"

#include <cstddef>
#include <vector>

namespace tessaline {

class ReadingSession;

/// A view of a session that sets every character equally wide and every line equally high, but
/// headings half as high again. The middle of the first and of the last line can be read.
class LineView final : public ReadingView {
public:
    LineView(ReadingSession& session, int charactersPerLine, double lineHeight);
    ~LineView() override;
    LineView(const LineView&) = delete;
    LineView& operator=(const LineView&) = delete;

    /// Sets the text in another width and font; the reader keeps their place.
    void set(int charactersPerLine, double lineHeight);

    /// Moves the text as a hand does.
    void scrollTo(double position) { moveBy(position - scrolled); }

    double position() const { return scrolled; }
    const std::vector<LineBox>& allLines() const { return boxes; }

    /// The spoken words above where the reader is, counted anew.
    double wordsRead() const;

    void scriptChanged(const Script& before, const ScriptChange& change, bool placeIsKept) override;
    void moveBy(double points) override;
    void moveTo(qsizetype offset) override;
    void follow(const ReadingPlace& place) override;
    double distance() const override;
    double readerPosition() const override;
    double lastReaderPosition() const override;
    double topOf(std::size_t paragraph) const override;
    std::vector<LineBox> linesBetween(double top, double bottom) override;

private:
    void layOut();
    void breakParagraph(std::size_t paragraph, double height);

    ReadingSession& session;
    int lineLength;
    double height;
    std::vector<LineBox> boxes;
    std::vector<double> words;       ///< of each line
    std::vector<std::size_t> firsts; ///< each paragraph's first line, and behind the last
    double scrolled = 0.0;
};

} // namespace tessaline
