// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/appearance/AppearanceGroup.h"

#include "services/preferences/EditorPreferences.h"
#include "widgets/ui/appearance/AppearanceKeys.h"
#include "widgets/ui/appearance/AppearanceLimits.h"

#include <utility>

namespace {

namespace Keys = AppearanceKeys;
namespace Limits = AppearanceLimits;
using QM::PreferenceColour;
using QM::PreferenceItem;
using Items = std::vector<PreferenceItem>;
using Options = std::vector<QM::PreferenceOption>;

Options hideAndShow() {
    return {{"Hide", 0.0F}, {"Show", 1.0F}};
}

Options backgroundModes() {
    return {{"Light Brushed", 0.0F},
            {"Dark Brushed", 1.0F},
            {"Flat Color", 2.0F},
            {"Gradient Color", 3.0F},
            {"Grad w/Hits", 4.0F}};
}

/// In the order of the menu, which is not that of the numbers.
Options knobTypes() {
    return {{"Light Knurled", 1.0F},
            {"Medium Knurled", 0.0F},
            {"Dark Knurled", 2.0F},
            {"Dark Brushed Knob", 6.0F},
            {"Chickenhead Knob", 8.0F},
            {"ChannelStrip Knob", 10.0F},
            {"-", -2.0F},
            {"No Knob", -1.0F}};
}

void addColours(Items& items) {
    items.emplace_back(Keys::baseColour, "Background Base Color",
                       PreferenceColour{Limits::defaultBaseColour});
    items.emplace_back(Keys::topBrightness, "Top Gradient Brightness", Limits::defaultTopBrightness,
                       Limits::brightness);
    items.emplace_back(Keys::bottomBrightness, "Bottom Gradient Brightness",
                       Limits::defaultBottomBrightness, Limits::brightness);
    items.emplace_back(Keys::showBevels, "Show Bevels", true, hideAndShow());
}

void addRings(Items& items) {
    items.emplace_back(Keys::showRings, "Show Knob Rings", true, hideAndShow());
    items.emplace_back(Keys::ringWidth, "Rings Width", Limits::defaultRingWidth, Limits::ringWidth);
}

} // namespace

QM::PreferenceGroup appearanceGroup(const AppearanceOffers& offers) {
    Items items;
    items.emplace_back(Keys::textColour, "Parameter Text Color",
                       PreferenceColour{Limits::defaultTextColour});
    items.emplace_back(Keys::background, "Background Mode", QM::defaultBackgroundMode,
                       backgroundModes());
    if (!offers.hideColourOptions)
        addColours(items);
    if (offers.offerKnobType)
        items.emplace_back(Keys::knobType, "Knob Type", Limits::defaultKnobType, knobTypes());
    if (offers.offerRingOptions)
        addRings(items);
    return QM::PreferenceGroup("UI Preferences", std::move(items));
}
