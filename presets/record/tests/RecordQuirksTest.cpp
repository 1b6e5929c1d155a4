// SPDX-License-Identifier: GPL-3.0-or-later
// What files in the field rely on: older versions, the end found from the end, other extensions.
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/RecordEncoder.h"

#include <gtest/gtest.h>

namespace {

std::optional<QMGenericPreset> read(const Bytes& bytes) {
    MemoryStream stream(bytes);
    return readGenericPreset(stream);
}

/// The first record as an update in place leaves it over the second.
Bytes updatedInPlace(const Bytes& now, const Bytes& before) {
    Bytes file = before;
    file.resize(std::max(before.size(), now.size()));
    std::copy(now.begin(), now.end(), file.begin());
    return file;
}

RecordFixture recordOfVersion(std::uint32_t version) {
    RecordFixture fixture;
    fixture.version = version;
    fixture.name = "old";
    fixture.values = {{"gain", -3.0}, {"wetd", 50.0}};
    fixture.extension = packed::object({{"x", packed::integer(1)}});
    fixture.uniqueId = 0x8000000000001234u;
    return fixture;
}

} // namespace

TEST(RecordQuirks, aRecordOfVersionZeroHasNeitherIdentifierNorDocument) {
    const auto preset = read(encodeRecord(recordOfVersion(0)));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->name, "old");
    EXPECT_EQ(preset->values.size(), 2u);
    EXPECT_EQ(preset->values.at(codeOf("gain")), -3.0);
    EXPECT_EQ(preset->uniqueId, 0u);
    EXPECT_TRUE(preset->extension.is_null());
}

TEST(RecordQuirks, aRecordOfVersionOneHasAnIdentifierAndNoDocument) {
    const auto preset = read(encodeRecord(recordOfVersion(1)));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values.at(codeOf("wetd")), 50.0);
    EXPECT_EQ(preset->uniqueId, 0x8000000000001234u);
    EXPECT_TRUE(preset->extension.is_null());
}

TEST(RecordQuirks, everyLaterVersionReadsAsVersionTwo) {
    for (const std::uint32_t version : {3u, 7u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        const auto preset = read(encodeRecord(recordOfVersion(version)));
        ASSERT_TRUE(preset) << version;
        EXPECT_EQ(preset->uniqueId, 0x8000000000001234u);
        EXPECT_EQ(preset->extension, nlohmann::json({{"x", 1}}));
    }
}

TEST(RecordQuirks, anotherMagicIsRefused) {
    RecordFixture fixture = recordOfVersion(2);
    fixture.magic = "qmbq";
    EXPECT_FALSE(read(encodeRecord(fixture)));
}

TEST(RecordQuirks, aShorterRecordKeepsTheEndOfALongerOneBeforeIt) {
    RecordFixture before = recordOfVersion(2);
    before.name = "a much longer name than the one that comes after it";
    before.extension = packed::object({{"old", packed::boolean(true)}});
    before.uniqueId = 0x8000000000000001u;
    RecordFixture now;
    now.name = "short";
    now.values = {{"gain", 1.0}};
    now.extension = packed::object({{"new", packed::boolean(true)}});
    now.uniqueId = 0x8000000000000002u;

    const auto preset = read(updatedInPlace(encodeRecord(now), encodeRecord(before)));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->name, "short");
    EXPECT_EQ(preset->values, (std::map<FourCharCode, double>{{codeOf("gain"), 1.0}}));
    EXPECT_EQ(preset->uniqueId, 0x8000000000000001u);
    EXPECT_EQ(preset->extension, nlohmann::json({{"old", true}}));
}

TEST(RecordQuirks, aLongerRecordReplacesAShorterOneWhole) {
    RecordFixture now = recordOfVersion(2);
    now.name = "a much longer name than the one that was there before";
    const auto preset = read(updatedInPlace(encodeRecord(now), encodeRecord(emptyRecord())));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->uniqueId, 0x8000000000001234u);
    EXPECT_EQ(preset->extension, nlohmann::json({{"x", 1}}));
}

