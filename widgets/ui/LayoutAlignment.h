// SPDX-License-Identifier: GPL-3.0-or-later
// Lining up selected widgets in the designers' layout mode. Sizes stay. [any thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <optional>
#include <vector>

enum class LayoutAlignment {
    tops,              ///< to the smallest
    bottoms,           ///< to the largest
    lefts,             ///< to the smallest
    rights,            ///< to the largest
    horizontalCentres, ///< to their average
    verticalCentres    ///< to their average
};

/// Areas of the design. None is nothing to do.
void align(std::vector<juce::Rectangle<int>>& areas, LayoutAlignment alignment);

/// Arrows, "|" and "-" with Alt held.
[[nodiscard]] std::optional<LayoutAlignment> alignmentOfKey(const juce::KeyPress& key);
