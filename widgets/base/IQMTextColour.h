// SPDX-License-Identifier: GPL-3.0-or-later
// A widget whose text has a colour of its own, which the editor chooses: readouts, labels.
// [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <optional>

class IQMTextColour {
public:
    virtual ~IQMTextColour() = default;

    /// Nothing for the colour source's. Repaints when it changes.
    virtual void setTextColour(std::optional<juce::Colour> colour) = 0;
};
