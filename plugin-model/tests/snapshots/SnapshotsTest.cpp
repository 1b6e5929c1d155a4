// SPDX-License-Identifier: GPL-3.0-or-later
// Selecting, filling, copying and loading snapshots.
#include "plugin-model/tests/StateTestKit.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace stateTest;
using QM::SnapshotMode;

class Snapshots : public testing::Test {
protected:
    State state;
    Values& values = state.values;
    const std::vector<double> a{0.0, 2.0, 10.0, 0.1};
    const std::vector<double> b{1.0, 8.0, 200.0, 0.9};
};

TEST(SnapshotCount, isNoneUntilAProductSetsIt) {
    Set set;
    Values values(set);
    EXPECT_EQ(values.snapshotCount(), 0);
    EXPECT_EQ(values.activeSnapshot(), -1);
    values.select(0);
    EXPECT_EQ(values.activeSnapshot(), -1);
}

TEST(SnapshotCount, newSnapshotsAreEmptyAndALostActiveOneIsNone) {
    State state;
    Values& values = state.values;
    EXPECT_EQ(values.snapshot(0), (std::vector{0.0, 0.0, 0.0, 0.0}));
    EXPECT_FALSE(values.isSnapshotPopulated(0));
    EXPECT_EQ(values.snapshotPresetId(1), 0u);
    values.select(1, SnapshotMode::store);
    values.setSnapshotCount(1);
    EXPECT_EQ(values.activeSnapshot(), -1);
    values.setSnapshotCount(-3);
    EXPECT_EQ(values.snapshotCount(), 0);
}

TEST_F(Snapshots, anEmptyOneIsFilledWhenItIsSelected) {
    state.setAll(a);
    values.setCurrentPresetId(42);
    values.select(1);
    EXPECT_EQ(values.activeSnapshot(), 1);
    EXPECT_TRUE(values.isSnapshotPopulated(1));
    EXPECT_EQ(values.snapshot(1), a);
    EXPECT_EQ(values.snapshotPresetId(1), 42u);
    EXPECT_FALSE(values.undoManager().canUndo()) << "storing is no step of the history";
}

TEST_F(Snapshots, aPopulatedOneIsAppliedWhenItIsSelected) {
    state.fillBoth(a, b);
    values.setCurrentPresetId(7);
    QM::QMParameterChanges changes;
    values.selectSnapshot(1, SnapshotMode::recallOrStore, &changes);
    EXPECT_EQ(values.all(), b);
    EXPECT_EQ(values.activeSnapshot(), 1);
    EXPECT_EQ(values.currentPresetId(), 0u) << "the snapshot's own";
    EXPECT_EQ(changes.count(), count) << "all have been changed since their flags were cleared";
}

TEST_F(Snapshots, modeZeroOnlyMovesTheActiveIndex) {
    state.fillBoth(a, b);
    values.select(1, SnapshotMode::activate);
    EXPECT_EQ(values.activeSnapshot(), 1);
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.snapshot(1), b);

    State fresh;
    fresh.values.select(1, SnapshotMode::activate);
    EXPECT_FALSE(fresh.values.isSnapshotPopulated(1));
}

TEST_F(Snapshots, modeTwoStoresIntoAPopulatedOne) {
    state.fillBoth(a, b);
    values.select(1, SnapshotMode::store);
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.snapshot(1), a);
}

TEST_F(Snapshots, theActiveOneCannotBeSelectedAgain) {
    state.fillBoth(a, b);
    values.setCurrentPresetId(7);
    values.select(0, SnapshotMode::store);
    EXPECT_EQ(values.snapshotPresetId(0), 0u);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(Snapshots, indicesOutOfRangeDoNothing) {
    state.fillBoth(a, b);
    for (const std::int32_t index : {2, 3, -3, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()}) {
        for (const auto mode :
             {SnapshotMode::activate, SnapshotMode::recallOrStore, SnapshotMode::store})
            values.select(index, mode);
        values.loadSnapshotFromPreset(index, values.makeRecord(StateExtent::parameters), nullptr);
        values.copySnapshot(index, 1, nullptr);
        values.copySnapshot(1, index, nullptr);
        EXPECT_FALSE(values.isSnapshotPopulated(index));
        EXPECT_EQ(values.snapshotName(index), "Unknown");
        EXPECT_EQ(values.snapshotValue(index, 0), 0.0);
        EXPECT_FALSE(values.snapshotsAreEqual(0, index));
    }
    EXPECT_EQ(values.activeSnapshot(), 0);
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.snapshotName(-1), "Unknown");
    EXPECT_EQ(values.snapshotValue(0, count), 0.0);
}

