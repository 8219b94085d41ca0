#pragma once

#include <QStringView>

#include <string>

namespace tessaline {

/// Renders and counts `content` with the scanners and with the oracle. Empty when both agree, and
/// otherwise a description: the smallest part of the text that still differs, escaped, and what
/// either side made of it.
std::string differenceFromOracle(QStringView content);

} // namespace tessaline
