// SPDX-License-Identifier: GPL-3.0-or-later
// How far along its travel a control stands for a plain value, and the reverse. Apart from any
// widget, so that it can be read and tested alone.
#pragma once

#include <cstdint>

struct ControlTaper {
    static constexpr std::uint32_t linear = 0;
    static constexpr std::uint32_t logarithmic = 1;
    static constexpr std::uint32_t stretchedLogarithmic = 2;
    /// As the one before, but forwards divides the minimum by the factor as well: the inverse of
    /// its own inverse for a minimum of 0 alone. Kept as it is, for the sake of designs tuned by
    /// it.
    static constexpr std::uint32_t stretchedFromZero = 3;
    static constexpr std::uint32_t power = 4;

    std::uint32_t mode = linear; ///< any other number answers 0 to everything
    double minimum = 0.0;
    double maximum = 1.0;
    double factor = 1.0; ///< k of the stretched logarithms and of the power

    /// The plain value at a position of 0 to 1. Never NaN: a range that the mode's formula means
    /// nothing for (logarithms across 0, say) is linear, one that is not finite is the end of it
    /// that is, else 0. [any thread]
    [[nodiscard]] double plainAt(double position) const;

    /// The position of a plain value, below 0 and above 1 for one outside the range. Never NaN: 0
    /// for a range without extent and for what has no position. [any thread]
    [[nodiscard]] double positionOf(double plain) const;

private:
    [[nodiscard]] bool hasFormula() const;
};
