#pragma once

#include <QString>

#include <vector>

namespace tessaline {

/// Lines without "\n" that are easy to get wrong.
std::vector<QString> awkwardLines();

} // namespace tessaline
