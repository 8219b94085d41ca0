#pragma once

#include <QStringView>

namespace tessaline {

/// Texts of up to this many UTF-16 units are compared with the oracle, whose expressions backtrack;
/// longer ones are checked for consistency only.
constexpr qsizetype longestCompared = 300;

/// Prints what went wrong with which text, and ends the program as the fuzzer wants it.
[[noreturn]] void reportFuzzFailure(const char* what, QStringView text);

} // namespace tessaline
