#include "prompter/layout/HeightIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tessaline {

namespace {

/// How many items the sum at a place in the tree covers.
std::size_t span(std::size_t place) {
    return place & (~place + 1);
}

} // namespace

void HeightIndex::assign(std::vector<double> newHeights) {
    heights = std::move(newHeights);
    sums.assign(heights.size() + 1, 0.0);
    for (std::size_t place = 1; place < sums.size(); ++place) {
        sums[place] += heights[place - 1];
        const std::size_t parent = place + span(place);
        if (parent < sums.size()) sums[parent] += sums[place];
    }
}

void HeightIndex::set(std::size_t index, double height) {
    const double change = height - heights[index];
    heights[index] = height;
    for (std::size_t place = index + 1; place < sums.size(); place += span(place))
        sums[place] += change;
}

double HeightIndex::topOf(std::size_t index) const {
    double sum = 0.0;
    for (std::size_t place = index; place > 0; place -= span(place))
        sum += sums[place];
    return sum;
}

std::size_t HeightIndex::indexAt(double y) const {
    std::size_t place = 0;
    for (std::size_t step = std::bit_floor(heights.size()); step > 0; step /= 2) {
        if (place + step <= heights.size() && sums[place + step] <= y) {
            place += step;
            y -= sums[place];
        }
    }
    return std::min(place, heights.size() - 1);
}

} // namespace tessaline
