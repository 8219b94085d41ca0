#pragma once

#include <cstddef>
#include <vector>

namespace tessaline {

/// The heights of a column of items, in points, with their sums: a Fenwick tree, so that changing a
/// height and finding the item at a place both take logarithmic time.
class HeightIndex {
public:
    /// Replaces all heights.
    void assign(std::vector<double> newHeights);

    /// Changes one height.
    void set(std::size_t index, double height);

    std::size_t size() const { return heights.size(); }
    double height(std::size_t index) const { return heights[index]; }

    /// The sum of all heights.
    double total() const { return topOf(heights.size()); }

    /// The sum of the heights before an item; `index` may be one past the last.
    double topOf(std::size_t index) const;

    /// The item that `y` lies in: the first above the column, the last below it. There must be one.
    std::size_t indexAt(double y) const;

private:
    std::vector<double> heights;
    std::vector<double> sums; ///< sums[i] covers the items that end with item i - 1
};

} // namespace tessaline
