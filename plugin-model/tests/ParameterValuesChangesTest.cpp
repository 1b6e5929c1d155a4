// SPDX-License-Identifier: GPL-3.0-or-later
// Setting values: who is told, in which order, and what is recorded.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>

using parameterTest::levelIndex;
using parameterTest::modeIndex;
using parameterTest::outOfRange;
using parameterTest::RecordingListener;
using parameterTest::timeIndex;
using testing::ElementsAre;

namespace {

class ParameterChanges : public testing::Test {
protected:
    void installFlusher() {
        record.whenFlushed = [this](QM::QMParameterValues&) { events.push_back("flush"); };
        values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(record));
    }

    parameterTest::Events events;
    parameterTest::FlushRecord record;
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
    RecordingListener a{"a", events};
    RecordingListener b{"b", events};
    RecordingListener c{"c", events};
};

} // namespace

TEST_F(ParameterChanges, aSetValueIsStoredFlushedAndTold) {
    values.addListener(a);
    installFlusher();
    values.setParameterValue(levelIndex, 1.5, nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 1.5);
    EXPECT_TRUE(values.testChangedFlag(levelIndex));
    EXPECT_THAT(events, ElementsAre("flush", "a set 0 1.5"));
}

TEST_F(ParameterChanges, listenersAreToldTheValueThatIsInForce) {
    values.addListener(a);
    values.setParameterValue(levelIndex, 100.0, nullptr);
    values.setParameterValue(levelIndex, std::numeric_limits<double>::quiet_NaN(), nullptr);
    EXPECT_THAT(events, ElementsAre("a set 0 8", "a set 0 -8"));
}

