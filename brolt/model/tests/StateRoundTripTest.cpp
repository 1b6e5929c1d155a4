// SPDX-License-Identifier: GPL-3.0-or-later
// What is saved comes back: settings, snapshots, blend, document, and the sound of it.
#include "brolt/model/tests/PlugInTestKit.h"

#include "plugin-model/QMParameterValues.h"
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/MemoryStream.h"

namespace {

using nlohmann::json;
using QM::SnapshotMode;

template <typename Random>
void randomise(QMBrolt_PlugIn& plugIn, Random& random) {
    std::uniform_real_distribution<double> normalised(0.0, 1.0);
    for (std::int32_t i = 0; i < plugIn.parameterCount(); ++i) {
        // Whether the plug-in is bypassed is not part of a sound.
        if (!plugIn.isBypassParameterIndex(i))
            plugIn.setParameterValue(i, plugIn.normalisedToPlain(i, normalised(random)));
    }
}

/// Any of the states that a session can leave an instance in.
template <typename Random>
void bringIntoAnyState(QMBrolt_PlugIn& plugIn, Random& random) {
    randomise(plugIn, random);
    plugIn.setCurrentPresetId(random() % 3 == 0 ? 0 : random() | 0x8000000000000000u);
    if (random() % 3 != 0) {
        plugIn.selectSnapshot(0, SnapshotMode::store);
        randomise(plugIn, random);
    }
    if (random() % 3 != 0) {
        plugIn.selectSnapshot(1, SnapshotMode::store);
        randomise(plugIn, random);
    }
    if (random() % 2 != 0)
        plugIn.setBlend(static_cast<float>(random() % 1000) / 999.0f, 0.25f);
    if (random() % 2 != 0) {
        plugIn.parameterValues()->setExtensionDocument(
            {{"parameterMap", {{"gain", {{"source_type", "MIDI"}, {"enabled", true}}}}},
             {"text", "\xC3\xA4\xE6\x97\xA5"},
             {"numbers", {random(), -1, 0.1, 1e300}}});
    }
}

QMGenericPreset throughBytes(const QMGenericPreset& record) {
    MemoryStream written(128);
    EXPECT_TRUE(writeGenericPreset(record, written));
    MemoryStream read(written.bytes());
    auto result = readGenericPreset(read);
    EXPECT_TRUE(result.has_value());
    return result.value_or(QMGenericPreset());
}

template <int N>
void expectSameSound(PlugInUnderTest<N>& first, PlugInUnderTest<N>& second, unsigned seed) {
    for (PlugInUnderTest<N>* each : {&first, &second}) {
        each->plugIn.createProcessingState();
        each->push(each->nextRecord());
    }
    std::mt19937 random(seed);
    for (int i = 0; i < 4; ++i) {
        TestBlock<N> block(512, random);
        TestBlock<N> same = block;
        first.process(block);
        second.process(same);
        for (std::size_t c = 0; c < N; ++c)
            ASSERT_TRUE(sameBits(block.output[c], same.output[c]));
    }
}

template <typename Layouts>
class StateRoundTrip : public ::testing::Test {};

using LayoutPairs =
    ::testing::Types<std::pair<std::integral_constant<int, 1>, std::integral_constant<int, 1>>,
                     std::pair<std::integral_constant<int, 1>, std::integral_constant<int, 2>>,
                     std::pair<std::integral_constant<int, 2>, std::integral_constant<int, 1>>,
                     std::pair<std::integral_constant<int, 2>, std::integral_constant<int, 2>>>;

TYPED_TEST_SUITE(StateRoundTrip, LayoutPairs);

} // namespace

TYPED_TEST(StateRoundTrip, bringsEverythingBack) {
    constexpr int from = TypeParam::first_type::value;
    constexpr int to = TypeParam::second_type::value;
    for (unsigned seed = 0; seed < 100; ++seed) {
        std::mt19937_64 random(seed);
        PlugInUnderTest<from> source;
        bringIntoAnyState(source.plugIn, random);
        const QMGenericPreset saved = source.plugIn.getStateRecord(StateExtent::complete);

        PlugInUnderTest<to> restored;
        ASSERT_TRUE(restored.plugIn.applyStateRecord(throughBytes(saved)));
        const QMGenericPreset again = restored.plugIn.getStateRecord(StateExtent::complete);
        ASSERT_EQ(again.values, saved.values) << seed;
        ASSERT_EQ(again.extension, saved.extension) << seed;
        ASSERT_EQ(again.uniqueId, saved.uniqueId) << seed;
        ASSERT_EQ(again.productCode, fourCharCode("BRLT"));
        ASSERT_EQ(again.manufacturerCode, fourCharCode("QML "));
        ASSERT_TRUE(restored.plugIn.equalsStateRecord(saved)) << seed;
        if constexpr (from == to)
            expectSameSound(source, restored, seed);
    }
}

TEST(StateRoundTripSound, aLayoutCarriedOverSoundsLikeItsOwn) {
    std::mt19937_64 random(3);
    PlugInUnderTest<1> mono;
    bringIntoAnyState(mono.plugIn, random);
    PlugInUnderTest<2> carried;
    carried.plugIn.applyStateRecord(mono.plugIn.getStateRecord(StateExtent::complete));
    PlugInUnderTest<2> made;
    for (std::int32_t i = 0; i < made.plugIn.parameterCount(); ++i)
        made.plugIn.setParameterValue(i, mono.plugIn.parameterValue(i));
    expectSameSound(carried, made, 1);
}

TEST(StateRoundTripSound, aRestoredStateIsOneCoefficientRecord) {
    PlugInUnderTest<2> source;
    std::mt19937_64 random(4);
    bringIntoAnyState(source.plugIn, random);
    PlugInUnderTest<2> restored;
    InProcessHost host;
    restored.plugIn.createProcessingState();
    restored.plugIn.setProcessingHost(&host);
    const std::int32_t before = restored.nextRecord().meterVersion;
    restored.plugIn.applyStateRecord(source.plugIn.getStateRecord(StateExtent::complete));
    EXPECT_EQ(restored.nextRecord().meterVersion, before + 2) << "one for the state, one just made";
    restored.plugIn.setProcessingHost(nullptr);
}

TEST(StateRoundTripSound, theProductHasTwoEmptySnapshots) {
    const PlugInUnderTest<1> test;
    EXPECT_EQ(test.plugIn.snapshotCount(), 2);
    EXPECT_EQ(test.plugIn.activeSnapshot(), -1);
    EXPECT_FALSE(test.plugIn.isSnapshotPopulated(0));
    EXPECT_FALSE(test.plugIn.isSnapshotPopulated(1));
    EXPECT_EQ(test.plugIn.snapshotName(0), "A");
    EXPECT_EQ(test.plugIn.snapshotName(1), "B");
}
