// SPDX-License-Identifier: GPL-3.0-or-later
// How one axis of an image is reduced: which source pixels each destination pixel covers, and how
// much of each. In 1/1024 of a destination pixel, so that each one's weights add up to 1024.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class AxisReduction {
public:
    static constexpr int weightBits = 10;
    static constexpr int unit = 1 << weightBits;

    /// What one destination pixel covers: as many source pixels as it has weights. Their number is
    /// even: a weight of 0 is added where it would not be, for a source pixel that may not exist.
    struct Cover {
        int first = 0;
        std::span<const std::int16_t> weights;
    };

    /// length source pixels, at least 1; 0 < factor < 1. [any thread]
    AxisReduction(int length, double factor);

    /// length x factor, truncated, but at least 1. [any thread]
    static int reducedLength(int length, double factor);

    [[nodiscard]] int length() const { return static_cast<int>(starts.size()); }

    [[nodiscard]] Cover operator[](int destination) const;

private:
    struct Start {
        int firstSource = 0;
        std::size_t firstWeight = 0;
        std::size_t count = 0;
    };

    void addCover(int destination, int& source);
    [[nodiscard]] std::int64_t edge(int source) const;

    int sourceLength;
    double scale; ///< destination pixels to a source pixel, in units
    std::vector<Start> starts;
    std::vector<std::int16_t> weights;
};
