#pragma once

#include <QStringView>

namespace tessaline {

/// One line of Markdown outside of code, taken apart. The views refer to the line given to `parse`.
struct MarkdownLine {
    enum class Kind {
        rule,
        header,
        uncheckedTask,
        checkedTask,
        bullet,
        numbered,
        quote,
        paragraph
    };

    /// Decides what a line is; the first rule that holds, in the order of `Kind`, wins.
    static MarkdownLine parse(QStringView line);

    Kind kind = Kind::paragraph;
    QStringView text;          ///< what remains for inline formatting
    qsizetype indentWidth = 0; ///< of list items: 1 for each space, 4 for each tab
    QStringView number;        ///< of numbered items: the digits as written
    int headerLevel = 0;       ///< of headers: 1 to 6
};

/// Whether a line begins or ends a block of code.
bool isCodeFence(QStringView line);

} // namespace tessaline
