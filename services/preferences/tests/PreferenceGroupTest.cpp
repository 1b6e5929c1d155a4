// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferenceGroup.h"

#include <gtest/gtest.h>

using QM::PreferenceGroup;
using QM::PreferenceItem;

namespace {

PreferenceGroup makeGroup() {
    return PreferenceGroup("UI Preferences",
                           {PreferenceItem("z", "First", true), PreferenceItem("a", "Second", 7)});
}

} // namespace

TEST(PreferenceGroup, keepsItsNameAndTheOrderOfItsItems) {
    const PreferenceGroup group = makeGroup();
    EXPECT_EQ(group.name(), "UI Preferences");
    ASSERT_EQ(group.items().size(), 2U);
    EXPECT_EQ(group.items()[0].key(), "z");
    EXPECT_EQ(group.items()[1].key(), "a");
}

TEST(PreferenceGroup, mayBeEmpty) {
    PreferenceGroup group("empty");
    EXPECT_TRUE(group.items().empty());
    EXPECT_EQ(group.find("a"), nullptr);
    group.resetToDefaults();
}

TEST(PreferenceGroup, findsItemsByKey) {
    PreferenceGroup group = makeGroup();
    EXPECT_EQ(group.find("a"), &group.items()[1]);
    EXPECT_EQ(group.find("z"), &group.items()[0]);
    EXPECT_EQ(group.find("A"), nullptr);
    EXPECT_EQ(group.find(""), nullptr);
}

TEST(PreferenceGroup, resetsEveryItem) {
    PreferenceGroup group = makeGroup();
    group.find("z")->setValue(false);
    group.find("a")->setValue(8);
    group.resetToDefaults();
    EXPECT_TRUE(group.find("z")->booleanValue());
    EXPECT_EQ(group.find("a")->integerValue(), 7);
}
