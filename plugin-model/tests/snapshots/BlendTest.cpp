// SPDX-License-Identifier: GPL-3.0-or-later
// The blend of snapshots A and B.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/StateTestKit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace stateTest;

class Blend : public testing::Test {
protected:
    Blend() { state.fillBoth(a, b); }

    void blend(float x) { values.setBlend(x, 0.5f, nullptr); }

    State state;
    Values& values = state.values;
    const std::vector<double> a{0.0, 2.0, 4.0, 0.1};
    const std::vector<double> b{1.0, 8.0, 100.0, 0.9};
};

TEST_F(Blend, startsInTheMiddle) {
    State fresh;
    EXPECT_EQ(fresh.values.blendCoordinate(false), 0.5f);
    EXPECT_EQ(fresh.values.blendCoordinate(true), 0.5f);
}

TEST_F(Blend, mixesInTheNormalisedDomain) {
    values.set(stayIndex, 0.3);
    blend(0.5f);
    EXPECT_EQ(values.activeSnapshot(), QM::blendOfSnapshots);
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    // Logarithmic over 1..400: half way between the logarithms of 4 and 100 is that of 20.
    EXPECT_NEAR(values.getValue(pitchIndex), 20.0, 1e-9);
    EXPECT_EQ(values.getValue(bypassIndex), 1.0) << "half a switch rounds away from zero";
    EXPECT_EQ(values.getValue(stayIndex), 0.3) << "not blended";
}

TEST_F(Blend, atItsEndsIsAAndB) {
    blend(0.0f);
    EXPECT_EQ(values.getValue(levelIndex), a[levelIndex]);
    EXPECT_NEAR(values.getValue(pitchIndex), a[pitchIndex], 1e-9);
    blend(1.0f);
    EXPECT_EQ(values.getValue(levelIndex), b[levelIndex]);
    EXPECT_NEAR(values.getValue(pitchIndex), b[pitchIndex], 1e-9);
    EXPECT_EQ(values.getValue(stayIndex), a[stayIndex]);
}

TEST_F(Blend, keepsWhatIsEqualInBothWhateverThePosition) {
    state.fillBoth({0.0, 3.3, 7.7, 0.5}, {0.0, 3.3, 9.9, 0.5});
    for (const float x : {0.0f, 0.123f, 0.9f, 3.0f, -1.0f}) {
        blend(x);
        EXPECT_EQ(values.getValue(levelIndex), 3.3) << "no rounding to the step of 0.5 either";
    }
}

TEST_F(Blend, needsBothSnapshots) {
    State fresh;
    fresh.values.select(0);
    fresh.values.setBlend(0.3f, 0.4f, nullptr);
    fresh.values.select(QM::blendOfSnapshots);
    EXPECT_EQ(fresh.values.activeSnapshot(), 0);
    EXPECT_EQ(fresh.values.blendCoordinate(false), 0.5f);
}

TEST_F(Blend, selectingItTwiceAppliesItAgain) {
    values.select(QM::blendOfSnapshots);
    values.set(levelIndex, 9.5);
    values.select(QM::blendOfSnapshots);
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_EQ(values.blendCoordinate(false), 0.5f);
}

TEST_F(Blend, settingTheSamePositionDoesNotApplyItAgain) {
    blend(0.5f);
    values.set(levelIndex, 9.5);
    blend(0.5f);
    EXPECT_EQ(values.getValue(levelIndex), 9.5);
}

TEST_F(Blend, aMoveOfTheSecondCoordinateAppliesItAgain) {
    blend(0.5f);
    values.set(levelIndex, 9.5);
    values.setBlend(0.5f, 0.75f, nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_EQ(values.blendCoordinate(true), 0.75f);
}

TEST_F(Blend, isOneFlushAndLeavesTheSnapshotsAlone) {
    parameterTest::FlushRecord record;
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
    blend(0.25f);
    EXPECT_EQ(record.flushes, 1);
    EXPECT_EQ(values.snapshot(0), a);
    EXPECT_EQ(values.snapshot(1), b);
    values.setFlusher(nullptr);
}

TEST_F(Blend, positionsThatAreNoNumbersDoNothing) {
    for (const float x :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
          -std::numeric_limits<float>::infinity()}) {
        blend(x);
        values.setBlend(0.5f, x, nullptr);
    }
    EXPECT_EQ(values.activeSnapshot(), 0);
    EXPECT_EQ(values.all(), a);
}

TEST_F(Blend, aPositionBeyondTheEndsIsClampedByTheParameters) {
    blend(50.0f);
    EXPECT_EQ(values.getValue(levelIndex), 10.0);
    EXPECT_EQ(values.getValue(pitchIndex), 400.0);
    blend(-50.0f);
    EXPECT_EQ(values.getValue(levelIndex), 0.0);
}

TEST_F(Blend, theParameterThatStandsForItMovesItInstead) {
    values.setBlendParameterIndex(stayIndex);
    QM::QMParameterChanges changes;
    values.setParameterValue(stayIndex, 0.25, &changes);
    EXPECT_EQ(values.getValue(stayIndex), 0.25);
    EXPECT_EQ(values.blendCoordinate(false), 0.25f);
    EXPECT_EQ(values.blendCoordinate(true), 0.25f);
    EXPECT_EQ(values.activeSnapshot(), QM::blendOfSnapshots);
    ASSERT_GT(changes.count(), 1);
    EXPECT_EQ(changes.indices()[0], stayIndex);
    values.setBlendLocked(true);
    values.set(stayIndex, 0.75);
    EXPECT_EQ(values.getValue(stayIndex), 0.25);
    EXPECT_EQ(values.blendCoordinate(false), 0.25f);
}

TEST_F(Blend, theParameterThatStandsForItIsNeitherBlendedNorRecalledNorApplied) {
    values.setBlendParameterIndex(levelIndex);
    blend(0.5f);
    EXPECT_EQ(values.getValue(levelIndex), 2.0);
    values.select(1);
    EXPECT_EQ(values.getValue(levelIndex), 2.0);
    EXPECT_EQ(values.activeSnapshot(), 1);
    QMGenericPreset record = values.makeRecord(StateExtent::parameters);
    record.values[fourCharCode("levl")] = 9.0;
    values.applyRecord(record, nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 2.0);
    EXPECT_EQ(values.activeSnapshot(), 1);
}

} // namespace
