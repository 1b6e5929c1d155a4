// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged chunks: nothing is read outside (the address sanitizer watches), and what is made of them
// is what their bytes say.
#include "QMShell/state/Vst2Chunk.h"
#include "QMShell/state/Vst2ChunkDecoder.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"
#include "QMShell/state/tests/support/FakeVst2Adapter.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <gtest/gtest.h>

#include <random>

namespace {

Vst2Fixture exampleChunk() {
    Vst2Fixture fixture;
    fixture.entries = {{"gain", 0.5}, {"mbyp", 1.0}};
    fixture.record = encodeRecord(exampleRecord());
    return fixture;
}

/// What the bytes of a chunk ask for, worked out with positions alone.
Vst2ChunkReading expectedReading(const Bytes& bytes) {
    const auto byteAt = [&](std::size_t position) {
        return std::to_integer<std::uint64_t>(bytes[position]);
    };
    if (bytes.size() < 88)
        return Vst2ChunkReading::ignored;
    const bool big = byteAt(64) == 'e';
    const auto wordAt = [&](std::size_t position) {
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < 4; ++i)
            word = word * 256 + byteAt(position + (big ? i : 3 - i));
        return word;
    };
    const std::uint64_t entries = wordAt(84);
    if (wordAt(64) != 0x656E6469 || 88 + 16 * entries > bytes.size())
        return Vst2ChunkReading::ignored;
    const std::size_t block = 88 + 16 * entries;
    if (wordAt(80) == 0 || block + 8 > bytes.size() || wordAt(block + 4) != 0x716D7073 ||
        block + 8 + wordAt(block) > bytes.size())
        return Vst2ChunkReading::entriesApplied;
    const auto record = readRecordPlainly(std::span(bytes).subspan(block + 8, wordAt(block)));
    return record ? Vst2ChunkReading::recordApplied : Vst2ChunkReading::entriesApplied;
}

/// The three readings, counted.
class Tally {
public:
    void check(const Bytes& bytes, const std::string& what) {
        FakeStatefulPlugIn plugIn;
        const std::string before = describeRecord(plugIn.state);
        FakeVst2Adapter adapter(&plugIn);
        Vst2ChunkReading reading{};
        try {
            reading = Vst2Chunk(adapter).set(bytes);
        } catch (const nlohmann::json::exception&) {
            // A document with a member of the wrong type; the instance does not take it.
            ASSERT_EQ(describeRecord(plugIn.state), before) << what;
            reading = Vst2ChunkReading::recordApplied;
        }
        ASSERT_EQ(reading, expectedReading(bytes)) << what;
        if (reading == Vst2ChunkReading::ignored) {
            ASSERT_EQ(describeRecord(plugIn.state), before) << what;
            ASSERT_TRUE(adapter.restored.empty()) << what;
            ++ignored;
        } else {
            ++read;
        }
    }

    int ignored = 0;
    int read = 0;
};

} // namespace

TEST(Vst2ChunkDamage, truncationAtEveryByteIsReadAsTheBytesSay) {
    Tally tally;
    for (const Bytes& whole : {encodeVst2(exampleChunk()), encodeVst2BigEndian(exampleChunk())})
        for (std::size_t length = 0; length < whole.size(); ++length)
            tally.check(firstBytes(whole, length), std::to_string(length));
    EXPECT_EQ(tally.ignored, 2 * (88 + 2 * 16));
    EXPECT_GT(tally.read, 2 * 100);
}

TEST(Vst2ChunkDamage, everySingleBitFlipIsReadAsTheBytesSay) {
    Tally tally;
    for (const Bytes& whole : {encodeVst2(exampleChunk()), encodeVst2BigEndian(exampleChunk())})
        for (std::size_t bit = 0; bit < whole.size() * 8; ++bit)
            tally.check(withBitFlipped(whole, bit), "bit " + std::to_string(bit));
    EXPECT_GT(tally.ignored, 32);
    EXPECT_GT(tally.read, 1000);
}

TEST(Vst2ChunkDamage, randomBytesBehindAMarkerAreReadAsTheBytesSay) {
    std::mt19937 random(11);
    Tally tally;
    for (int round = 0; round < 20000; ++round) {
        ByteBuilder builder;
        builder.zeros(64).text(random() % 2 == 0 ? "idne" : "endi");
        const std::size_t length = random() % 150;
        for (std::size_t i = 0; i < length; ++i)
            builder.u8(random() % 4 == 0 ? static_cast<unsigned>(random() % 256) : 0);
        tally.check(builder.bytes(), "round " + std::to_string(round));
    }
    EXPECT_GT(tally.ignored, 1000);
    EXPECT_GT(tally.read, 1000);
}
