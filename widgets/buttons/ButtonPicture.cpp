// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/ButtonPicture.h"

#include "widgets/images/ImageReduction.h"
#include "widgets/images/ResourceImages.h"

#include <utility>

ButtonPicture::ButtonPicture(juce::Image newImage)
    : image(std::move(newImage)) {}

ButtonPicture::ButtonPicture(const char* fileName)
    : image(loadResourceImage(fileName)) {}

void ButtonPicture::draw(juce::Graphics& g, juce::Rectangle<int> area, float opacity) {
    if (image.isNull() || area.isEmpty())
        return;
    // In the screen's own pixels.
    const double scale = static_cast<double>(g.getInternalContext().getPhysicalPixelScaleFactor());
    const double factorX = area.getWidth() * scale / image.getWidth();
    const double factorY = area.getHeight() * scale / image.getHeight();
    const bool smaller = factorX < 1.0 && factorY < 1.0;
    if (smaller && (reduced.getWidth() != reducedLength(image.getWidth(), factorX) ||
                    reduced.getHeight() != reducedLength(image.getHeight(), factorY)))
        reduced = reduceImage(image, factorX, factorY);
    const juce::Image& drawn = smaller ? reduced : image;
    g.setColour(juce::Colours::black.withAlpha(opacity));
    g.drawImage(drawn, area.toFloat());
}
