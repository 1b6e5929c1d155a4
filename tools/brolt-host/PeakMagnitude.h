// SPDX-License-Identifier: GPL-3.0-or-later
//
// The highest magnitude of a stream of samples.

#pragma once

#include <cstddef>
#include <cstdint>

/// A sample that is not a number counts as more than infinite, so that one cannot hide.
class PeakMagnitude {
public:
    /// [any thread]
    void note(const float* samples, std::size_t count);

    /// 0 before the first sample. [any thread]
    [[nodiscard]] float value() const;

private:
    std::int32_t highest = 0; ///< bits of a magnitude: they are in the order of the magnitudes
};
