#pragma once

#include <QString>

#include <cstdint>

namespace tessaline {

/// A script of about so many words as people write them, as Markdown: prose in paragraphs of all
/// lengths, headings, lists, quotes, directions in brackets and rules. The same one for the same
/// seed.
QString randomTalk(std::uint32_t seed, int words);

} // namespace tessaline
