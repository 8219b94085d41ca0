#pragma once

#include <QString>

#include <cstdint>
#include <random>

namespace tessaline {

/// Makes lines and documents out of what Markdown's rules look at, the same ones for the same seed
/// on every platform.
class RandomMarkdown {
public:
    explicit RandomMarkdown(std::uint32_t seed);

    /// A line of some length class: most are short, few have hundreds of units. May hold any line
    /// terminator but "\n".
    QString line();

    /// Several lines joined by "\n", with fences among them.
    QString document();

private:
    std::size_t below(std::size_t bound);

    std::mt19937 generator;
};

} // namespace tessaline
