// SPDX-License-Identifier: GPL-3.0-or-later
// Records written and read byte for byte. The bytes come from an encoder of the tests' own, and
// that is held against bytes set down by hand.
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/RecordEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <gtest/gtest.h>

#include <algorithm>

using nlohmann::json;

namespace {

Bytes written(const QMGenericPreset& preset) {
    MemoryStream stream(16);
    EXPECT_TRUE(writeGenericPreset(preset, stream));
    return {stream.bytes().begin(), stream.bytes().end()};
}

std::optional<QMGenericPreset> read(const Bytes& bytes) {
    MemoryStream stream(bytes);
    return readGenericPreset(stream);
}

/// The example record as the product holds it.
QMGenericPreset examplePreset() {
    QMGenericPreset preset;
    preset.name = "K\xC3\xA4se \xE4\xBD\x8E";
    preset.valuesTag = 0;
    preset.manufacturerCode = 0x514D4C20;        // "QML "
    preset.productCode = 0x42524C54;             // "BRLT"
    preset.variantCode = 0x2A2A2A2A;             // "****"
    preset.values = {{0x61667265, 123.5},        // "afre"
                     {0x6761696E, -6.02},        // "gain"
                     {0x6D627970, 0.0},          // "mbyp"
                     {0x77657464, 100.0 / 3.0}}; // "wetd"
    preset.uniqueId = 0x8006123456789ABCu;
    preset.extension = {{"note", std::string(40, 'x')},
                        {"mBlendX", 0.25},
                        {"mBlendY", 0.1},
                        {"mActiveSnapshot", 1},
                        {"mSnapshotPopulated", {true, false}}};
    return preset;
}

/// "gain" at 0.5 under the name "Hi", with {"a": [1, -1]} and an identifier.
const char* const byHand = "70626D71 02000000 04030201"         // magic, version, values tag
                           "204C4D51 544C5242 2A2A2A2A"         // maker, product, variant
                           "02000000 4869"                      // name
                           "01000000 6E696167 000000000000E03F" // one value
                           "81 A1 61 92 01 FF"                  // {"a": [1, -1]}
                           "7067736D 06000000"                  // 'msgp', length
                           "EFCDAB8967452381";                  // unique identifier

QMGenericPreset presetByHand() {
    QMGenericPreset preset;
    preset.name = "Hi";
    preset.valuesTag = 0x01020304;
    preset.manufacturerCode = 0x514D4C20;
    preset.productCode = 0x42524C54;
    preset.values = {{0x6761696E, 0.5}};
    preset.uniqueId = 0x8123456789ABCDEFu;
    preset.extension = {{"a", {1, -1}}};
    return preset;
}

} // namespace

TEST(RecordLayout, theTestsEncoderMakesTheBytesSetDownByHand) {
    RecordFixture fixture;
    fixture.valuesTag = 0x01020304;
    fixture.name = "Hi";
    fixture.values = {{"gain", 0.5}};
    fixture.extension =
        packed::object({{"a", packed::array({packed::integer(1), packed::integer(-1)})}});
    fixture.uniqueId = 0x8123456789ABCDEFu;
    EXPECT_EQ(encodeRecord(fixture), bytesOfHex(byHand));
}

TEST(RecordLayout, aRecordIsWrittenAsTheBytesSetDownByHand) {
    EXPECT_EQ(written(presetByHand()), bytesOfHex(byHand));
}

TEST(RecordLayout, theBytesSetDownByHandReadAsTheRecord) {
    EXPECT_EQ(describeRecord(read(bytesOfHex(byHand))), describeRecord(presetByHand()));
}

TEST(RecordLayout, theExampleIsWrittenAsTheEncodersBytes) {
    EXPECT_EQ(written(examplePreset()), encodeRecord(exampleRecord()));
}

TEST(RecordLayout, theEncodersBytesReadAsTheExample) {
    EXPECT_EQ(describeRecord(read(encodeRecord(exampleRecord()))), describeRecord(examplePreset()));
}

TEST(RecordLayout, anEmptyDocumentIsOneByteOfMessagePack) {
    QMGenericPreset preset;
    preset.manufacturerCode = 0x514D4C20;
    preset.productCode = 0x42524C54;
    const Bytes bytes = written(preset);
    EXPECT_EQ(bytes, encodeRecord(emptyRecord()));
    // Header 28 bytes, count of values 4, null 1, type and length 8, identifier 8.
    ASSERT_EQ(bytes.size(), 49u);
    EXPECT_EQ(bytes[32], std::byte{0xC0});
    EXPECT_EQ(Bytes(bytes.begin() + 33, bytes.begin() + 41),
              bytesOf({0x70, 0x67, 0x73, 0x6D, 1, 0, 0, 0}));
}

