// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceItem.h"

#include <gtest/gtest.h>

#include <limits>

using QM::PreferenceColour;
using QM::PreferenceItem;
using QM::PreferenceType;
using QM::PreferenceValue;

namespace {

const PreferenceValue samples[] = {true, 7, 0.25F, std::string("text"),
                                   PreferenceColour{0x12345678}};

PreferenceItem itemOf(const PreferenceValue& value) {
    return PreferenceItem("key", "Label", value);
}

} // namespace

TEST(PreferenceItem, theTypesAreNumbered) {
    EXPECT_EQ(static_cast<int>(PreferenceType::boolean), 0);
    EXPECT_EQ(static_cast<int>(PreferenceType::integer), 1);
    EXPECT_EQ(static_cast<int>(PreferenceType::floatingPoint), 2);
    EXPECT_EQ(static_cast<int>(PreferenceType::text), 3);
    EXPECT_EQ(static_cast<int>(PreferenceType::colour), 4);
    for (int type = 0; type < 5; ++type)
        EXPECT_EQ(static_cast<int>(itemOf(samples[type]).type()), type);
}

TEST(PreferenceItem, startsAtItsDefault) {
    const PreferenceItem item("top_brightness", "Top Gradient Brightness", 0.164F);
    EXPECT_EQ(item.key(), "top_brightness");
    EXPECT_EQ(item.label(), "Top Gradient Brightness");
    EXPECT_EQ(item.value(), PreferenceValue(0.164F));
    EXPECT_EQ(item.defaultValue(), PreferenceValue(0.164F));
}

TEST(PreferenceItem, takesValuesOfItsOwnTypeAndNoOther) {
    const PreferenceValue others[] = {false, 8, 0.5F, std::string("other"), PreferenceColour{1}};
    for (const PreferenceValue& sample : samples) {
        for (const PreferenceValue& other : others) {
            PreferenceItem item = itemOf(sample);
            const bool sameType = sample.index() == other.index();
            EXPECT_EQ(item.setValue(other), sameType);
            EXPECT_EQ(item.value(), sameType ? other : sample);
            EXPECT_EQ(item.defaultValue(), sample);
        }
    }
}

TEST(PreferenceItem, goesBackToItsDefault) {
    PreferenceItem item = itemOf(PreferenceValue(7));
    item.setValue(8);
    item.resetToDefault();
    EXPECT_EQ(item.integerValue(), 7);
}

TEST(PreferenceItem, aValueOfAnotherTypeReadsAsNothing) {
    for (const PreferenceValue& sample : samples) {
        const PreferenceItem item = itemOf(sample);
        const auto is = [&](PreferenceType type) { return item.type() == type; };
        EXPECT_EQ(item.booleanValue(), is(PreferenceType::boolean));
        EXPECT_EQ(item.integerValue(), is(PreferenceType::integer) ? 7 : 0);
        EXPECT_EQ(item.floatValue(), is(PreferenceType::floatingPoint) ? 0.25F : 0.0F);
        EXPECT_EQ(item.textValue(), is(PreferenceType::text) ? "text" : "");
        EXPECT_EQ(item.colourValue().argb, is(PreferenceType::colour) ? 0x12345678U : 0U);
    }
}

TEST(PreferenceItem, refusesAFloatThatIsNotFinite) {
    using Limits = std::numeric_limits<float>;
    PreferenceItem item = itemOf(PreferenceValue(0.25F));
    EXPECT_FALSE(item.setValue(Limits::infinity()));
    EXPECT_FALSE(item.setValue(-Limits::infinity()));
    EXPECT_FALSE(item.setValue(Limits::quiet_NaN()));
    EXPECT_EQ(item.floatValue(), 0.25F);
    EXPECT_TRUE(item.setValue(Limits::max()));
    EXPECT_EQ(item.floatValue(), Limits::max());
}

TEST(PreferenceItem, hasNothingToChooseFromAndNoRangeUnlessTold) {
    const PreferenceItem item("key", "Label", 7);
    EXPECT_TRUE(item.options().empty());
    EXPECT_FALSE(item.range().has_value());
}

TEST(PreferenceItem, keepsItsOptionsInTheOrderTheyWereGivenIn) {
    const std::vector<QM::PreferenceOption> options = {
        {"Light Knurled", 1.0F}, {"Medium Knurled", 0.0F}, {"-", -2.0F}};
    const PreferenceItem item("knob_type", "Knob Type", 6, options);
    EXPECT_EQ(item.options(), options);
    EXPECT_EQ(item.type(), PreferenceType::integer);
    EXPECT_EQ(item.value(), PreferenceValue(6));
    EXPECT_FALSE(item.range().has_value());
}

TEST(PreferenceItem, takesAValueThatIsNoOption) {
    PreferenceItem item("show", "Show", 0,
                        std::vector<QM::PreferenceOption>{{"Hide", 0.0F}, {"Show", 1.0F}});
    EXPECT_TRUE(item.setValue(7));
    EXPECT_EQ(item.integerValue(), 7);
}

TEST(PreferenceItem, keepsItsRangeAndTakesAValueBeyondIt) {
    PreferenceItem item("width", "Width", 4.0F, QM::PreferenceRange{0.0F, 12.0F});
    EXPECT_EQ(item.range(), (QM::PreferenceRange{0.0F, 12.0F}));
    EXPECT_TRUE(item.options().empty());
    EXPECT_TRUE(item.setValue(13.0F));
    EXPECT_EQ(item.floatValue(), 13.0F);
}
