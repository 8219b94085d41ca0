#pragma once

#include <QStringView>

namespace tessaline {

/// Cuts a Markdown text into pieces that can be counted one by one: nothing that counting takes
/// away reaches across a cut. A long text is counted so in little memory.
class CountablePieces {
public:
    /// Pieces have at least so many UTF-16 units, and as many more as it takes to find a line that
    /// may begin the next one.
    CountablePieces(QStringView text, qsizetype shortest);

    bool isAtEnd() const { return begin == text.size(); }

    /// The next piece, empty at the end.
    QStringView next();

private:
    void pass(char16_t character);
    bool mayCutBefore(qsizetype position) const;

    QStringView text;
    qsizetype shortest;
    qsizetype begin = 0;
    qsizetype openBrackets = 0;
    bool closedBracket = false; ///< just now: a parenthesis would begin a link's target
    bool openTarget = false;
};

} // namespace tessaline
