#include "reading/ScriptDifference.h"

#include <cstddef>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

bool look(const Script& one, int style, const Script& other, int otherStyle) {
    if (style < 0 || otherStyle < 0) return style == otherStyle;
    return one.styles[std::size_t(style)] == other.styles[std::size_t(otherStyle)];
}

} // namespace

QString difference(const Script& one, const Script& other) {
    if (one.paragraphs.size() != other.paragraphs.size())
        return u"%1 and %2 paragraphs"_s.arg(one.paragraphs.size()).arg(other.paragraphs.size());
    for (std::size_t i = 0; i < one.paragraphs.size(); ++i) {
        const Script::Paragraph& mine = one.paragraphs[i];
        const Script::Paragraph& its = other.paragraphs[i];
        const StyledFragment myContent = one.content(i);
        const StyledFragment itsContent = other.content(i);
        const bool same = mine.start == its.start && mine.length == its.length &&
                          mine.continuesPrevious == its.continuesPrevious &&
                          mine.continuesInNext == its.continuesInNext &&
                          look(one, mine.style, other, its.style) &&
                          myContent.text == itsContent.text &&
                          myContent.runs.size() == itsContent.runs.size();
        if (!same) return u"paragraph %1"_s.arg(i);
        for (std::size_t run = 0; run < myContent.runs.size(); ++run) {
            const auto& myRun = myContent.runs[run];
            const auto& itsRun = itsContent.runs[run];
            if (myRun.start != itsRun.start || myRun.length != itsRun.length ||
                !look(one, myRun.style, other, itsRun.style))
                return u"run %1 of paragraph %2"_s.arg(run).arg(i);
        }
    }
    return {};
}

} // namespace tessaline
