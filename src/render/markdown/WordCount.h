#pragma once

#include <QStringView>

namespace tessaline {

/// The number of words in a Markdown text once its syntax has been stripped. Linear in the text's
/// length; a long one is worked off in pieces of at least so many UTF-16 units, which changes
/// nothing but the memory that it takes. Any thread.
qsizetype countWords(QStringView text, qsizetype shortestPiece = 1'000'000);

} // namespace tessaline
