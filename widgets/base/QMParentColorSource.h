// SPDX-License-Identifier: GPL-3.0-or-later
// The colour source at the top of a panel; every widget below it draws in its colours.
// [message thread]
#pragma once

#include "widgets/base/QMColorSource.h"

class QMParentColorSource : public QMColorSource {
public:
    [[nodiscard]] juce::Colour getBaseColour() const override { return baseColour; }

    /// Widgets see it when they next paint.
    void setBaseColour(juce::Colour colour) { baseColour = colour; }

private:
    juce::Colour baseColour{87, 87, 87};
};
