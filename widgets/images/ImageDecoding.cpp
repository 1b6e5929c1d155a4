// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/ImageDecoding.h"

#include "widgets/images/PngStructure.h"
#include "widgets/images/WebpPicture.h"

#include <optional>
#include <utility>

namespace {

using Bytes = std::span<const std::uint8_t>;

bool isTooLarge(std::int64_t width, std::int64_t height) {
    return width > ImageLimits::side || height > ImageLimits::side ||
           width * height * 4 > ImageLimits::decodedBytes;
}

DecodedImage refused(const char* problem) {
    return {.image = {}, .problem = problem};
}

DecodedImage unlessNull(juce::Image image) {
    if (image.isNull())
        return refused("damaged");
    return {.image = std::move(image), .problem = nullptr};
}

DecodedImage decodePng(Bytes data) {
    const std::optional<PngSize> size = sizeOfWholePng(data);
    if (!size)
        return refused("damaged");
    if (isTooLarge(size->width, size->height))
        return refused("too large");
    juce::MemoryInputStream stream(data.data(), data.size(), false);
    return unlessNull(juce::PNGImageFormat().decodeImage(stream));
}

DecodedImage decodeWebp(Bytes data) {
    const std::optional<WebpSize> size = sizeOfWebp(data);
    if (!size)
        return refused("damaged");
    if (isTooLarge(size->width, size->height))
        return refused("too large");
    return unlessNull(readWebp(data, *size));
}

} // namespace

DecodedImage decodeImage(Bytes data) {
    if (isPng(data))
        return decodePng(data);
    if (isWebp(data))
        return decodeWebp(data);
    return refused("neither PNG nor WebP");
}
