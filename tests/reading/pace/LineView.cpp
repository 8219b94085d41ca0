#include "LineView.h"

#include "reading/ReadingSession.h"
#include "reading/pace/SpokenWords.h"

#include <algorithm>

namespace tessaline {

LineView::LineView(ReadingSession& shown, int charactersPerLine, double lineHeight)
    : session(shown), lineLength(charactersPerLine), height(lineHeight) {
    layOut();
    session.addView(*this);
}

LineView::~LineView() {
    session.removeView(*this);
}

void LineView::set(int charactersPerLine, double lineHeight) {
    const ReadingPlace place = session.place();
    lineLength = charactersPerLine;
    height = lineHeight;
    layOut();
    session.linesChanged();
    follow(place);
}

void LineView::layOut() {
    boxes.clear();
    words.clear();
    firsts.clear();
    const Script& script = *session.script();
    for (std::size_t i = 0; i < script.paragraphs.size(); ++i) {
        firsts.push_back(boxes.size());
        breakParagraph(i, script.headingLevel(i) > 0 ? 1.5 * height : height);
    }
    firsts.push_back(boxes.size());
}

void LineView::breakParagraph(std::size_t paragraph, double lineHeight) {
    const QString text = session.script()->content(paragraph).text;
    const auto starts = spokenWordStarts(text, session.script()->kind(paragraph));
    qsizetype begin = 0;
    do {
        qsizetype end = std::min(begin + lineLength, text.size());
        if (end < text.size()) {
            const qsizetype space = text.lastIndexOf(u' ', end - 1);
            if (space >= begin) end = space + 1;
        }
        const double top = boxes.empty() ? 0.0 : boxes.back().top + boxes.back().height;
        boxes.push_back({paragraph, int(begin), top, lineHeight});
        words.push_back(double(std::count_if(starts.begin(), starts.end(), [&](int start) {
            return start >= begin && start < end;
        })));
        begin = end;
    } while (begin < text.size());
}

double LineView::wordsRead() const {
    const double y = readerPosition();
    double sum = 0.0;
    for (std::size_t i = 0; i < boxes.size() && boxes[i].top < y; ++i)
        sum += words[i] * std::min((y - boxes[i].top) / boxes[i].height, 1.0);
    return sum;
}

void LineView::scriptChanged(const Script&, const ScriptChange&, bool placeIsKept) {
    const ReadingPlace place = session.place();
    layOut();
    session.linesChanged();
    if (placeIsKept) {
        follow(place);
    } else {
        moveBy(0.0);
    }
}

void LineView::moveBy(double points) {
    scrolled = std::clamp(scrolled + points, 0.0, distance());
    const double y = readerPosition();
    const auto box = std::find_if(boxes.begin(), boxes.end() - 1,
                                  [y](const LineBox& line) { return line.top + line.height > y; });
    const std::size_t paragraph = box->paragraph;
    const LineBox& last = boxes[firsts[paragraph + 1] - 1];
    const double top = topOf(paragraph);
    if (scrolled == 0.0) return session.reached(*this, {});
    session.reached(*this, {paragraph, (y - top) / (last.top + last.height - top)});
}

void LineView::moveTo(qsizetype offset) {
    const std::size_t paragraph = session.script()->paragraphOf(offset);
    const LineBox& first = boxes[firsts[paragraph]];
    scrollTo(first.top + first.height / 2 - boxes.front().height / 2);
}

void LineView::follow(const ReadingPlace& place) {
    const LineBox& last = boxes[firsts[place.paragraph + 1] - 1];
    const double top = topOf(place.paragraph);
    const double y = top + place.fraction * (last.top + last.height - top);
    scrollTo(y - boxes.front().height / 2);
}

double LineView::distance() const {
    return lastReaderPosition() - boxes.front().height / 2;
}

double LineView::readerPosition() const {
    return scrolled + boxes.front().height / 2;
}

double LineView::lastReaderPosition() const {
    return boxes.back().top + boxes.back().height / 2;
}

double LineView::topOf(std::size_t paragraph) const {
    return boxes[firsts[paragraph]].top;
}

std::vector<LineBox> LineView::linesBetween(double top, double bottom) {
    const auto paragraphAt = [this](double y) {
        const auto box = std::find_if(boxes.begin(), boxes.end() - 1, [y](const LineBox& line) {
            return line.top + line.height > y;
        });
        return box->paragraph;
    };
    const std::size_t first = firsts[paragraphAt(top)];
    const std::size_t last = firsts[paragraphAt(bottom) + 1];
    return {boxes.begin() + std::ptrdiff_t(first), boxes.begin() + std::ptrdiff_t(last)};
}

} // namespace tessaline
