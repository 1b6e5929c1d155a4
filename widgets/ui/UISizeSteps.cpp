// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/UISizeSteps.h"

namespace UISizeSteps {

juce::StringArray itemTexts() {
    return {"Small UI (82 ppi)", "Medium UI (97 ppi)", "Large UI (115 ppi)"};
}

std::int32_t percentOfItem(std::int32_t item) {
    constexpr auto count = static_cast<std::int32_t>(factors.size());
    const std::int32_t wrapped = (item % count + count) % count;
    return static_cast<std::int32_t>(factors.at(static_cast<std::size_t>(wrapped)) * 100.0);
}

std::int32_t percentOfStored(std::int32_t stored) {
    if (stored < 0)
        return defaultPercent;
    if (stored < static_cast<std::int32_t>(factors.size()))
        return percentOfItem(stored);
    return stored;
}

std::vector<std::int32_t> percents(std::int32_t first, std::int32_t last, std::int32_t step) {
    std::vector<std::int32_t> steps;
    for (std::int32_t percent = first; step > 0 && percent <= last; percent += step)
        steps.push_back(percent);
    return steps;
}

} // namespace UISizeSteps
