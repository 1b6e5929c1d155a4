// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/AaxChunk.h"

#include "QMShell/state/IAaxChunkAdapter.h"
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"
#include "presets/record/tests/support/MessagePackEncoder.h"
#include "presets/record/tests/support/RecordEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

#include <gtest/gtest.h>

namespace {

constexpr FourCharCode ours = fourCharCode("qmps");
constexpr FourCharCode everything = fourCharCode("All ");
constexpr FourCharCode comparing = fourCharCode("elck");
constexpr FourCharCode unknown = fourCharCode("abcd");

class FakeAaxAdapter : public IAaxChunkAdapter {
public:
    explicit FakeAaxAdapter(INoxPlugInState* state)
        : instance(state) {}

    INoxPlugInState* instance;
    std::vector<std::string> told;

    [[nodiscard]] INoxPlugInState* chunkInstance() const override { return instance; }

    void markParametersChanged() override { told.emplace_back("changed"); }

    [[nodiscard]] std::int32_t parameterCount() const override { return 3; }

    void tellHostParameterValue(std::int32_t index) override {
        told.push_back(std::to_string(index));
    }
};

class AaxChunkOperations : public ::testing::Test {
protected:
    [[nodiscard]] std::string state() const { return describeRecord(plugIn.state); }

    void expectIgnored(FourCharCode identifier, const Bytes& data) {
        const std::string before = state();
        EXPECT_EQ(setAaxChunk(identifier, data, adapter), AaxChunkReading::ignored);
        EXPECT_EQ(state(), before);
        EXPECT_TRUE(adapter.told.empty());
    }

    FakeStatefulPlugIn plugIn;
    FakeAaxAdapter adapter{&plugIn};
};

RecordFixture fakesRecord() {
    RecordFixture record;
    record.name = "fake";
    record.values = {{"afre", 123.5}, {"gain", -6.02}, {"mbyp", 0.0}};
    record.extension = packed::object({{"mBlendX", packed::real(0.25)}});
    record.uniqueId = 0x8000000000000077u;
    return record;
}

} // namespace

TEST_F(AaxChunkOperations, thereIsOneChunk) {
    EXPECT_EQ(aaxChunkIdOfIndex(0), ours);
    EXPECT_FALSE(aaxChunkIdOfIndex(1));
    EXPECT_FALSE(aaxChunkIdOfIndex(-1));
}

TEST_F(AaxChunkOperations, theSizeIsThatOfTheRecord) {
    EXPECT_EQ(aaxChunkSize(ours, plugIn), encodeRecord(fakesRecord()).size());
    for (const FourCharCode identifier : {everything, comparing, unknown, FourCharCode{0}})
        EXPECT_EQ(aaxChunkSize(identifier, plugIn), 0u);
}

TEST_F(AaxChunkOperations, theDataIsTheRecordAndTheNameIsZeros) {
    const auto chunk = getAaxChunk(ours, plugIn);
    ASSERT_TRUE(chunk);
    EXPECT_EQ(chunk->version, 0);
    EXPECT_EQ(chunk->name.size(), 32u);
    for (const char character : chunk->name)
        EXPECT_EQ(character, '\0');
    EXPECT_EQ(chunk->data, encodeRecord(fakesRecord()));
    for (const FourCharCode identifier : {everything, comparing, unknown})
        EXPECT_FALSE(getAaxChunk(identifier, plugIn));
}

TEST_F(AaxChunkOperations, settingAppliesMarksAndTellsTheHostOfEveryParameter) {
    EXPECT_EQ(setAaxChunk(ours, encodeRecord(exampleRecord()), adapter), AaxChunkReading::applied);
    EXPECT_EQ(state(), describeRecord(readRecordPlainly(encodeRecord(exampleRecord()))));
    EXPECT_EQ(plugIn.calls, std::vector<std::string>{"apply"}); // not adapted
    EXPECT_EQ(adapter.told, (std::vector<std::string>{"changed", "0", "1", "2"}));
}

TEST_F(AaxChunkOperations, aChunkOfNoBytesDoesNothing) {
    expectIgnored(ours, {});
}

TEST_F(AaxChunkOperations, whatCannotBeReadIsIgnored) {
    expectIgnored(ours, bytesOf({1, 2, 3}));
    expectIgnored(ours, Bytes(500));
    RecordFixture damaged = exampleRecord();
    damaged.extension.pop_back();
    expectIgnored(ours, encodeRecord(damaged));
    expectIgnored(unknown, encodeRecord(exampleRecord()));
}

