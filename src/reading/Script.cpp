#include "reading/Script.h"

#include "render/markdown/CharacterClasses.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

/// The same text with the same attributes, without carriage returns.
StyledText withoutCarriageReturns(StyledText styled) {
    if (!styled.text.contains(u'\r')) return styled;
    QString text;
    text.reserve(styled.text.size());
    std::vector<StyledText::Run> runs;
    runs.reserve(styled.runs.size());
    for (const auto& run : styled.runs) {
        const qsizetype start = text.size();
        for (const QChar c : QStringView(styled.text).sliced(run.start, run.length)) {
            if (c != u'\r') text += c;
        }
        if (text.size() > start) runs.push_back({int(start), int(text.size() - start), run.style});
    }
    return {std::move(text), std::move(runs), std::move(styled.styles), styled.fontSize};
}

} // namespace

Script::Script() : paragraphs(1) {}

Script::Script(StyledText styledText) : styled(withoutCarriageReturns(std::move(styledText))) {
    const QStringView text(styled.text);
    paragraphs.reserve(std::size_t(text.count(u'\n')) + 1);
    qsizetype run = 0;
    qsizetype start = 0;
    for (qsizetype newline = text.indexOf(u'\n'); newline >= 0;
         newline = text.indexOf(u'\n', start)) {
        appendLine(start, newline, run);
        start = newline + 1;
    }
    appendLine(start, text.size(), run);
}

void Script::appendLine(qsizetype start, qsizetype end, qsizetype& run) {
    const auto runCount = qsizetype(styled.runs.size());
    bool continues = false;
    do {
        const qsizetype piece = pieceEnd(start, end);
        while (run + 1 < runCount && styled.runs[std::size_t(run) + 1].start <= start)
            ++run;
        paragraphs.push_back({int(start), int(piece - start), int(run), continues, piece < end});
        continues = true;
        start = piece;
    } while (start < end);
}

qsizetype Script::pieceEnd(qsizetype start, qsizetype lineEnd) const {
    const QStringView text(styled.text);
    if (lineEnd - start <= longestPiece) return lineEnd;
    const qsizetype latest = start + longestPiece;
    for (qsizetype end = latest; end > start + longestPiece / 2; --end) {
        if (isWhitespace(text[end - 1].unicode())) return end;
    }
    return text[latest].isLowSurrogate() ? latest - 1 : latest;
}

int Script::headingLevel(std::size_t index) const {
    const Paragraph& paragraph = paragraphs[index];
    if (paragraph.length == 0 || paragraph.continuesPrevious) return 0;
    const auto& attributes = styled.attributes(styled.runs[std::size_t(paragraph.firstRun)]);
    return attributes.paragraph ? attributes.paragraph->headingLevel : 0;
}

bool Script::hasSameParagraph(std::size_t index, const Script& other,
                              std::size_t otherIndex) const {
    const Paragraph& mine = paragraphs[index];
    const Paragraph& its = other.paragraphs[otherIndex];
    if (mine.continuesPrevious != its.continuesPrevious ||
        mine.continuesInNext != its.continuesInNext || textOf(mine) != other.textOf(its))
        return false;

    const bool isLast = mine.start == styled.text.size();
    const bool itsIsLast = its.start == other.styled.text.size();
    if (isLast || itsIsLast) return isLast && itsIsLast;

    const auto endOf = [](const StyledText::Run& run, const Paragraph& paragraph) {
        return std::min(run.start + run.length - paragraph.start, paragraph.length);
    };
    auto myRun = styled.runs.begin() + mine.firstRun;
    auto itsRun = other.styled.runs.begin() + its.firstRun;
    while (styled.attributes(*myRun) == other.styled.attributes(*itsRun)) {
        const qsizetype end = endOf(*myRun, mine);
        if (end != endOf(*itsRun, its)) return false;
        if (end == mine.length) return true;
        ++myRun;
        ++itsRun;
    }
    return false;
}

} // namespace tessaline