TEST_F(Snapshots, noSnapshotCanBeSelectedToo) {
    state.fillBoth(a, b);
    values.select(QM::noSnapshot);
    EXPECT_EQ(values.activeSnapshot(), -1);
    values.set(levelIndex, 9.0);
    EXPECT_EQ(values.snapshot(0), a);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(Snapshots, changesGoIntoTheActiveOneClamped) {
    state.fillBoth(a, b);
    values.set(levelIndex, 99.0);
    EXPECT_EQ(values.snapshot(0)[levelIndex], 10.0);
    EXPECT_EQ(values.snapshot(1), b);
}

TEST_F(Snapshots, saysWhichArePopulated) {
    EXPECT_TRUE(values.isSnapshotPopulated(-1));
    EXPECT_FALSE(values.isSnapshotPopulated(-2));
    values.select(0);
    EXPECT_FALSE(values.isSnapshotPopulated(-2));
    values.select(1);
    EXPECT_TRUE(values.isSnapshotPopulated(-2));
}

TEST_F(Snapshots, haveLettersForNames) {
    EXPECT_EQ(values.snapshotName(0), "A");
    EXPECT_EQ(values.snapshotName(1), "B");
    values.setSnapshotCount(27);
    EXPECT_EQ(values.snapshotName(25), "Z");
    EXPECT_EQ(values.snapshotName(26), "27");
}

TEST_F(Snapshots, aTakesNoPartInCopying) {
    state.fillBoth(a, b);
    values.copySnapshot(0, 1, nullptr);
    values.copySnapshot(1, 0, nullptr);
    EXPECT_EQ(values.snapshot(0), a);
    EXPECT_EQ(values.snapshot(1), b);
}

TEST_F(Snapshots, oneAfterACanBeCopiedToAnother) {
    values.setSnapshotCount(3);
    state.fillBoth(a, b);
    values.copySnapshot(2, 1, nullptr);
    EXPECT_EQ(values.snapshot(1), b) << "2 is empty";
    values.copySnapshot(1, 2, nullptr);
    EXPECT_EQ(values.snapshot(2), b);
    EXPECT_TRUE(values.isSnapshotPopulated(2));
    EXPECT_TRUE(values.snapshotsAreEqual(1, 2));
    EXPECT_FALSE(values.snapshotsAreEqual(0, 2));
    EXPECT_EQ(values.all(), a);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(Snapshots, aCopyToTheActiveOneIsAppliedAndCanBeUndone) {
    values.setSnapshotCount(3);
    state.fillBoth(a, b);
    values.select(2, SnapshotMode::store);
    ASSERT_EQ(values.all(), a);
    values.copySnapshot(1, 2, nullptr);
    EXPECT_EQ(values.all(), b);
    values.undoManager().undo();
    EXPECT_EQ(values.getValue(levelIndex), a[levelIndex]);
    EXPECT_EQ(values.getValue(bypassIndex), b[bypassIndex]) << "records leave the bypass alone";
}

TEST_F(Snapshots, aPresetGoesIntoAnInactiveOneSilently) {
    state.fillBoth(a, b);
    QMGenericPreset record;
    record.values = {{fourCharCode("levl"), 3.0}, {fourCharCode("none"), 1.0}};
    record.uniqueId = 99;
    values.loadSnapshotFromPreset(1, record, nullptr);
    EXPECT_EQ(values.snapshot(1), (std::vector{1.0, 3.0, 200.0, 0.9}));
    EXPECT_EQ(values.snapshotPresetId(1), 99u);
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.currentPresetId(), 0u);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(Snapshots, aPresetGoesIntoTheActiveOneAndIsApplied) {
    state.fillBoth(a, b);
    QMGenericPreset record;
    record.values = {{fourCharCode("levl"), 3.0}, {fourCharCode("mbyp"), 1.0}};
    record.uniqueId = 99;
    values.loadSnapshotFromPreset(0, record, nullptr);
    EXPECT_EQ(values.all(), (std::vector{0.0, 3.0, 10.0, 0.1})) << "the bypass is left alone";
    EXPECT_EQ(values.currentPresetId(), 99u);
    EXPECT_EQ(values.undoManager().undoCount(), 1u);
    values.undoManager().undo();
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.currentPresetId(), 0u);
}

TEST_F(Snapshots, anEmptyPresetChangesNothing) {
    state.fillBoth(a, b);
    QMGenericPreset record;
    record.uniqueId = 99;
    values.loadSnapshotFromPreset(0, record, nullptr);
    EXPECT_EQ(values.snapshotPresetId(0), 0u);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(Snapshots, loadingAPresetDoesNotPopulateOne) {
    QMGenericPreset record;
    record.values = {{fourCharCode("levl"), 3.0}};
    values.loadSnapshotFromPreset(1, record, nullptr);
    EXPECT_FALSE(values.isSnapshotPopulated(1));
}

} // namespace
