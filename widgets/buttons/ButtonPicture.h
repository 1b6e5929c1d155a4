// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that a button is drawn with. Kept in the size it was last drawn in, when that is
// smaller than its own. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class ButtonPicture {
public:
    /// None.
    ButtonPicture() = default;
    explicit ButtonPicture(juce::Image newImage);

    /// A file of the resource folder.
    explicit ButtonPicture(const char* fileName);

    /// Whether there is one.
    [[nodiscard]] bool isValid() const { return image.isValid(); }

    /// Over the whole area, whatever its shape. Nothing where there is none.
    void draw(juce::Graphics& g, juce::Rectangle<int> area, float opacity);

private:
    juce::Image image;
    juce::Image reduced; ///< null until it is needed
};
