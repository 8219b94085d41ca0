#pragma once

#include <QString>

#include <vector>

namespace tessaline {

/// Counts the words of one version of a text after the other, and of each only what is new in it.
class WordTally {
public:
    /// The number of words in a Markdown text without its syntax. Keeps the text, which is shared.
    qsizetype count(const QString& markdown);

private:
    /// A piece that is counted by itself, behind the one before.
    struct Piece {
        qsizetype end;
        qsizetype words;
    };

    QString counted;
    std::vector<Piece> pieces;
};

} // namespace tessaline
