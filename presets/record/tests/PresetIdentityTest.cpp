// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/PresetIdentity.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>

TEST(PresetIdentity, theContentsHashAgreesWithOneWorkedByHand) {
    // 0.5 is 0x3FE0000000000000; times 37 modulo 2^64:
    //   0x3FE0000000000000 * 0x25 = 0x9_3B60000000000000 -> 0x3B60000000000000.
    // "A" is 65: (0x3B60000000000000 + 65) * 37
    //   0x3B60000000000000 * 0x25 = 0x8_94E0000000000000 -> 0x94E0000000000000, 65 * 37 = 0x965.
    QMGenericPreset preset;
    preset.values = {{fourCharCode("gain"), 0.5}};
    preset.name = "A";
    EXPECT_EQ(PresetIdentity::ofContent(preset), 0x94E0000000000965u);
}

TEST(PresetIdentity, charactersBeyondAsciiCountAsNegative) {
    // 0xFF is -1: (0 - 1) * 37 = -37 = 0xFFFFFFFFFFFFFFDB.
    QMGenericPreset preset;
    preset.name = "\xFF";
    EXPECT_EQ(PresetIdentity::ofContent(preset), 0xFFFFFFFFFFFFFFDBu);
}

TEST(PresetIdentity, theHashOfNothingIsTheAssignedBit) {
    EXPECT_EQ(PresetIdentity::ofContent(QMGenericPreset()), 0x8000000000000000u);
}

TEST(PresetIdentity, valuesCountInTheOrderOfTheirIdentifiers) {
    // 2.0 is 0x40 << 56, -1.0 is 0xBFF << 52; in the order of the identifiers 'aaaa', 'bbbb':
    //   h = 0x4000000000000000 * 37 = 0x4000000000000000 (37 = 1 modulo 4, the rest goes over)
    //   h = (0x4000000000000000 + 0xBFF0000000000000) * 37 = 0xFFF0000000000000 * 37
    //     = -0x0010000000000000 * 37 = -0x0250000000000000 = 0xFDB0000000000000.
    QMGenericPreset preset;
    preset.values = {{fourCharCode("bbbb"), -1.0}, {fourCharCode("aaaa"), 2.0}};
    EXPECT_EQ(PresetIdentity::ofContent(preset), 0xFDB0000000000000u);
    std::swap(preset.values[fourCharCode("bbbb")], preset.values[fourCharCode("aaaa")]);
    EXPECT_NE(PresetIdentity::ofContent(preset), 0xFDB0000000000000u);
}

TEST(PresetIdentity, nothingButValuesAndNameCounts) {
    QMGenericPreset preset;
    preset.name = "A";
    const std::uint64_t before = PresetIdentity::ofContent(preset);
    preset.uniqueId = 5;
    preset.productCode = 6;
    preset.extension = {{"a", 1}};
    EXPECT_EQ(PresetIdentity::ofContent(preset), before);
}

TEST(PresetIdentity, freshOnesAreDistinctAndHaveTheTopBit) {
    std::set<std::uint64_t> seen;
    for (int i = 0; i < 100000; ++i) {
        const std::uint64_t id = PresetIdentity::fresh();
        EXPECT_NE(id & 0x8000000000000000u, 0u);
        EXPECT_TRUE(seen.insert(id).second);
    }
}

TEST(PresetIdentity, freshOnesTellTheTimeInMicroseconds) {
    const auto now = std::chrono::duration_cast<std::chrono::microseconds>(
                         std::chrono::system_clock::now().time_since_epoch())
                         .count();
    const auto told = static_cast<std::int64_t>(PresetIdentity::fresh() & 0x7FFFFFFFFFFFFFFFu);
    // The test before has drawn a hundred thousand, which may run ahead of the clock by as many
    // microseconds.
    EXPECT_GE(told, now);
    EXPECT_LT(told, now + 60'000'000);
}

TEST(PresetIdentity, theNamedOnesAreWhatFilesHold) {
    EXPECT_EQ(PresetIdentity::factoryDefault, 0x8000000000000000u);
    EXPECT_EQ(PresetIdentity::deletedPreset, 0x8000000000000001u);
}
