// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/tests/support/PictureDifference.h"

#include <gtest/gtest.h>

PictureDifference differenceOf(const juce::Image& one, const juce::Image& other,
                               const juce::RectangleList<int>& places) {
    PictureDifference difference;
    EXPECT_EQ(one.getBounds(), other.getBounds());
    if (one.getBounds() != other.getBounds())
        return difference;
    const juce::Image::BitmapData first(one, juce::Image::BitmapData::readOnly);
    const juce::Image::BitmapData second(other, juce::Image::BitmapData::readOnly);
    for (int y = 0; y < one.getHeight(); ++y) {
        for (int x = 0; x < one.getWidth(); ++x) {
            if (first.getPixelColour(x, y) == second.getPixelColour(x, y))
                continue;
            if (places.containsPoint(x, y)) {
                ++difference.inside;
                continue;
            }
            const juce::Rectangle<int> pixel(x, y, 1, 1);
            difference.strays = difference.outside == 0 ? pixel : difference.strays.getUnion(pixel);
            ++difference.outside;
        }
    }
    return difference;
}
