// SPDX-License-Identifier: GPL-3.0-or-later
// From the design units of layout tables to pixels and back. [any thread]
#pragma once

#include <juce_graphics/juce_graphics.h>

namespace WidgetPlacement {

/// Each edge by itself to the nearest pixel, so that areas that touch in the design touch on the
/// screen.
[[nodiscard]] juce::Rectangle<int> scaled(juce::Rectangle<int> design, float magnification);

/// The smallest design area that holds the pixels.
[[nodiscard]] juce::Rectangle<int> unscaled(juce::Rectangle<int> pixels, float magnification);

} // namespace WidgetPlacement
