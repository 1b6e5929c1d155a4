// SPDX-License-Identifier: GPL-3.0-or-later
// The group "UI Preferences", row by row, and the hash its keys are found by.
#include "widgets/ui/appearance/AppearanceGroup.h"
#include "widgets/ui/appearance/PreferenceKeyHash.h"

#include <gtest/gtest.h>

namespace {

using QM::PreferenceColour;
using QM::PreferenceItem;
using QM::PreferenceOption;
using QM::PreferenceType;
using QM::PreferenceValue;

std::vector<std::string> keysOf(const AppearanceOffers& offers) {
    std::vector<std::string> keys;
    const QM::PreferenceGroup group = appearanceGroup(offers);
    for (const PreferenceItem& item : group.items())
        keys.push_back(item.key());
    return keys;
}

/// From a group with everything in it.
PreferenceItem itemOf(const char* key) {
    return *appearanceGroup({.offerRingOptions = true, .offerKnobType = true}).find(key);
}

TEST(AppearanceGroup, ofAProductWithRingsHasEightItemsInThisOrder) {
    EXPECT_EQ(
        keysOf({.offerRingOptions = true}),
        (std::vector<std::string>{"text_color", "background", "base_color", "top_brightness",
                                  "bot_brightness", "show_bevels", "show_rings", "ring_width"}));
}

TEST(AppearanceGroup, ofAProductWithEverythingHasNine) {
    EXPECT_EQ(keysOf({.offerRingOptions = true, .offerKnobType = true}),
              (std::vector<std::string>{"text_color", "background", "base_color", "top_brightness",
                                        "bot_brightness", "show_bevels", "knob_type", "show_rings",
                                        "ring_width"}));
}

TEST(AppearanceGroup, withoutOffersHasTextAndBackground) {
    EXPECT_EQ(keysOf({}),
              (std::vector<std::string>{"text_color", "background", "base_color", "top_brightness",
                                        "bot_brightness", "show_bevels"}));
    EXPECT_EQ(keysOf({.hideColourOptions = true}),
              (std::vector<std::string>{"text_color", "background"}));
}

TEST(AppearanceGroup, eachOfferIsOfItsOwn) {
    EXPECT_EQ(keysOf({.offerKnobType = true, .hideColourOptions = true}),
              (std::vector<std::string>{"text_color", "background", "knob_type"}));
    EXPECT_EQ(keysOf({.offerRingOptions = true, .hideColourOptions = true}),
              (std::vector<std::string>{"text_color", "background", "show_rings", "ring_width"}));
}

TEST(AppearanceGroup, hasAName) {
    EXPECT_EQ(appearanceGroup({}).name(), "UI Preferences");
}

struct Row {
    const char* key;
    const char* label;
    PreferenceType type;
    PreferenceValue defaultValue;
};

TEST(AppearanceGroup, everyItemHasItsLabelItsTypeAndItsDefault) {
    const Row rows[] = {
        {"text_color", "Parameter Text Color", PreferenceType::colour,
         PreferenceColour{0xFF00FF00}},
        {"background", "Background Mode", PreferenceType::integer, 1},
        {"base_color", "Background Base Color", PreferenceType::colour,
         PreferenceColour{0xFF575757}},
        {"top_brightness", "Top Gradient Brightness", PreferenceType::floatingPoint, 0.164F},
        {"bot_brightness", "Bottom Gradient Brightness", PreferenceType::floatingPoint, -0.91F},
        {"show_bevels", "Show Bevels", PreferenceType::boolean, true},
        {"knob_type", "Knob Type", PreferenceType::integer, 6},
        {"show_rings", "Show Knob Rings", PreferenceType::boolean, true},
        {"ring_width", "Rings Width", PreferenceType::floatingPoint, 4.0F},
    };
    for (const Row& row : rows) {
        const PreferenceItem item = itemOf(row.key);
        EXPECT_EQ(item.label(), row.label);
        EXPECT_EQ(item.type(), row.type) << row.key;
        EXPECT_EQ(item.defaultValue(), row.defaultValue) << row.key;
        EXPECT_EQ(item.value(), row.defaultValue) << row.key;
    }
}

TEST(AppearanceGroup, theBackgroundModesHaveTheirNumbers) {
    EXPECT_EQ(itemOf("background").options(),
              (std::vector<PreferenceOption>{{"Light Brushed", 0.0F},
                                             {"Dark Brushed", 1.0F},
                                             {"Flat Color", 2.0F},
                                             {"Gradient Color", 3.0F},
                                             {"Grad w/Hits", 4.0F}}));
}

TEST(AppearanceGroup, theKnobsAreInAnOrderOfTheirOwn) {
    EXPECT_EQ(itemOf("knob_type").options(),
              (std::vector<PreferenceOption>{{"Light Knurled", 1.0F},
                                             {"Medium Knurled", 0.0F},
                                             {"Dark Knurled", 2.0F},
                                             {"Dark Brushed Knob", 6.0F},
                                             {"Chickenhead Knob", 8.0F},
                                             {"ChannelStrip Knob", 10.0F},
                                             {"-", -2.0F},
                                             {"No Knob", -1.0F}}));
}

TEST(AppearanceGroup, bevelsAndRingsAreHiddenOrShown) {
    const std::vector<PreferenceOption> expected{{"Hide", 0.0F}, {"Show", 1.0F}};
    EXPECT_EQ(itemOf("show_bevels").options(), expected);
    EXPECT_EQ(itemOf("show_rings").options(), expected);
}

TEST(AppearanceGroup, numbersHaveRangesAndNothingToChooseFrom) {
    EXPECT_EQ(itemOf("top_brightness").range(), (QM::PreferenceRange{-1.0F, 1.0F}));
    EXPECT_EQ(itemOf("bot_brightness").range(), (QM::PreferenceRange{-1.0F, 1.0F}));
    EXPECT_EQ(itemOf("ring_width").range(), (QM::PreferenceRange{0.0F, 12.0F}));
    for (const char* key :
         {"text_color", "base_color", "top_brightness", "bot_brightness", "ring_width"})
        EXPECT_TRUE(itemOf(key).options().empty()) << key;
    for (const char* key : {"text_color", "background", "base_color", "show_bevels"})
        EXPECT_FALSE(itemOf(key).range().has_value()) << key;
}

// From the algorithm's published test vectors.
TEST(PreferenceKeyHash, isTheUsualFunction) {
    EXPECT_EQ(PreferenceKeyHash{}(""), 0xcbf29ce484222325U);
    EXPECT_EQ(PreferenceKeyHash{}("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(PreferenceKeyHash{}("b"), 0xaf63df4c8601f1a5U);
    EXPECT_EQ(PreferenceKeyHash{}("foobar"), 0x85944171f73967e8U);
}

// By hand: (0xcbf29ce484222325 ^ 0xff) * 0x100000001b3. A character is no negative number.
TEST(PreferenceKeyHash, takesBytesBeyondAsciiForWhatTheyAre) {
    EXPECT_EQ(PreferenceKeyHash{}("\xff"), 0xaf64724c8602eb6eU);
}

} // namespace