TEST_F(AaxChunkOperations, anotherProductsRecordIsIgnored) {
    RecordFixture other = exampleRecord();
    other.manufacturerCode = "XXXX";
    expectIgnored(ours, encodeRecord(other));
}

TEST_F(AaxChunkOperations, withoutAnInstanceNothingIsSet) {
    adapter.instance = nullptr;
    expectIgnored(ours, encodeRecord(exampleRecord()));
}

TEST_F(AaxChunkOperations, theSdksChunksAreLeftToIt) {
    const Bytes data = encodeRecord(exampleRecord());
    for (const FourCharCode identifier : {everything, comparing})
        EXPECT_EQ(setAaxChunk(identifier, data, adapter), AaxChunkReading::leftToTheSdk);
    EXPECT_EQ(compareAaxChunk(everything, data, plugIn), AaxChunkComparison::leftToTheSdk);
    EXPECT_TRUE(plugIn.calls.empty());
    EXPECT_TRUE(adapter.told.empty());
}

TEST_F(AaxChunkOperations, whatApplyingThrowsComesThroughAndTheHostHearsNothing) {
    RecordFixture wrongType = exampleRecord();
    wrongType.extension = packed::object({{"mBlendX", packed::text("left")}});
    const std::string before = state();
    const Bytes data = encodeRecord(wrongType);
    EXPECT_THROW(setAaxChunk(ours, data, adapter), nlohmann::json::exception);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(adapter.told.empty());
}

TEST_F(AaxChunkOperations, comparingAsksTheInstance) {
    EXPECT_EQ(compareAaxChunk(ours, encodeRecord(fakesRecord()), plugIn),
              AaxChunkComparison::equal);
    RecordFixture changed = fakesRecord();
    changed.values[1].second = 3.0;
    EXPECT_EQ(compareAaxChunk(ours, encodeRecord(changed), plugIn), AaxChunkComparison::different);
    EXPECT_EQ(plugIn.calls, (std::vector<std::string>{"equals", "equals"}));
}

TEST_F(AaxChunkOperations, whatCannotBeComparedCountsAsEqual) {
    RecordFixture changed = fakesRecord();
    changed.values[1].second = 3.0;
    EXPECT_EQ(compareAaxChunk(ours, {}, plugIn), AaxChunkComparison::equal);
    EXPECT_EQ(compareAaxChunk(ours, Bytes(100), plugIn), AaxChunkComparison::equal);
    EXPECT_EQ(compareAaxChunk(unknown, encodeRecord(changed), plugIn), AaxChunkComparison::equal);
    EXPECT_EQ(compareAaxChunk(comparing, encodeRecord(changed), plugIn), AaxChunkComparison::equal);
    EXPECT_TRUE(plugIn.calls.empty());
}

TEST_F(AaxChunkOperations, truncationAtEveryByteIsReadAsTheRecordSays) {
    const Bytes whole = encodeRecord(exampleRecord());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        FakeStatefulPlugIn fresh;
        FakeAaxAdapter itsAdapter(&fresh);
        const Bytes data = firstBytes(whole, length);
        const bool readable = readRecordPlainly(data).has_value();
        EXPECT_EQ(setAaxChunk(ours, data, itsAdapter),
                  readable ? AaxChunkReading::applied : AaxChunkReading::ignored)
            << length;
    }
}

TEST_F(AaxChunkOperations, everySingleBitFlipIsReadAsTheRecordSays) {
    RecordFixture small;
    small.values = {{"gain", 0.5}};
    const Bytes whole = encodeRecord(small);
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        FakeStatefulPlugIn fresh;
        FakeAaxAdapter itsAdapter(&fresh);
        const Bytes data = withBitFlipped(whole, bit);
        const auto record = readRecordPlainly(data);
        const bool taken = record && fresh.canApplyGenericPreset(*record);
        const std::string before = describeRecord(fresh.state);
        EXPECT_EQ(setAaxChunk(ours, data, itsAdapter),
                  taken ? AaxChunkReading::applied : AaxChunkReading::ignored)
            << bit;
        EXPECT_EQ(describeRecord(fresh.state), taken ? describeRecord(record) : before);
    }
}
