#pragma once

#include <QStringView>

namespace tessaline {

/// The number of words in a Markdown text once its syntax has been stripped. Linear in the text's
/// length. Any thread.
qsizetype countWords(QStringView text);

} // namespace tessaline
