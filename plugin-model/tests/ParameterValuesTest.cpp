// SPDX-License-Identifier: GPL-3.0-or-later
// The stored values: where they start, how they are clamped, and what counts as a change.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using parameterTest::levelIndex;
using parameterTest::modeIndex;
using parameterTest::outOfRange;
using parameterTest::timeIndex;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class ParameterValues : public testing::Test {
protected:
    parameterTest::FlushRecord record; ///< outlives the values and so the flusher that writes to it
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
};

} // namespace

TEST_F(ParameterValues, startAtTheDefaults) {
    const double defaults[] = {2.5, 2.0, 10.0, 1.0, 5.0};
    for (std::int32_t i = 0; i < parameterTest::count; ++i) {
        EXPECT_EQ(values.getValue(i), defaults[i]) << i;
        EXPECT_FALSE(values.testChangedFlag(i)) << i;
        EXPECT_FALSE(values.isTouched(i)) << i;
    }
}

TEST_F(ParameterValues, startAtDefaultsThatTheirSetWasGivenBefore) {
    set.setDefaultValue(timeIndex, 33.0);
    const QM::QMParameterValues later(set, 48000.0);
    EXPECT_EQ(later.getValue(timeIndex), 33.0);
    EXPECT_EQ(values.getValue(timeIndex), 10.0);
}

TEST_F(ParameterValues, areReadByIdentifier) {
    EXPECT_EQ(values.getValueByID(fourCharCode("time")), 10.0);
    EXPECT_EQ(values.getValueByID(fourCharCode("levl")), 2.5);
    EXPECT_EQ(values.getValueByID(fourCharCode("none")), 0.0);
    EXPECT_EQ(values.getValueByID(0xFFFFFFFFu), 0.0);
    EXPECT_EQ(values.getValueByID(0), 0.0);
}

TEST_F(ParameterValues, areZeroOutOfRange) {
    for (const std::int32_t index : outOfRange)
        EXPECT_EQ(values.getValue(index), 0.0) << index;
}

TEST_F(ParameterValues, areStoredAndFlagged) {
    EXPECT_TRUE(values.storeValue(levelIndex, -3.25));
    EXPECT_EQ(values.getValue(levelIndex), -3.25);
    EXPECT_TRUE(values.testChangedFlag(levelIndex));
    EXPECT_FALSE(values.testChangedFlag(modeIndex));
}

TEST_F(ParameterValues, storingTheSameValueIsNoChange) {
    EXPECT_FALSE(values.storeValue(levelIndex, 2.5));
    EXPECT_FALSE(values.testChangedFlag(levelIndex));

    values.storeValue(levelIndex, 3.0);
    values.clearChangedFlag(levelIndex);
    EXPECT_FALSE(values.storeValue(levelIndex, 3.0));
    EXPECT_FALSE(values.testChangedFlag(levelIndex));
}

TEST_F(ParameterValues, storingTheSameValueLeavesAFlagThatIsSet) {
    values.storeValue(levelIndex, 3.0);
    EXPECT_FALSE(values.storeValue(levelIndex, 3.0));
    EXPECT_TRUE(values.testChangedFlag(levelIndex));
}

TEST_F(ParameterValues, areClampedIntoTheirRange) {
    EXPECT_TRUE(values.storeValue(levelIndex, 8.0001));
    EXPECT_EQ(values.getValue(levelIndex), 8.0);
    EXPECT_FALSE(values.storeValue(levelIndex, 1e300));
    EXPECT_TRUE(values.storeValue(levelIndex, -8.0001));
    EXPECT_EQ(values.getValue(levelIndex), -8.0);
    EXPECT_TRUE(values.storeValue(timeIndex, 0.0));
    EXPECT_EQ(values.getValue(timeIndex), 1.0);
}

TEST_F(ParameterValues, areNotRoundedToTheirStep) {
    values.storeValue(levelIndex, 0.123456789);
    EXPECT_EQ(values.getValue(levelIndex), 0.123456789);
    values.storeValue(modeIndex, 1.6);
    EXPECT_EQ(values.getValue(modeIndex), 1.6);
}

TEST_F(ParameterValues, infinitiesBecomeTheEndsOfTheRange) {
    EXPECT_TRUE(values.storeValue(levelIndex, infinity));
    EXPECT_EQ(values.getValue(levelIndex), 8.0);
    EXPECT_TRUE(values.storeValue(levelIndex, -infinity));
    EXPECT_EQ(values.getValue(levelIndex), -8.0);
}

TEST_F(ParameterValues, notANumberBecomesTheMinimum) {
    EXPECT_TRUE(values.storeValue(levelIndex, notANumber));
    EXPECT_EQ(values.getValue(levelIndex), -8.0);
    EXPECT_FALSE(values.storeValue(levelIndex, -notANumber));
}

TEST_F(ParameterValues, storingOutOfRangeDoesNothing) {
    for (const std::int32_t index : outOfRange)
        EXPECT_FALSE(values.storeValue(index, 1.0)) << index;
    EXPECT_EQ(values.getValue(levelIndex), 2.5);
    EXPECT_EQ(values.getValue(parameterTest::strayIndex), 5.0);
}

TEST_F(ParameterValues, storingTellsNobody) {
    parameterTest::Events events;
    parameterTest::RecordingListener listener("a", events);
    values.addListener(listener);
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));

    EXPECT_TRUE(values.storeValue(levelIndex, 1.0));

    EXPECT_TRUE(events.empty());
    EXPECT_EQ(record.flushes, 0);
}

TEST_F(ParameterValues, storeAndFlushFlushesEvenWithoutAChange) {
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
    values.storeAndFlush(levelIndex, 1.0);
    EXPECT_EQ(values.getValue(levelIndex), 1.0);
    EXPECT_EQ(record.flushes, 1);
    values.storeAndFlush(levelIndex, 1.0);
    EXPECT_EQ(record.flushes, 2);
}

TEST_F(ParameterValues, severalAreStoredWithOneFlush) {
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
    const std::int32_t indices[] = {timeIndex, -1, levelIndex, 99, timeIndex};
    const double stored[] = {1000.0, 1.0, notANumber, 1.0, 20.0};
    values.storeValuesAndFlush(5, indices, stored);
    EXPECT_EQ(values.getValue(timeIndex), 20.0);
    EXPECT_EQ(values.getValue(levelIndex), -8.0);
    EXPECT_EQ(record.flushes, 1);
    values.storeValuesAndFlush(0, nullptr, nullptr);
    EXPECT_EQ(record.flushes, 2);
}

TEST_F(ParameterValues, restoringAllChangesNothingAndFlushesOnce) {
    values.storeValue(levelIndex, 1.0);
    values.clearChangedFlag(levelIndex);
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));

    values.restoreAllAndFlush();

    EXPECT_EQ(record.flushes, 1);
    EXPECT_EQ(values.getValue(levelIndex), 1.0);
    for (std::int32_t i = 0; i < parameterTest::count; ++i)
        EXPECT_FALSE(values.testChangedFlag(i)) << i;
}

TEST_F(ParameterValues, restoringAllBringsAnImpossibleDefaultIntoItsRange) {
    set.setDefaultValue(levelIndex, 50.0);
    QM::QMParameterValues later(set, 48000.0);
    EXPECT_EQ(later.getValue(levelIndex), 50.0);
    later.restoreAllAndFlush();
    EXPECT_EQ(later.getValue(levelIndex), 8.0);
    EXPECT_TRUE(later.testChangedFlag(levelIndex));
}
