// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/AxisReduction.h"

#include <algorithm>

AxisReduction::AxisReduction(int length, double factor)
    : sourceLength(length)
    , scale(factor * unit) {
    const int destinationLength = reducedLength(length, factor);
    // One pixel for what is less than one: it takes the whole axis.
    if (length * scale < unit)
        scale = static_cast<double>(unit) / length;
    starts.reserve(static_cast<std::size_t>(destinationLength));
    weights.reserve(static_cast<std::size_t>(length) +
                    2 * static_cast<std::size_t>(destinationLength));
    int source = 0;
    for (int destination = 0; destination < destinationLength; ++destination)
        addCover(destination, source);
}

int AxisReduction::reducedLength(int length, double factor) {
    return std::max(1, static_cast<int>(length * factor));
}

AxisReduction::Cover AxisReduction::operator[](int destination) const {
    const Start& start = starts[static_cast<std::size_t>(destination)];
    return {.first = start.firstSource,
            .weights = std::span(weights).subspan(start.firstWeight, start.count)};
}

/// source is the first pixel that reaches into this destination pixel, and becomes that of the
/// next.
void AxisReduction::addCover(int destination, int& source) {
    const std::int64_t begin = std::int64_t{destination} * unit;
    const std::int64_t end = begin + unit;
    Start start{.firstSource = source, .firstWeight = weights.size(), .count = 0};
    while (true) {
        const std::int64_t from = std::max(edge(source), begin);
        const std::int64_t to = edge(source + 1);
        weights.push_back(static_cast<std::int16_t>(std::min(to, end) - from));
        if (to > end)
            break;
        ++source;
        if (to == end)
            break;
    }
    if ((weights.size() - start.firstWeight) % 2 != 0)
        weights.push_back(0);
    start.count = weights.size() - start.firstWeight;
    starts.push_back(start);
}

/// Where a source pixel begins. Multiplied out and not added up: what is cut off of each would add
/// up too, and a strip of frames would slip by a pixel towards its end.
std::int64_t AxisReduction::edge(int source) const {
    // Rounding of the product must not take the last destination pixel's last unit.
    constexpr double tiny = 1e-6;
    if (source > sourceLength)
        return edge(sourceLength);
    return static_cast<std::int64_t>(source * scale + tiny);
}
