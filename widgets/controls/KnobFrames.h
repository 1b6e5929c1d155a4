// SPDX-License-Identifier: GPL-3.0-or-later
// The frames of a knob in one image, and drawing one of them at any size. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <cstdint>

class KnobFrames {
public:
    static constexpr std::int32_t gridColumns = 16;
    static constexpr std::int32_t gridRows = 17;

    /// A null image has no frames to draw. Deals the image into the usual grid.
    void setImage(const juce::Image& newImage, std::int32_t count);

    /// Other arrangements. With at least two columns and rows, a grid: gridFlag counts along its
    /// rows, else down its columns. Otherwise one strip, from left to right with the flag, else
    /// from top to bottom.
    void setArrangement(std::int32_t newColumns, std::int32_t newRows, bool newGridFlag);

    [[nodiscard]] bool hasImage() const { return image.isValid(); }

    [[nodiscard]] const juce::Image& getImage() const { return image; }

    [[nodiscard]] std::int32_t getFrameCount() const { return frameCount; }

    [[nodiscard]] std::int32_t getColumns() const { return columns; }

    [[nodiscard]] std::int32_t getRows() const { return rows; }

    [[nodiscard]] std::int32_t getFrameWidth() const { return frameWidth; }

    [[nodiscard]] std::int32_t getFrameHeight() const { return frameHeight; }

    /// The frame of a value of 0 to 1; 0 where there is none.
    [[nodiscard]] std::int32_t frameOf(float value) const;
    /// Where a frame is in the image.
    [[nodiscard]] juce::Rectangle<int> areaOf(std::int32_t frame) const;

    /// Larger frames than the screen's pixels are averaged, once while the frame and the size stay.
    void draw(juce::Graphics& g, std::int32_t frame, juce::Rectangle<int> area);

private:
    juce::Image image;
    std::int32_t frameCount = 0;
    std::int32_t columns = gridColumns;
    std::int32_t rows = gridRows;
    std::int32_t frameWidth = 0;
    std::int32_t frameHeight = 0;
    bool gridFlag = true;

    juce::Image reduced;
    std::int32_t reducedFrame = -1;
    double reducedBy = 0.0;
};
