#pragma once

#include <QtGlobal>

#include <algorithm>

namespace tessaline {

/// A stretch of a text, from `begin` up to but without `end`, in UTF-16 units.
struct TextRange {
    qsizetype begin = 0;
    qsizetype end = 0;

    bool isEmpty() const { return begin >= end; }
    qsizetype length() const { return end - begin; }

    /// What lies in both.
    TextRange intersected(const TextRange& other) const {
        return {std::max(begin, other.begin), std::min(end, other.end)};
    }

    bool operator==(const TextRange&) const = default;
};

} // namespace tessaline
