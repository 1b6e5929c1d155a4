// SPDX-License-Identifier: GPL-3.0-or-later
// Where a widget's colours come from: one base colour, and what is legible on it. A panel is
// re-coloured at one place, its colour source. [message thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

class QMColorSource {
public:
    virtual ~QMColorSource() = default;

    [[nodiscard]] virtual juce::Colour getBaseColour() const = 0;

    /// For ordinary text. This and the two below are black on a bright base and white on a dark
    /// one, by perceived brightness, laid over the base at 0.85, 1 and 0.5.
    [[nodiscard]] virtual juce::Colour getContrastColour() const {
        return getBaseColour().contrasting(0.85f);
    }

    [[nodiscard]] virtual juce::Colour getContrastColourStrong() const {
        return getBaseColour().contrasting(1.0f);
    }

    [[nodiscard]] virtual juce::Colour getContrastColourWeak() const {
        return getBaseColour().contrasting(0.5f);
    }
};
