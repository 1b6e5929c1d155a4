// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged records: nothing is thrown, nothing is read outside (the address sanitizer watches), and
// the answer is that of the plain reader of the tests for every single one.
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/RecordEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::optional<QMGenericPreset> read(const Bytes& bytes) {
    MemoryStream stream(bytes);
    return readGenericPreset(stream);
}

/// How many of the damaged records were refused.
class Tally {
public:
    void check(const Bytes& bytes, const std::string& what) {
        const std::string expected = describeRecord(readRecordPlainly(bytes));
        ASSERT_EQ(describeRecord(read(bytes)), expected) << what;
        ++(expected == "refused" ? refused : accepted);
    }

    int refused = 0;
    int accepted = 0;
};

std::vector<RecordFixture> fixtures() {
    RecordFixture text = exampleRecord();
    text.extension = ByteBuilder().text("{\"a\": [1, 2, {\"b\": null}]}").bytes();
    text.extensionType = "json";
    RecordFixture oldest = exampleRecord();
    oldest.version = 0;
    RecordFixture old = exampleRecord();
    old.version = 1;
    RecordFixture foreign = exampleRecord();
    foreign.extensionType = "cbor";
    return {emptyRecord(), exampleRecord(), text, oldest, old, foreign};
}

} // namespace

TEST(RecordDamage, truncationAtEveryByteIsReadAsTheRulesSay) {
    Tally tally;
    for (const RecordFixture& fixture : fixtures()) {
        const Bytes whole = encodeRecord(fixture);
        for (std::size_t length = 0; length < whole.size(); ++length)
            tally.check(firstBytes(whole, length), std::to_string(length));
    }
    EXPECT_GT(tally.refused, 200);
    // Where the end no longer names a known type the document is none, and fewer values are there.
    EXPECT_GT(tally.accepted, 200);
}

TEST(RecordDamage, aRecordThatEndsInItsHeaderIsRefused) {
    for (const RecordFixture& fixture : fixtures()) {
        const Bytes whole = encodeRecord(fixture);
        for (std::size_t length = 0; length < 32 + fixture.name.size(); ++length)
            EXPECT_FALSE(read(firstBytes(whole, length))) << length;
    }
}

TEST(RecordDamage, everySingleBitFlipIsReadAsTheRulesSay) {
    Tally tally;
    for (const RecordFixture& fixture : fixtures()) {
        const Bytes whole = encodeRecord(fixture);
        for (std::size_t bit = 0; bit < whole.size() * 8; ++bit)
            tally.check(withBitFlipped(whole, bit), "bit " + std::to_string(bit));
    }
    EXPECT_GT(tally.refused, 100);
    EXPECT_GT(tally.accepted, 1000);
}

TEST(RecordDamage, randomBytesAreReadAsTheRulesSay) {
    std::mt19937 random(20260101);
    Tally tally;
    for (int round = 0; round < 20000; ++round) {
        // Bytes behind a good beginning, else the magic would refuse nearly all.
        ByteBuilder builder;
        builder.text("pbmq")
            .u32(static_cast<std::uint32_t>(random() % 4))
            .zeros(16)
            .u32(static_cast<std::uint32_t>(random() % 8));
        const std::size_t length = random() % 200;
        for (std::size_t i = 0; i < length; ++i)
            builder.u8(static_cast<unsigned>(random() % 256));
        if (random() % 2 == 0)
            builder.text(random() % 2 == 0 ? "pgsm" : "nosj")
                .u32(static_cast<std::uint32_t>(random() % 64))
                .u64(random());
        tally.check(builder.bytes(), "round " + std::to_string(round));
    }
    EXPECT_GT(tally.refused, 1000);
    EXPECT_GT(tally.accepted, 1000);
}

TEST(RecordDamage, severalMutationsAtOnceAreReadAsTheRulesSay) {
    std::mt19937 random(7);
    const std::vector<RecordFixture> originals = fixtures();
    Tally tally;
    for (int round = 0; round < 20000; ++round) {
        Bytes bytes = encodeRecord(originals[random() % originals.size()]);
        for (int i = 0; i < 3; ++i)
            bytes[random() % bytes.size()] = static_cast<std::byte>(random() % 256);
        if (random() % 4 == 0)
            bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(random() % bytes.size()));
        tally.check(bytes, "round " + std::to_string(round));
    }
    EXPECT_GT(tally.refused, 1000);
    EXPECT_GT(tally.accepted, 1000);
}

TEST(RecordDamage, aNameThatLeavesNoRoomForTheCountIsRefused) {
    RecordFixture fixture = emptyRecord();
    fixture.name = "abc";
    // Behind the name's length: name 3, count 4, null 1, type and length 8, identifier 8.
    for (const std::uint32_t claimed : {21u, 24u, 25u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        fixture.claimedNameLength = claimed;
        EXPECT_FALSE(read(encodeRecord(fixture))) << claimed;
    }
    fixture.claimedNameLength = 20;
    EXPECT_TRUE(read(encodeRecord(fixture))); // the identifier's end for the count
}

TEST(RecordDamage, aDocumentThatWouldBeginBeforeTheRecordIsRefused) {
    // 49 bytes, of which the last 16 are type, length and identifier.
    for (const std::uint32_t claimed : {34u, 49u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        for (const char* type : {"msgp", "json"}) {
            RecordFixture fixture = emptyRecord();
            fixture.extensionType = type;
            fixture.claimedExtensionLength = claimed;
            EXPECT_FALSE(read(encodeRecord(fixture))) << claimed << ' ' << type;
        }
    }
}

TEST(RecordDamage, aDocumentOfNoBytesIsRefused) {
    for (const char* type : {"msgp", "json"}) {
        RecordFixture fixture = emptyRecord();
        fixture.extension.clear();
        fixture.extensionType = type;
        EXPECT_FALSE(read(encodeRecord(fixture))) << type;
    }
}

TEST(RecordDamage, aStreamThatIsNotOpenIsNeitherWrittenNorRead) {
    // More than a stream can hold: the bytes are never looked at.
    const std::byte one{};
    MemoryStream closed(std::span<const std::byte>(&one, std::size_t{1} << 40));
    ASSERT_FALSE(closed.isOpen());
    EXPECT_FALSE(writeGenericPreset(QMGenericPreset(), closed));
    EXPECT_FALSE(readGenericPreset(closed));
    EXPECT_EQ(closed.size(), 0);
}
