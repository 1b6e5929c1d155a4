// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/WidgetColours.h"

namespace WidgetColours {

const std::array<juce::Colour, paletteSize>& palette() {
    static const std::array<juce::Colour, paletteSize> colours = {
        juce::Colour(50, 69, 83),    juce::Colour(8, 25, 39),     juce::Colour(72, 72, 72),
        juce::Colour(121, 135, 144), juce::Colour(121, 135, 144), juce::Colour(38, 57, 71),
        juce::Colour(255, 255, 255), juce::Colour(179, 187, 188), juce::Colour(8, 25, 39)};
    return colours;
}

std::array<juce::Colour, derivedSize> derivedColours() {
    return {palette()[panel].brighter(0.25F), palette()[panel].darker(0.35F),
            palette()[highlight].withAlpha(0.5F), palette()[text].withAlpha(0.45F)};
}

juce::Colour fromHexText(const juce::String& hex) {
    const juce::Colour colour = juce::Colour::fromString(hex);
    return hex.length() > 6 ? colour : colour.withAlpha(1.0F);
}

} // namespace WidgetColours
