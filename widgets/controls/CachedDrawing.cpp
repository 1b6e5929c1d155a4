// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/CachedDrawing.h"

#include <cmath>

void CachedDrawing::draw(juce::Graphics& g, juce::Rectangle<int> area, const Painter& paint) {
    if (area.isEmpty())
        return;
    const float scaleNow = g.getInternalContext().getPhysicalPixelScaleFactor();
    const juce::Point<int> sizeNow(area.getWidth(), area.getHeight());
    if (image.isNull() || sizeNow != size || scaleNow != scale) {
        size = sizeNow;
        scale = scaleNow;
        const auto pixels = [this](int length) {
            return juce::jmax(1, static_cast<int>(std::ceil(static_cast<float>(length) * scale)));
        };
        image = juce::Image(juce::Image::ARGB, pixels(size.x), pixels(size.y), true);
        juce::Graphics drawing(image);
        drawing.addTransform(juce::AffineTransform::scale(scale));
        paint(drawing);
    }
    // Images take the opacity of the colour.
    g.setOpacity(1.0f);
    g.drawImageTransformed(
        image, juce::AffineTransform::scale(1.0f / scale)
                   .translated(static_cast<float>(area.getX()), static_cast<float>(area.getY())));
}
