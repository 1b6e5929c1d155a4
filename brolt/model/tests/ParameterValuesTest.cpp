// SPDX-License-Identifier: GPL-3.0-or-later
// The product's rule for single changes: one flush each, after the listeners were told.
#include "brolt/model/QMBrolt_ParameterValues.h"

#include "brolt/model/QMBrolt_ParametersSet.h"
#include "plugin-model/tests/ParameterRecordings.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>

using testing::ElementsAre;

namespace {

constexpr std::int32_t mixGain = 4;
constexpr std::int32_t wetDry = 13;
constexpr std::int32_t outputGain = 14;

class BroltValues : public testing::Test {
protected:
    BroltValues() {
        record.whenFlushed = [this](QM::QMParameterValues&) { events.push_back("flush"); };
        values->setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
        values->addListener(listener);
    }

    parameterTest::Events events;
    parameterTest::FlushRecord record;
    parameterTest::RecordingListener listener{"a", events};
    QM::QMBrolt_ParametersSet set{1};
    std::unique_ptr<QM::QMParameterValues> values = set.createParameterValues();
};

} // namespace

TEST_F(BroltValues, aSingleChangeFlushesOnceAndAfterTheListeners) {
    values->setParameterValue(outputGain, 3.5, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 14 3.5", "flush"));
}

TEST_F(BroltValues, theNewValueIsInForceForTheFlush) {
    double flushed = 0.0;
    record.whenFlushed = [&](QM::QMParameterValues& object) {
        flushed = object.getValue(outputGain);
    };
    values->setParameterValue(outputGain, 3.5, nullptr);
    EXPECT_EQ(flushed, 3.5);
}

TEST_F(BroltValues, aChangeToTheSameValueFlushesTooAndSoRenewsTheRecord) {
    values->setParameterValue(outputGain, 0.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 14 0", "flush"));
    EXPECT_FALSE(values->testChangedFlag(outputGain));
}

TEST_F(BroltValues, aGainAboveItsRangeIsClampedAndFlaggedOnce) {
    values->setParameterValue(mixGain, 10.0, nullptr);
    EXPECT_EQ(values->getValue(mixGain), 6.0);
    EXPECT_TRUE(values->testChangedFlag(mixGain));
    EXPECT_FALSE(values->storeValue(mixGain, 6.0));
    EXPECT_TRUE(values->testChangedFlag(mixGain)) << "an equal value leaves the flag as it was";
    values->clearChangedFlag(mixGain);
    EXPECT_FALSE(values->storeValue(mixGain, 6.0));
    EXPECT_FALSE(values->testChangedFlag(mixGain)) << "an equal value leaves the flag as it was";
}

TEST_F(BroltValues, everyParameterIsClampedIntoItsRange) {
    const double minima[] = {0, 1, 1, 0, -60, 1, 1, 0, -60, 1, 5, 1, 5, 0, -24};
    const double maxima[] = {1, 440, 440, 1, 6, 440, 440, 1, 6, 100, 1000, 100, 1000, 100, 24};
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (std::int32_t i = 0; i < 15; ++i) {
        values->setParameterValue(i, maxima[i] + 0.5, nullptr);
        EXPECT_EQ(values->getValue(i), maxima[i]) << i;
        values->setParameterValue(i, minima[i] - 0.5, nullptr);
        EXPECT_EQ(values->getValue(i), minima[i]) << i;
        values->setParameterValue(i, infinity, nullptr);
        EXPECT_EQ(values->getValue(i), maxima[i]) << i;
        values->setParameterValue(i, std::numeric_limits<double>::quiet_NaN(), nullptr);
        EXPECT_EQ(values->getValue(i), minima[i]) << i;
    }
}

TEST_F(BroltValues, aNegativeIndexDoesNothing) {
    QM::QMParameterChanges changes;
    values->setParameterValue(-1, 3.5, &changes);
    values->setParameterValue(std::numeric_limits<std::int32_t>::min(), 3.5, &changes);
    EXPECT_TRUE(events.empty());
    EXPECT_TRUE(changes.empty());
}

TEST_F(BroltValues, anIndexPastTheTableChangesNothingAndTellsNobody) {
    listener.whenSet = [] { FAIL() << "a listener was told"; };
    QM::QMParameterChanges changes;
    values->setParameterValue(15, 3.5, &changes);
    values->setParameterValue(std::numeric_limits<std::int32_t>::max(), 3.5, &changes);
    EXPECT_TRUE(changes.empty());
    for (std::int32_t i = 0; i < 15; ++i)
        EXPECT_FALSE(values->testChangedFlag(i)) << i;
    // The bracket is closed again.
    EXPECT_THROW(values->endAccumulate(), std::logic_error);
}

TEST_F(BroltValues, changesInsideABracketFlushAtItsEnd) {
    values->beginAccumulate();
    values->setParameterValue(outputGain, 3.5, nullptr);
    values->setParameterValue(wetDry, 50.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 14 3.5", "a set 13 50"));
    values->endAccumulate();
    EXPECT_THAT(events, ElementsAre("a set 14 3.5", "a set 13 50", "flush"));
}

TEST_F(BroltValues, severalChangesAtOnceFlushOnce) {
    const std::int32_t indices[] = {outputGain, wetDry, mixGain};
    const double newValues[] = {3.5, 50.0, -6.0};
    QM::QMParameterChanges changes;
    values->setParameterValues(3, indices, newValues, &changes);
    EXPECT_THAT(events, ElementsAre("a set 14 3.5", "a set 13 50", "a set 4 -6", "flush"));
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(BroltValues, aChangeByAListenerIsPartOfTheSameFlush) {
    listener.whenSet = [&] {
        listener.whenSet = nullptr;
        values->setParameterValue(wetDry, 50.0, nullptr);
    };
    values->setParameterValue(outputGain, 3.5, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 14 3.5", "a set 13 50", "flush"));
}

TEST_F(BroltValues, aListenerThatThrowsLeavesTheBracketClosed) {
    listener.whenSet = [] { throw std::runtime_error("listener"); };
    EXPECT_THROW(values->setParameterValue(outputGain, 3.5, nullptr), std::runtime_error);
    EXPECT_EQ(record.flushes, 1) << "the stored value still reaches the processor";
    listener.whenSet = nullptr;
    values->setParameterValue(outputGain, 4.5, nullptr);
    EXPECT_EQ(record.flushes, 2);
    EXPECT_THROW(values->endAccumulate(), std::logic_error);
}

TEST_F(BroltValues, aFlushThatThrowsReachesTheCallerAndLeavesTheBracketClosed) {
    record.whenFlushed = [](QM::QMParameterValues&) { throw std::bad_alloc(); };
    EXPECT_THROW(values->setParameterValue(outputGain, 3.5, nullptr), std::bad_alloc);
    EXPECT_EQ(values->getValue(outputGain), 3.5);
    record.whenFlushed = nullptr;
    EXPECT_THROW(values->endAccumulate(), std::logic_error);
}

TEST_F(BroltValues, aChangeIsRecordedWithTheValueInForce) {
    QM::QMParameterChanges changes;
    values->setParameterValue(mixGain, 10.0, &changes);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.indices()[0], mixGain);
    EXPECT_EQ(changes.values()[0], 6.0);
}