TEST(RecordLayout, valuesAreWrittenInTheOrderOfTheirIdentifiers) {
    QMGenericPreset preset;
    preset.values[0x80000000] = 2.0; // above every signed number
    preset.values[1] = 1.0;
    const Bytes bytes = written(preset);
    const Bytes expected = ByteBuilder().u32(2).u32(1).f64(1.0).u32(0x80000000).f64(2.0).bytes();
    EXPECT_EQ(Bytes(bytes.begin() + 28, bytes.begin() + 56), expected);
}

TEST(RecordLayout, aNewRecordCarriesTheWildcardVariant) {
    EXPECT_EQ(QMGenericPreset().variantCode, 0x2A2A2A2Au);
    EXPECT_EQ(QMGenericPreset::kindTag, 0x47507265u); // "GPre"
}

TEST(RecordLayout, extremeValuesKeepTheirBits) {
    RecordFixture fixture;
    fixture.values = {{"aaaa", -0.0},
                      {"bbbb", 5e-324},
                      {"cccc", 1.7976931348623157e308},
                      {"dddd", std::numeric_limits<double>::infinity()},
                      {"eeee", std::numeric_limits<double>::quiet_NaN()}};
    const auto preset = read(encodeRecord(fixture));
    ASSERT_TRUE(preset);
    EXPECT_EQ(preset->values.size(), 5u);
    EXPECT_EQ(written(*preset), encodeRecord(fixture));
}

TEST(RecordLayout, documentsOfEveryKindAreWrittenAsMessagePackHasThem) {
    struct Case {
        json document;
        Bytes bytes;
    };

    const std::vector<Case> cases = {
        {nullptr, packed::nil()},
        {true, packed::boolean(true)},
        {127, packed::integer(127)},
        {128, packed::integer(128)},
        {65535, packed::integer(65535)},
        {65536, packed::integer(65536)},
        {4294967296, packed::integer(4294967296)},
        {18446744073709551615u, packed::unsignedInteger(18446744073709551615u)},
        {-32, packed::integer(-32)},
        {-33, packed::integer(-33)},
        {-129, packed::integer(-129)},
        {-32769, packed::integer(-32769)},
        {-2147483649, packed::integer(-2147483649)},
        {0.5, packed::real(0.5)},
        {0.1, packed::real(0.1)},
        {1e300, packed::real(1e300)},
        {"", packed::text("")},
        {std::string(31, 'a'), packed::text(std::string(31, 'a'))},
        {std::string(32, 'a'), packed::text(std::string(32, 'a'))},
        {std::string(256, 'a'), packed::text(std::string(256, 'a'))},
        {json::array(), packed::array({})},
        {json::array({1, 2}), packed::array({packed::integer(1), packed::integer(2)})},
        {json(std::vector<int>(16)), packed::array(std::vector<Bytes>(16, packed::integer(0)))},
        {json::object(), packed::object({})},
        {{{"b", 1}, {"a", {{"c", nullptr}}}},
         packed::object(
             {{"a", packed::object({{"c", packed::nil()}})}, {"b", packed::integer(1)}})},
    };
    for (const Case& sample : cases) {
        QMGenericPreset preset;
        preset.manufacturerCode = 0x514D4C20;
        preset.productCode = 0x42524C54;
        preset.extension = sample.document;
        RecordFixture fixture;
        fixture.extension = sample.bytes;
        EXPECT_EQ(written(preset), encodeRecord(fixture)) << sample.document;
        const auto back = read(encodeRecord(fixture));
        ASSERT_TRUE(back) << sample.document;
        EXPECT_EQ(back->extension, sample.document);
    }
}

TEST(RecordLayout, whatIsWrittenReadsBackEqualForRandomRecords) {
    std::uint64_t state = 1;
    const auto random = [&state](std::uint64_t below) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return (state >> 33) % below;
    };
    for (int round = 0; round < 500; ++round) {
        QMGenericPreset preset;
        preset.valuesTag = static_cast<std::uint32_t>(random(1u << 31));
        preset.manufacturerCode = static_cast<std::uint32_t>(random(1u << 31));
        preset.productCode = static_cast<std::uint32_t>(random(1u << 31));
        preset.variantCode = static_cast<std::uint32_t>(random(1u << 31));
        for (std::uint64_t i = random(40); i > 0; --i)
            preset.name += static_cast<char>(random(256));
        for (std::uint64_t i = random(20); i > 0; --i)
            preset.values[static_cast<std::uint32_t>(random(1u << 31))] =
                static_cast<double>(random(1u << 31)) / 7.0 - 1e8;
        for (std::uint64_t i = random(6); i > 0; --i)
            preset.extension["key" + std::to_string(random(100))] = {random(1000), "text", 0.1};
        preset.uniqueId = random(1u << 31) << 32 | random(1u << 31);
        EXPECT_EQ(describeRecord(read(written(preset))), describeRecord(preset));
    }
}
