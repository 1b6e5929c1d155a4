// SPDX-License-Identifier: GPL-3.0-or-later
//
// How samples stand in a rendered file, and the step from single precision to whole numbers. The
// step is ours and not the sound file library's, so that it has the same bits everywhere.

#pragma once

#include <cstddef>
#include <cstdint>

enum class SampleEncoding {
    float32, ///< as the processor gave them
    pcm24,
    pcm16,
};

/// [any thread]
constexpr int bytesPerSample(SampleEncoding encoding) {
    switch (encoding) {
    case SampleEncoding::pcm24:
        return 3;
    case SampleEncoding::pcm16:
        return 2;
    default:
        return 4;
    }
}

/// Rounds samples of full scale 1 to the nearest whole number of `bits` bits (24 or 16; halves to
/// even), without dither, and puts it at the top of a 32-bit word. A sample beyond full scale
/// becomes the largest number, one that is not a number 0. Answers how many these were.
/// [any thread]
std::int64_t toWholeNumbers(const float* samples, std::int32_t* words, std::size_t count, int bits);
