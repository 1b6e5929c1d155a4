// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/appearance/EditorBackground.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

struct BrushedMetal {
    const char* imageName;
    float shade; ///< grey level, 0 to 1
    const char* tag;
};

constexpr std::array brushedMetals{BrushedMetal{"UIBackground.png", 0.51F, "uib"},
                                   BrushedMetal{"UIBackgroundDark.png", 0.3F, "uibd"}};

/// Null for the modes without a picture.
const BrushedMetal* metalOf(std::int32_t mode) {
    const auto index = static_cast<std::size_t>(mode);
    return index < brushedMetals.size() ? &brushedMetals[index] : nullptr;
}

juce::Colour middleOf(juce::Colour one, juce::Colour other) {
    const auto mean = [](int a, int b) { return static_cast<std::uint8_t>((a + b) / 2); };
    return {mean(one.getRed(), other.getRed()), mean(one.getGreen(), other.getGreen()),
            mean(one.getBlue(), other.getBlue())};
}

template <typename Value>
bool replace(Value& value, const Value& by) {
    return std::exchange(value, by) != by;
}

} // namespace

bool EditorBackground::setMode(std::int32_t newMode, const ImageLoader& load) {
    if (newMode == mode || !isMode(newMode))
        return false;
    mode = newMode;
    drawn = {};
    const BrushedMetal* const metal = metalOf(mode);
    image = metal == nullptr ? juce::Image() : load(metal->imageName);
    return true;
}

bool EditorBackground::setBaseColour(juce::Colour colour) {
    return replace(baseColour, colour.withAlpha(1.0F)) && isDrawn();
}

bool EditorBackground::setTopBrightness(float brightness) {
    return replace(topBrightness,
                   AppearanceLimits::limited(brightness, AppearanceLimits::brightness)) &&
           mode >= gradientColour;
}

bool EditorBackground::setBottomBrightness(float brightness) {
    return replace(bottomBrightness,
                   AppearanceLimits::limited(brightness, AppearanceLimits::brightness)) &&
           mode >= gradientColour;
}

juce::String EditorBackground::getImageName() const {
    const BrushedMetal* const metal = metalOf(mode);
    return metal == nullptr ? "" : metal->imageName;
}

juce::String EditorBackground::getTag() const {
    const BrushedMetal* const metal = metalOf(mode);
    return metal == nullptr ? "" : metal->tag;
}

BackgroundGradient EditorBackground::gradient() const {
    return {.top = BackgroundGradient::atBrightness(baseColour, topBrightness),
            .bottom = BackgroundGradient::atBrightness(baseColour, bottomBrightness),
            .hasHighlights = mode == gradientWithHighlights};
}

juce::Colour EditorBackground::getPanelColour() const {
    if (const BrushedMetal* const metal = metalOf(mode))
        return juce::Colour::greyLevel(metal->shade);
    if (mode < gradientColour)
        return baseColour;
    const BackgroundGradient shown = gradient();
    return middleOf(shown.top, shown.bottom);
}

void EditorBackground::draw(juce::Graphics& g, juce::Rectangle<int> area) {
    if (area.isEmpty() || !isDrawn())
        return;
    if (mode == flatColour) {
        g.setColour(baseColour);
        g.fillRect(area);
    } else {
        drawGradient(g, area);
    }
}

void EditorBackground::drawGradient(juce::Graphics& g, juce::Rectangle<int> area) {
    const float scale = g.getInternalContext().getPhysicalPixelScaleFactor();
    const auto pixels = [scale](int length) {
        return std::max(1, static_cast<int>(std::ceil(static_cast<float>(length) * scale)));
    };
    const int width = pixels(area.getWidth());
    const int height = pixels(area.getHeight());
    const BackgroundGradient wanted = gradient();
    if (drawn.getWidth() != width || drawn.getHeight() != height || drawnGradient != wanted) {
        drawn = wanted.image(width, height);
        drawnGradient = wanted;
    }
    // Images take the opacity of the colour.
    g.setOpacity(1.0F);
    g.drawImageTransformed(
        drawn, juce::AffineTransform::scale(1.0F / scale).translated(area.getPosition().toFloat()));
}
