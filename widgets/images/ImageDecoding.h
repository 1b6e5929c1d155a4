// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures out of their bytes, PNG or WebP, told by their content. Nothing else is read. The
// toolkit would read JPEG too, but its reader ends the process when a file is cut off.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace ImageLimits {
constexpr std::int64_t side = 16384;                     ///< pixels, of width and of height
constexpr std::int64_t decodedBytes = 256 * 1024 * 1024; ///< four to a pixel
constexpr std::int64_t fileBytes = decodedBytes;
} // namespace ImageLimits

struct DecodedImage {
    juce::Image image;             ///< null when it could not be had
    const char* problem = nullptr; ///< why, for the log; null when there is none
};

/// [any thread]
[[nodiscard]] DecodedImage decodeImage(std::span<const std::uint8_t> data);
