// SPDX-License-Identifier: GPL-3.0-or-later
// A strip of shadow over what is below it: from black at 0.4 to nothing, across the strip. A strip
// that is wider than high fades vertically, any other horizontally. The mouse goes through it.
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMShadower : public juce::Component {
public:
    /// The edge where the shadow is dark.
    enum class DarkEdge {
        topOrLeft,
        bottomOrRight,
    };

    static constexpr float darkestOpacity = 0.4F;

    /// [message thread]
    explicit QMShadower(DarkEdge edge = DarkEdge::topOrLeft);

    /// [message thread]
    void setDarkEdge(DarkEdge edge);

    [[nodiscard]] DarkEdge darkEdge() const { return dark; }

    void paint(juce::Graphics& g) override;

private:
    DarkEdge dark;
};
