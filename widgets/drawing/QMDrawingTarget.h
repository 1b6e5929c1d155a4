// SPDX-License-Identifier: GPL-3.0-or-later
// Something to draw on, in two dimensions: what a widget draws with when it should not matter where
// to. Coordinates are pixels before the transform; y points downwards. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class QMDrawingTarget {
public:
    virtual ~QMDrawingTarget() = default;

    /// Colour, opacity, font, clip and transform. Pairs nest; restoring more than was saved does
    /// nothing.
    virtual void saveState() = 0;
    virtual void restoreState() = 0;

    /// For everything but images. Black at first.
    virtual void setColour(juce::Colour colour) = 0;
    /// 0 to 1, times the colour's own alpha, and for images. 1 at first.
    virtual void setOpacity(float opacity) = 0;
    virtual void setFont(const juce::Font& font) = 0;
    /// Applies to what is drawn, before the transforms there are.
    virtual void addTransform(const juce::AffineTransform& transform) = 0;

    /// Nothing outside is drawn any more. False when nothing is left.
    virtual bool clipToRectangle(juce::Rectangle<int> area) = 0;
    virtual bool clipToPath(const juce::Path& path) = 0;
    [[nodiscard]] virtual juce::Rectangle<int> clipBounds() const = 0;

    /// All that the clip leaves.
    virtual void fillAll() = 0;
    virtual void drawLine(juce::Line<float> line, float thickness) = 0;
    /// The frame lies inside the rectangle.
    virtual void drawRectangle(juce::Rectangle<float> area, float thickness) = 0;
    virtual void fillRectangle(juce::Rectangle<float> area) = 0;
    virtual void strokePath(const juce::Path& path, float thickness) = 0;
    virtual void fillPath(const juce::Path& path) = 0;
    /// One line; what does not fit ends in dots.
    virtual void drawText(const juce::String& text, juce::Rectangle<float> area,
                          juce::Justification justification) = 0;
    /// Stretched to fill the area.
    virtual void drawImage(const juce::Image& image, juce::Rectangle<float> area) = 0;
};
