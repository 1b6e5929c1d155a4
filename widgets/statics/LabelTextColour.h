// SPDX-License-Identifier: GPL-3.0-or-later
// The colour of labels and of what else draws text in the same way: one for the whole process while
// there is one, else the widget's own, else what is legible on the panel. [message thread]
#pragma once

#include "widgets/base/QMColorSource.h"

#include <optional>

class LabelTextColour {
public:
    /// Widgets see it when they next paint. Nothing takes it away.
    static void setOverride(std::optional<juce::Colour> colour) { overriding() = colour; }

    [[nodiscard]] static std::optional<juce::Colour> getOverride() { return overriding(); }

    /// own: the widget's own colour, if it has one.
    [[nodiscard]] static juce::Colour of(const QMColorSource& source,
                                         const std::optional<juce::Colour>& own = {}) {
        if (overriding())
            return *overriding();
        return own ? *own : source.getContrastColourStrong();
    }

private:
    static std::optional<juce::Colour>& overriding() {
        static std::optional<juce::Colour> colour;
        return colour;
    }
};
