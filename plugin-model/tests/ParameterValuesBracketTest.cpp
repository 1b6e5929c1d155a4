// SPDX-License-Identifier: GPL-3.0-or-later
// Brackets around bursts of changes: when they flush, and what exceptions do to them.
#include "plugin-model/AccumulateBracket.h"
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gmock/gmock.h>

#include <stdexcept>

using parameterTest::levelIndex;
using parameterTest::timeIndex;

namespace {

class ParameterBracket : public testing::Test {
protected:
    ParameterBracket() {
        values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
    }

    /// The bracket depth shows by whether a flush gets through.
    bool flushGetsThrough() {
        const int before = record.flushes;
        values.flush();
        return record.flushes == before + 1;
    }

    parameterTest::FlushRecord record;
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
};

} // namespace

TEST_F(ParameterBracket, nothingIsFlushedInside) {
    values.beginAccumulate();
    values.flush();
    values.storeAndFlush(levelIndex, 1.0);
    values.setParameterValue(timeIndex, 20.0, nullptr);
    values.restoreAllAndFlush();
    EXPECT_EQ(record.flushes, 0);
    EXPECT_EQ(values.getValue(levelIndex), 1.0);
    values.endAccumulate();
    EXPECT_EQ(record.flushes, 1);
}

TEST_F(ParameterBracket, theEndFlushesEvenWhenNothingWasChanged) {
    values.beginAccumulate();
    values.endAccumulate();
    EXPECT_EQ(record.flushes, 1);
}

TEST_F(ParameterBracket, onlyTheOutermostEndFlushes) {
    values.beginAccumulate();
    values.beginAccumulate();
    values.endAccumulate();
    EXPECT_EQ(record.flushes, 0);
    values.endAccumulate();
    EXPECT_EQ(record.flushes, 1);
}

TEST_F(ParameterBracket, anEndWithoutABeginThrows) {
    values.beginAccumulate();
    values.beginAccumulate();
    values.endAccumulate();
    values.endAccumulate();
    try {
        values.endAccumulate();
        FAIL() << "no exception";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "Unbalanced Accumulate/Flush Parameter Updates");
    }
    EXPECT_EQ(record.flushes, 1);
}

TEST_F(ParameterBracket, anUnbalancedEndLeavesTheDepthAsItIs) {
    EXPECT_THROW(values.endAccumulate(), std::logic_error);
    EXPECT_TRUE(flushGetsThrough());
    values.beginAccumulate();
    EXPECT_FALSE(flushGetsThrough());
    values.endAccumulate();
    EXPECT_TRUE(flushGetsThrough());
}

TEST_F(ParameterBracket, balancesWithoutAFlusherToo) {
    values.setFlusher(nullptr);
    values.beginAccumulate();
    values.endAccumulate();
    EXPECT_THROW(values.endAccumulate(), std::logic_error);
}

TEST_F(ParameterBracket, anExceptionOfTheFlushLeavesItClosed) {
    record.whenFlushed = [](QM::QMParameterValues&) { throw std::runtime_error("no memory"); };
    values.beginAccumulate();
    EXPECT_THROW(values.endAccumulate(), std::runtime_error);
    record.whenFlushed = nullptr;
    EXPECT_TRUE(flushGetsThrough());
}

TEST_F(ParameterBracket, theValuesAreAllInForceWhenTheFlushComes) {
    double level = 0.0;
    double time = 0.0;
    record.whenFlushed = [&](QM::QMParameterValues& flushed) {
        level = flushed.getValue(levelIndex);
        time = flushed.getValue(timeIndex);
    };
    values.beginAccumulate();
    values.setParameterValue(levelIndex, 1.0, nullptr);
    values.setParameterValue(timeIndex, 20.0, nullptr);
    values.endAccumulate();
    EXPECT_EQ(level, 1.0);
    EXPECT_EQ(time, 20.0);
}

TEST_F(ParameterBracket, aListenerThatThrowsAmongSeveralChangesLeavesItClosed) {
    parameterTest::Events events;
    parameterTest::RecordingListener listener("a", events);
    listener.whenSet = [] { throw std::runtime_error("listener"); };
    values.addListener(listener);
    const std::int32_t indices[] = {levelIndex, timeIndex};
    const double newValues[] = {1.0, 20.0};
    EXPECT_THROW(values.setParameterValues(2, indices, newValues, nullptr), std::runtime_error);
    EXPECT_EQ(record.flushes, 1) << "what was stored before the exception is flushed";
    EXPECT_TRUE(flushGetsThrough());
}

TEST_F(ParameterBracket, theGuardClosesOnItsOwn) {
    {
        const QM::AccumulateBracket bracket(values);
        EXPECT_FALSE(flushGetsThrough());
    }
    EXPECT_EQ(record.flushes, 1);
    EXPECT_TRUE(flushGetsThrough());
}

TEST_F(ParameterBracket, aGuardThatWasClosedDoesNotCloseAgain) {
    {
        QM::AccumulateBracket bracket(values);
        bracket.close();
        EXPECT_EQ(record.flushes, 1);
    }
    EXPECT_EQ(record.flushes, 1);
    EXPECT_THROW(values.endAccumulate(), std::logic_error);
}

TEST_F(ParameterBracket, guardsNest) {
    {
        const QM::AccumulateBracket outer(values);
        { const QM::AccumulateBracket inner(values); }
        EXPECT_EQ(record.flushes, 0);
    }
    EXPECT_EQ(record.flushes, 1);
}

TEST_F(ParameterBracket, theGuardsCloseTellsOfAFailedFlush) {
    record.whenFlushed = [](QM::QMParameterValues&) { throw std::runtime_error("flush"); };
    QM::AccumulateBracket bracket(values);
    EXPECT_THROW(bracket.close(), std::runtime_error);
    record.whenFlushed = nullptr;
    EXPECT_TRUE(flushGetsThrough());
}

TEST_F(ParameterBracket, theFirstExceptionIsTheOneToldWhenTheFlushFailsToo) {
    record.whenFlushed = [](QM::QMParameterValues&) { throw std::runtime_error("flush"); };
    try {
        const QM::AccumulateBracket bracket(values);
        throw std::invalid_argument("change");
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "change");
    }
    EXPECT_EQ(record.flushes, 1);
    record.whenFlushed = nullptr;
    EXPECT_TRUE(flushGetsThrough());
}
