// SPDX-License-Identifier: GPL-3.0-or-later
// A widget whose text has a colour of its own, which the editor chooses: readouts, labels.
// [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class IQMTextColour {
public:
    virtual ~IQMTextColour() = default;

    /// Repaints when it changes.
    virtual void setTextColour(juce::Colour colour) = 0;
};