TEST_F(ParameterChanges, listenersAreToldEvenWhenTheValueStaysTheSame) {
    values.addListener(a);
    values.setParameterValue(levelIndex, 2.5, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 0 2.5"));
}

TEST_F(ParameterChanges, listenersAreToldInTheOrderOfTheirRegistration) {
    values.addListener(b);
    values.addListener(c);
    values.addListener(a);
    values.setParameterValue(timeIndex, 20.0, nullptr);
    EXPECT_THAT(events, ElementsAre("b set 2 20", "c set 2 20", "a set 2 20"));
}

TEST_F(ParameterChanges, aRemovedListenerIsNotTold) {
    values.addListener(a);
    values.addListener(b);
    values.removeListener(a);
    values.removeListener(c); // was never there
    values.setParameterValue(timeIndex, 20.0, nullptr);
    EXPECT_THAT(events, ElementsAre("b set 2 20"));
}

TEST_F(ParameterChanges, aListenerMayRemoveItselfWhileItIsTold) {
    values.addListener(a);
    values.addListener(b);
    a.whenSet = [&] { values.removeListener(a); };
    values.setParameterValue(timeIndex, 20.0, nullptr);
    values.setParameterValue(timeIndex, 30.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 2 20", "b set 2 20", "b set 2 30"));
}

TEST_F(ParameterChanges, aListenerRemovedByAnEarlierOneIsNotToldAnyMore) {
    values.addListener(a);
    values.addListener(b);
    values.addListener(c);
    a.whenSet = [&] { values.removeListener(b); };
    values.setParameterValue(timeIndex, 20.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 2 20", "c set 2 20"));
}

TEST_F(ParameterChanges, aListenerAddedDuringAChangeIsToldFromTheNextOneOn) {
    values.addListener(a);
    a.whenSet = [&] {
        values.addListener(b);
        a.whenSet = nullptr;
    };
    values.setParameterValue(timeIndex, 20.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 2 20"));
    values.setParameterValue(timeIndex, 30.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 2 20", "a set 2 30", "b set 2 30"));
}

TEST_F(ParameterChanges, aListenerMaySetAnotherParameter) {
    values.addListener(a);
    values.addListener(b);
    a.whenSet = [&] {
        a.whenSet = nullptr;
        values.setParameterValue(modeIndex, 3.0, nullptr);
    };
    values.setParameterValue(timeIndex, 20.0, nullptr);
    EXPECT_THAT(events, ElementsAre("a set 2 20", "a set 1 3", "b set 1 3", "b set 2 20"));
    EXPECT_EQ(values.getValue(modeIndex), 3.0);
}

TEST_F(ParameterChanges, areRecordedWithTheValueInForceBeforeListenersAreTold) {
    QM::QMParameterChanges changes;
    values.addListener(a);
    a.whenSet = [&] { events.push_back("recorded " + std::to_string(changes.count())); };
    values.setParameterValue(levelIndex, 100.0, &changes);
    EXPECT_THAT(events, ElementsAre("a set 0 8", "recorded 1"));
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.indices()[0], levelIndex);
    EXPECT_EQ(changes.values()[0], 8.0);
}

TEST_F(ParameterChanges, settingOutOfRangeDoesNothing) {
    values.addListener(a);
    installFlusher();
    QM::QMParameterChanges changes;
    for (const std::int32_t index : outOfRange)
        values.setParameterValue(index, 1.0, &changes);
    EXPECT_TRUE(events.empty());
    EXPECT_TRUE(changes.empty());
}

TEST_F(ParameterChanges, severalAreSetInOrderAsOneBracketedChange) {
    values.addListener(a);
    installFlusher();
    QM::QMParameterChanges changes;
    const std::int32_t indices[] = {timeIndex, levelIndex, timeIndex};
    const double newValues[] = {20.0, 100.0, 30.0};
    values.setParameterValues(3, indices, newValues, &changes);
    EXPECT_THAT(events, ElementsAre("a set 2 20", "a set 0 8", "a set 2 30", "flush"));
    ASSERT_EQ(changes.count(), 3);
    EXPECT_EQ(changes.indices()[2], timeIndex);
    EXPECT_EQ(changes.values()[1], 8.0);
    EXPECT_EQ(changes.values()[2], 30.0);
}

TEST_F(ParameterChanges, unknownIndicesAmongSeveralAreLeftOut) {
    values.addListener(a);
    QM::QMParameterChanges changes;
    const std::int32_t indices[] = {-1, levelIndex, parameterTest::count};
    const double newValues[] = {1.0, 1.0, 1.0};
    values.setParameterValues(3, indices, newValues, &changes);
    EXPECT_THAT(events, ElementsAre("a set 0 1"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ParameterChanges, noneOrFewerThanNoneAreNoFault) {
    values.addListener(a);
    values.setParameterValues(0, nullptr, nullptr, nullptr);
    values.setParameterValues(-5, nullptr, nullptr, nullptr);
    EXPECT_TRUE(events.empty());
}

TEST_F(ParameterChanges, aReplayGoesToTheHandlerAndNowhereWithoutOne) {
    struct Handler : QM::IQMParameterValuesUndoHandler {
        MOCK_METHOD(void, replayParameterValue, (std::int32_t, double), (override));
        MOCK_METHOD(void, replayRecord, (const QMGenericPreset&), (override));
        MOCK_METHOD(void, replayBlendAmount, (float), (override));
    };

    values.replayParameterValue(levelIndex, 1.0);
    EXPECT_EQ(values.getValue(levelIndex), 2.5);

    testing::StrictMock<Handler> handler;
    EXPECT_CALL(handler, replayParameterValue(levelIndex, 1.0));
    values.setUndoHandler(&handler);
    values.replayParameterValue(levelIndex, 1.0);
    EXPECT_EQ(values.getValue(levelIndex), 2.5) << "the handler sets the value, not the forward";

    values.setUndoHandler(nullptr);
    values.replayParameterValue(levelIndex, 2.0);
}

TEST(QMParameterChanges, keepsOrderAndRepetitionsUntilCleared) {
    QM::QMParameterChanges changes;
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(changes.count(), 0);
    changes.record(3, 1.0);
    changes.record(-1, 0.5);
    changes.record(3, 2.0);
    ASSERT_EQ(changes.count(), 3);
    EXPECT_FALSE(changes.empty());
    EXPECT_THAT(std::vector<std::int32_t>(changes.indices(), changes.indices() + 3),
                ElementsAre(3, -1, 3));
    EXPECT_THAT(std::vector<double>(changes.values(), changes.values() + 3),
                ElementsAre(1.0, 0.5, 2.0));
    changes.clear();
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(changes.count(), 0);
}
