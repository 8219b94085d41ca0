#pragma once

#include "render/TextAttributes.h"

#include <QStringView>

#include <vector>

namespace tessaline {

/// Where the words of a paragraph begin that a reader says, in UTF-16 units from its beginning.
/// Nobody says a list item's number, a sign without a letter or digit, a rule, or what stands in
/// square brackets. Where a language writes no spaces, two characters count as a word.
std::vector<int> spokenWordStarts(QStringView text, ParagraphKind kind);

} // namespace tessaline
