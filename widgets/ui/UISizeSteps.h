// SPDX-License-Identifier: GPL-3.0-or-later
// The sizes of an editor: the three that its size selector offers, what is kept of them in the
// preferences, and the steps of a magnification menu. [any thread]
#pragma once

#include <juce_core/juce_core.h>

#include <array>
#include <cstdint>
#include <vector>

namespace UISizeSteps {

/// Of the selector's items, in their order. They bring an editor drawn for 115 pixels an inch to
/// the sizes of the texts.
constexpr std::array<double, 3> factors{0.7203390, 0.8474576, 1.0};

/// An editor that nobody ever resized.
constexpr std::int32_t defaultPercent = 120;

[[nodiscard]] juce::StringArray itemTexts();

/// Whole percent of an item, the rest cut off; items out of range count on round the end.
[[nodiscard]] std::int32_t percentOfItem(std::int32_t item);

/// What a number in the preferences means: small ones are items, others are percent. A negative one
/// was never written and counts as none.
[[nodiscard]] std::int32_t percentOfStored(std::int32_t stored);

/// first, first + step, ... last; percent.
[[nodiscard]] std::vector<std::int32_t> percents(std::int32_t first, std::int32_t last,
                                                 std::int32_t step);

} // namespace UISizeSteps
