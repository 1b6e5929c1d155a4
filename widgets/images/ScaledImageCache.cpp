// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/ScaledImageCache.h"

#include "widgets/images/ImageReduction.h"
#include "widgets/images/ResourceImages.h"

namespace {

juce::int64 keyOf(const juce::String& name, int width, int height) {
    return (name + juce::String(width) + "x" + juce::String(height)).hashCode64();
}

} // namespace

juce::Image scaledImage(const juce::String& name, const juce::Image& image, double factorX,
                        double factorY) {
    if (image.isNull() || factorX >= 1.0 || factorY >= 1.0)
        return image;
    if (!(factorX > 0.0) || !(factorY > 0.0))
        return {};
    const juce::int64 key = keyOf(name, reducedLength(image.getWidth(), factorX),
                                  reducedLength(image.getHeight(), factorY));
    const juce::Image known = juce::ImageCache::getFromHashCode(key);
    if (known.isValid())
        return known;
    const juce::Image made = reduceImage(image, factorX, factorY);
    juce::ImageCache::addImageToCache(made, key);
    return made;
}

juce::Image scaledResourceImage(const juce::String& name, double factor) {
    return scaledImage(name, loadResourceImage(name), factor, factor);
}
