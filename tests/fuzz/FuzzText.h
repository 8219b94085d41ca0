#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

namespace tessaline {

/// Makes UTF-16 out of a fuzzer's bytes, so that one byte reaches every character that matters:
/// ASCII stands for itself, 0xff begins any unit in two further bytes, and what lies between is a
/// table of white space, line terminators, digits, marks and lone surrogates.
QString fuzzText(const std::uint8_t* data, std::size_t size);

} // namespace tessaline