TEST(RecordQuirks, aRecordThatEndsInsideTheOldDocumentIsRefused) {
    RecordFixture before = emptyRecord();
    before.extension = packed::text(std::string(60, 'x'));
    RecordFixture now = emptyRecord();
    now.name = "123456789"; // its end lies over the head of the old text
    EXPECT_FALSE(read(updatedInPlace(encodeRecord(now), encodeRecord(before))));
}

TEST(RecordQuirks, aDocumentMayBeJsonText) {
    RecordFixture fixture = recordOfVersion(2);
    fixture.extension = ByteBuilder().text(" {\"x\": [1, 2.5, \"\\u00e4\"]}\n").bytes();
    fixture.extensionType = "json";
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->extension, nlohmann::json({{"x", {1, 2.5, "\xC3\xA4"}}}));
}

TEST(RecordQuirks, aDocumentOfAnotherTypeReadsAsNone) {
    for (const char* type : {"cbor", "MSGP", "psgm"}) {
        RecordFixture fixture = recordOfVersion(2);
        fixture.extensionType = type;
        const auto preset = read(encodeRecord(fixture));
        ASSERT_TRUE(preset) << type;
        EXPECT_TRUE(preset->extension.is_null()) << type;
        EXPECT_EQ(preset->uniqueId, 0x8000000000001234u);
    }
}

TEST(RecordQuirks, anotherTypesLengthIsNotLookedAt) {
    RecordFixture fixture = recordOfVersion(2);
    fixture.extensionType = "cbor";
    fixture.claimedExtensionLength = 0xFFFFFFFF;
    EXPECT_TRUE(read(encodeRecord(fixture)));
}

TEST(RecordQuirks, aRepeatedIdentifierTakesTheLaterValue) {
    RecordFixture fixture = emptyRecord();
    fixture.values = {{"gain", 1.0}, {"wetd", 2.0}, {"gain", 3.0}};
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values,
              (std::map<FourCharCode, double>{{codeOf("gain"), 3.0}, {codeOf("wetd"), 2.0}}));
}

TEST(RecordQuirks, aSmallerCountLeavesTheRestOfTheValuesUnread) {
    RecordFixture fixture = recordOfVersion(2);
    fixture.claimedValueCount = 1;
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values, (std::map<FourCharCode, double>{{codeOf("gain"), -3.0}}));
    EXPECT_EQ(preset->uniqueId, 0x8000000000001234u);
}

TEST(RecordQuirks, aCountBeyondTheDataReadsWhatThereIsAndStops) {
    RecordFixture fixture;
    fixture.version = 0;
    fixture.values = {{"gain", -3.0}, {"wetd", 50.0}};
    fixture.claimedValueCount = 0xFFFFFFFF;
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values.size(), 2u);
}

TEST(RecordQuirks, aCountBeyondTheDataTakesTheEndForValuesToo) {
    RecordFixture fixture = emptyRecord();
    fixture.claimedValueCount = 2;
    // 17 bytes lie behind the count: one pair, and five bytes that are none.
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    ASSERT_EQ(preset->values.size(), 1u);
    EXPECT_EQ(preset->values.begin()->first, 0x736770C0u); // null, and 'msgp' but its last byte
}

TEST(RecordQuirks, theHeaderAloneTellsHowManyValuesFollow) {
    const Bytes bytes = encodeRecord(recordOfVersion(2));
    MemoryStream stream(bytes);
    auto header = readGenericPresetHeader(stream);
    ASSERT_TRUE(header);
    EXPECT_EQ(header->valueCount, 2u);
    EXPECT_TRUE(header->preset.values.empty());
    EXPECT_EQ(stream.tell(), 28 + 3 + 4); // at the first value
    EXPECT_EQ(readGenericPresetValues(stream, std::move(*header)).values.size(), 2u);
}
