// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/SettingLocator.h"

#include <gtest/gtest.h>

TEST(SettingLocator, isFourWords) {
    EXPECT_EQ(sizeof(SettingLocator), 16u);
}

TEST(SettingLocator, anIdentifierIsSplitIntoItsHalves) {
    const SettingLocator locator = SettingLocator::ofUniqueId(0x8123456789ABCDEFu);
    EXPECT_EQ(locator.folderSelector, 0x81234567u);
    EXPECT_EQ(locator.index, 0x89ABCDEFu);
    EXPECT_EQ(locator.valid, 1u);
    EXPECT_EQ(locator.manual, 0u);
    EXPECT_TRUE(locator.namesUniqueId());
    EXPECT_EQ(locator.uniqueId(), 0x8123456789ABCDEFu);
}

TEST(SettingLocator, noIdentifierIsNotValid) {
    EXPECT_EQ(SettingLocator::ofUniqueId(0).valid, 0u);
    EXPECT_EQ(SettingLocator::ofUniqueId(1).valid, 1u);
}

TEST(SettingLocator, aFolderIsNoIdentifier) {
    EXPECT_FALSE((SettingLocator{0x00020001, 3, 1, 0}).namesUniqueId()); // user, second folder
    EXPECT_FALSE((SettingLocator{0x7FFFFFFF, 0, 1, 0}).namesUniqueId());
    EXPECT_TRUE((SettingLocator{0x80000000, 0, 1, 0}).namesUniqueId());
}
