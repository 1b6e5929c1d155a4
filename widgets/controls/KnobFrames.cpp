// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/KnobFrames.h"

#include "widgets/images/ImageReduction.h"

#include <cmath>

void KnobFrames::setImage(const juce::Image& newImage, std::int32_t count) {
    image = newImage;
    frameCount = count;
    columns = gridColumns;
    rows = gridRows;
    frameWidth = image.getWidth() / gridColumns;
    frameHeight = image.getHeight() / gridRows;
    gridFlag = true;
    // Too small to hold the grid.
    if (frameWidth == 0 || frameHeight == 0)
        image = {};
    reduced = {};
}

void KnobFrames::setArrangement(std::int32_t newColumns, std::int32_t newRows, bool newGridFlag) {
    columns = newColumns;
    rows = newRows;
    gridFlag = newGridFlag;
    reduced = {};
    const bool isGrid = columns >= 2 && rows >= 2;
    const std::int32_t count = juce::jmax(1, frameCount);
    frameWidth = image.getWidth() / (isGrid ? columns : (gridFlag ? count : 1));
    frameHeight = image.getHeight() / (isGrid ? rows : (gridFlag ? 1 : count));
    if (frameWidth == 0 || frameHeight == 0)
        image = {};
}

std::int32_t KnobFrames::frameOf(float value) const {
    if (frameCount < 1 || std::isnan(value))
        return 0;
    const float lastFrame = static_cast<float>(frameCount - 1);
    return static_cast<std::int32_t>(juce::jlimit(0.0f, lastFrame, std::round(lastFrame * value)));
}

juce::Rectangle<int> KnobFrames::areaOf(std::int32_t frame) const {
    std::int32_t column = 0;
    std::int32_t row = 0;
    if (columns >= 2 && rows >= 2) {
        column = gridFlag ? frame % columns : frame / rows;
        row = gridFlag ? frame / columns : frame % rows;
    } else if (gridFlag) {
        column = frame;
    } else {
        row = frame;
    }
    return {column * frameWidth, row * frameHeight, frameWidth, frameHeight};
}

void KnobFrames::draw(juce::Graphics& g, std::int32_t frame, juce::Rectangle<int> area) {
    const juce::Rectangle<int> source = areaOf(frame);
    if (!hasImage() || area.isEmpty())
        return;
    const double pixels = g.getInternalContext().getPhysicalPixelScaleFactor();
    const double factor = juce::jmin(area.getWidth() * pixels / source.getWidth(),
                                     area.getHeight() * pixels / source.getHeight());
    g.setOpacity(1.0f);
    if (!(factor < 1.0)) {
        g.setImageResamplingQuality(juce::Graphics::highResamplingQuality);
        g.drawImage(image, area.getX(), area.getY(), area.getWidth(), area.getHeight(),
                    source.getX(), source.getY(), source.getWidth(), source.getHeight());
        return;
    }
    if (reduced.isNull() || reducedFrame != frame || reducedBy != factor) {
        reduced = reduceImage(image.getClippedImage(source), factor);
        reducedFrame = frame;
        reducedBy = factor;
    }
    g.drawImageTransformed(
        reduced, juce::AffineTransform::scale(static_cast<float>(1.0 / pixels))
                     .translated(static_cast<float>(area.getX()), static_cast<float>(area.getY())));
}
