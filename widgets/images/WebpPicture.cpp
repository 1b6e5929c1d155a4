// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/WebpPicture.h"

#include <webp/decode.h>

#include <bit>
#include <cstring>

// Blue comes first in memory, in libwebp's BGRA and in the toolkit's pixels.
static_assert(std::endian::native == std::endian::little);
static_assert(sizeof(juce::PixelARGB) == 4);

bool isWebp(std::span<const std::uint8_t> data) {
    return data.size() >= 12 && std::memcmp(data.data(), "RIFF", 4) == 0 &&
           std::memcmp(data.data() + 8, "WEBP", 4) == 0;
}

std::optional<WebpSize> sizeOfWebp(std::span<const std::uint8_t> data) {
    WebPBitstreamFeatures features{};
    if (WebPGetFeatures(data.data(), data.size(), &features) != VP8_STATUS_OK ||
        features.has_animation != 0)
        return std::nullopt;
    return WebpSize{.width = features.width, .height = features.height};
}

juce::Image readWebp(std::span<const std::uint8_t> data, WebpSize size) {
    juce::Image image(juce::Image::ARGB, size.width, size.height, false);
    const juce::Image::BitmapData pixels(image, juce::Image::BitmapData::writeOnly);
    const auto room =
        static_cast<std::size_t>(pixels.lineStride) * static_cast<std::size_t>(size.height);
    WebPDecoderConfig config;
    if (WebPInitDecoderConfig(&config) == 0)
        return {};
    config.output.colorspace = MODE_bgrA; // colours times opacity, as the toolkit has them
    config.output.is_external_memory = 1;
    config.output.u.RGBA.rgba = pixels.data;
    config.output.u.RGBA.stride = pixels.lineStride;
    config.output.u.RGBA.size = room;
    if (WebPDecode(data.data(), data.size(), &config) != VP8_STATUS_OK)
        return {};
    return image;
}
