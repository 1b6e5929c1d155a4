// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/WidgetPlacement.h"

#include <cmath>

namespace WidgetPlacement {

juce::Rectangle<int> scaled(juce::Rectangle<int> design, float magnification) {
    const auto toPixels = [magnification](int edge) {
        return static_cast<int>(std::lround(static_cast<float>(edge) * magnification));
    };
    return juce::Rectangle<int>::leftTopRightBottom(
        toPixels(design.getX()), toPixels(design.getY()), toPixels(design.getRight()),
        toPixels(design.getBottom()));
}

juce::Rectangle<int> unscaled(juce::Rectangle<int> pixels, float magnification) {
    const auto down = [magnification](int edge) {
        return static_cast<int>(std::floor(static_cast<float>(edge) / magnification));
    };
    const auto up = [magnification](int edge) {
        return static_cast<int>(std::ceil(static_cast<float>(edge) / magnification));
    };
    return juce::Rectangle<int>::leftTopRightBottom(down(pixels.getX()), down(pixels.getY()),
                                                    up(pixels.getRight()), up(pixels.getBottom()));
}

} // namespace WidgetPlacement
