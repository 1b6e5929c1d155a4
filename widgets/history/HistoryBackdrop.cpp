// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HistoryBackdrop.h"

#include <algorithm>
#include <cmath>

namespace {

/// Rows that strips have in common. Where a strip lies between the screen's pixels its last row is
/// half transparent, and there must be the same picture below it.
constexpr int overlap = 2;

bool isOpaque(const juce::Image::BitmapData& pixels, int row) {
    for (int x = 0; x < pixels.width; ++x) {
        if (!pixels.getPixelColour(x, row).isOpaque())
            return false;
    }
    return true;
}

/// Around the middle; empty where the middle is transparent somewhere.
juce::Range<int> opaqueRows(const juce::Image& image) {
    const juce::Image::BitmapData pixels(image, juce::Image::BitmapData::readOnly);
    const int middle = pixels.height / 2;
    int first = middle;
    while (first > 0 && isOpaque(pixels, first - 1))
        --first;
    int end = middle;
    while (end < pixels.height && isOpaque(pixels, end))
        ++end;
    return end > middle ? juce::Range<int>(first, end) : juce::Range<int>();
}

} // namespace

void HistoryBackdrop::draw(juce::Graphics& g, juce::Rectangle<int> area, const Painter& paint) {
    if (area.isEmpty())
        return;
    const float scaleNow = g.getInternalContext().getPhysicalPixelScaleFactor();
    const juce::Point<int> sizeNow(area.getWidth(), area.getHeight());
    if (strips.empty() || sizeNow != size || scaleNow != scale) {
        size = sizeNow;
        scale = scaleNow;
        cut(wholeImage(paint));
    }
    // Images take the opacity of the colour.
    g.setOpacity(1.0f);
    for (const Strip& strip : strips) {
        const float y = static_cast<float>(strip.firstRow) / scale;
        g.drawImageTransformed(strip.image, juce::AffineTransform::scale(1.0f / scale)
                                                .translated(static_cast<float>(area.getX()),
                                                            static_cast<float>(area.getY()) + y));
    }
}

juce::Image HistoryBackdrop::wholeImage(const Painter& paint) const {
    const auto pixels = [this](int length) {
        return std::max(1, static_cast<int>(std::ceil(static_cast<float>(length) * scale)));
    };
    juce::Image image(juce::Image::ARGB, pixels(size.x), pixels(size.y), true);
    juce::Graphics g(image);
    g.addTransform(juce::AffineTransform::scale(scale));
    paint(g);
    return image;
}

void HistoryBackdrop::cut(const juce::Image& whole) {
    strips.clear();
    const auto rows = [&whole](int first, int end) {
        return whole.getClippedImage({0, first, whole.getWidth(), end - first});
    };
    const int height = whole.getHeight();
    const juce::Range<int> opaque = opaqueRows(whole);
    if (opaque.isEmpty()) {
        strips.push_back({whole, 0});
        return;
    }
    if (opaque.getStart() > 0)
        strips.push_back({rows(0, std::min(opaque.getStart() + overlap, height)).createCopy(), 0});
    if (opaque.getEnd() < height) {
        const int first = std::max(opaque.getEnd() - overlap, 0);
        strips.push_back({rows(first, height).createCopy(), first});
    }
    strips.push_back({rows(opaque.getStart(), opaque.getEnd()).convertedToFormat(juce::Image::RGB),
                      opaque.getStart()});
}
