#include "reading/pace/SpokenWords.h"

#include <QChar>

#include <cstddef>
#include <utility>

namespace tessaline {

namespace {

bool isWrittenWithoutSpaces(char32_t character) {
    switch (QChar::script(character)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return QChar::isLetter(character);
    default:
        return false;
    }
}

/// Behind a list item's number, or 0 where it has none.
qsizetype endOfNumber(QStringView text) {
    qsizetype end = 0;
    while (end < text.size() && text[end].isDigit())
        ++end;
    return end > 0 && end < text.size() && text[end] == u'.' ? end + 1 : 0;
}

/// For every bracket that is closed, where the text goes on behind it; 0 elsewhere.
std::vector<int> endsOfBrackets(QStringView text) {
    if (!text.contains(u'[')) return {};
    std::vector<int> ends(std::size_t(text.size()), 0);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        if (text[qsizetype(i)] == u'[') open.push_back(i);
        if (text[qsizetype(i)] != u']' || open.empty()) continue;
        ends[open.back()] = int(i) + 1;
        open.pop_back();
    }
    return ends;
}

/// Collects the words of a text that is gone through from left to right.
class Words {
public:
    void space() {
        wordIsCounted = false;
        charactersWithoutSpaces = 0;
        start = -1;
    }

    void character(char32_t character, int at) {
        if (isWrittenWithoutSpaces(character)) {
            if (charactersWithoutSpaces++ % 2 == 0) starts.push_back(at);
            wordIsCounted = false;
            start = -1;
            return;
        }
        charactersWithoutSpaces = 0;
        if (start < 0) start = at;
        if (wordIsCounted || !QChar::isLetterOrNumber(character)) return;
        starts.push_back(start);
        wordIsCounted = true;
    }

    std::vector<int> take() { return std::move(starts); }

private:
    std::vector<int> starts;
    int start = -1; ///< of the present word
    int charactersWithoutSpaces = 0;
    bool wordIsCounted = false;
};

} // namespace

std::vector<int> spokenWordStarts(QStringView text, ParagraphKind kind) {
    if (kind == ParagraphKind::rule) return {};
    Words words;
    const std::vector<int> ends = endsOfBrackets(text);
    for (qsizetype i = kind == ParagraphKind::listItem ? endOfNumber(text) : 0; i < text.size();) {
        if (!ends.empty() && ends[std::size_t(i)] > 0) {
            words.space();
            i = ends[std::size_t(i)];
            continue;
        }
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t(text[i].unicode());
        if (QChar::isSpace(character)) {
            words.space();
        } else {
            words.character(character, int(i));
        }
        i += isPair ? 2 : 1;
    }
    return words.take();
}

} // namespace tessaline
