#pragma once

#include <QStringView>

namespace tessaline {

/// Cuts a Markdown text into pieces that can be counted one by one: nothing that counting takes
/// away reaches across a cut. A long text is counted so in little memory.
class CountablePieces {
public:
    /// Pieces have at least so many UTF-16 units, and as many more as it takes to find a line that
    /// may begin the next one. The first one begins at `from`, where one may.
    CountablePieces(QStringView text, qsizetype shortest, qsizetype from = 0);

    bool isAtEnd() const { return begin == text.size(); }

    /// Where the next piece begins.
    qsizetype position() const { return begin; }

    /// The next piece, empty at the end. It ends at `goal` if it may, however short it is then.
    QStringView next(qsizetype goal);
    QStringView next() { return next(text.size()); }

private:
    void pass(char16_t character);
    bool passUntil(qsizetype end, qsizetype goal, qsizetype least);
    bool mayCutHere() const;

    QStringView text;
    qsizetype shortest;
    qsizetype begin = 0;
    qsizetype openBrackets = 0;
    bool closedBracket = false; ///< just now: a parenthesis would begin a link's target
    bool openTarget = false;
};

} // namespace tessaline
