// SPDX-License-Identifier: GPL-3.0-or-later
// A look at a PNG picture before the toolkit reads it. The toolkit's reader does not notice that
// its data end: libpng then goes on with whatever its buffer holds, possibly for ever.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

struct PngSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

/// By its first bytes. [any thread]
[[nodiscard]] bool isPng(std::span<const std::uint8_t> data);

/// The size in its header; nothing unless its chunks follow each other to the one that ends it.
/// Their content and check sums are left to the reader. [any thread]
[[nodiscard]] std::optional<PngSize> sizeOfWholePng(std::span<const std::uint8_t> data);
