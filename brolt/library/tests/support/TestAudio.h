// SPDX-License-Identifier: GPL-3.0-or-later
// Audio of the tests: strokes of noise that the processor answers with tones, and comparisons that
// see every bit.
#pragma once

#include <gtest/gtest.h>

#include <vector>

/// Channel by channel, each with the same number of samples.
using Audio = std::vector<std::vector<float>>;

/// The same on every platform; `start` makes different material.
[[nodiscard]] Audio testAudio(int channels, int frames, unsigned start = 1);

/// Frames from `first` on.
[[nodiscard]] Audio partOf(const Audio& audio, std::size_t first, std::size_t frames);

/// Puts audio behind other audio.
void append(Audio& audio, const Audio& more);

/// Equal bit by bit; else says where the first difference is.
[[nodiscard]] ::testing::AssertionResult sameBits(const Audio& a, const Audio& b);
