// SPDX-License-Identifier: GPL-3.0-or-later
// Reading WebP pictures, which the toolkit cannot.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

struct WebpSize {
    int width = 0;
    int height = 0;
};

/// By its first bytes. [any thread]
[[nodiscard]] bool isWebp(std::span<const std::uint8_t> data);

/// Nothing when the header is damaged, or tells of an animation. [any thread]
[[nodiscard]] std::optional<WebpSize> sizeOfWebp(std::span<const std::uint8_t> data);

/// An ARGB image with the toolkit's own premultiplication, whether or not the picture has alpha.
/// Null when the data are damaged or cut off. [any thread]
[[nodiscard]] juce::Image readWebp(std::span<const std::uint8_t> data, WebpSize size);
