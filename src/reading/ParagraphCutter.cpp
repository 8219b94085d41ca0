#include "reading/ParagraphCutter.h"

#include "render/markdown/CharacterClasses.h"

namespace tessaline {

namespace {

qsizetype pieceEnd(QStringView line, qsizetype start) {
    constexpr qsizetype longest = ParagraphCutter::longestPiece;
    if (line.size() - start <= longest) return line.size();
    const qsizetype latest = start + longest;
    for (qsizetype end = latest; end > start + longest / 2; --end) {
        if (isWhitespace(line[end - 1].unicode())) return end;
    }
    return line[latest].isLowSurrogate() ? latest - 1 : latest;
}

} // namespace

qsizetype ParagraphCutter::nextStart() const {
    if (paragraphs.empty()) return 0;
    const ScriptParagraph& last = paragraphs.back();
    return qsizetype(last.start) + last.length + (last.continuesInNext ? 0 : 1);
}

bool ParagraphCutter::append(QStringView line, const std::vector<StyledText::Run>& runs,
                             ScriptParagraph like) {
    const qsizetype lineStart = nextStart();
    if (line.size() > StyledText::longest - lineStart) return false;
    auto run = runs.begin();
    qsizetype start = 0;
    do {
        const qsizetype end = pieceEnd(line, start);
        while (run != runs.end() && run->start + run->length <= start)
            ++run;
        like.start = int(lineStart + start);
        like.length = int(end - start);
        if (run != runs.end()) like.style = run->style;
        like.continuesPrevious = start > 0;
        like.continuesInNext = end < line.size();
        paragraphs.push_back(like);
        start = end;
    } while (start < line.size());
    return true;
}

void ParagraphCutter::copy(const ScriptParagraph* from, const ScriptParagraph* to,
                           int originShift) {
    if (from == to) return;
    const int shift = int(nextStart()) - from->start;
    for (; from != to; ++from) {
        paragraphs.push_back(*from);
        paragraphs.back().start += shift;
        paragraphs.back().origin += originShift;
    }
}

} // namespace tessaline
