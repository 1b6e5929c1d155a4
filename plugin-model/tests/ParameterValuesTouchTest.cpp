// SPDX-License-Identifier: GPL-3.0-or-later
// Holds of parameters, which are counted, and the changed flags.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gmock/gmock.h>

using parameterTest::levelIndex;
using parameterTest::outOfRange;
using parameterTest::RecordingListener;
using parameterTest::timeIndex;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ParameterTouch : public testing::Test {
protected:
    ParameterTouch() { values.addListener(a); }

    parameterTest::Events events;
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
    RecordingListener a{"a", events};
    RecordingListener b{"b", events};
};

class ParameterChangedFlags : public testing::Test {
protected:
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
};

} // namespace

TEST_F(ParameterTouch, beginAndEndAreAnnounced) {
    EXPECT_FALSE(values.isTouched(timeIndex));
    values.beginTouch(timeIndex);
    EXPECT_TRUE(values.isTouched(timeIndex));
    EXPECT_FALSE(values.isTouched(levelIndex));
    values.endTouch(timeIndex);
    EXPECT_FALSE(values.isTouched(timeIndex));
    EXPECT_THAT(events, ElementsAre("a touched 2", "a released 2"));
}

TEST_F(ParameterTouch, onlyTheFirstHoldAndTheLastReleaseAreAnnounced) {
    values.beginTouch(timeIndex);
    values.beginTouch(timeIndex);
    values.beginTouch(timeIndex);
    values.endTouch(timeIndex);
    values.endTouch(timeIndex);
    EXPECT_TRUE(values.isTouched(timeIndex));
    EXPECT_THAT(events, ElementsAre("a touched 2"));
    values.endTouch(timeIndex);
    EXPECT_FALSE(values.isTouched(timeIndex));
    EXPECT_THAT(events, ElementsAre("a touched 2", "a released 2"));
}

TEST_F(ParameterTouch, parametersAreCountedApart) {
    values.beginTouch(timeIndex);
    values.beginTouch(levelIndex);
    values.endTouch(timeIndex);
    EXPECT_TRUE(values.isTouched(levelIndex));
    EXPECT_THAT(events, ElementsAre("a touched 2", "a touched 0", "a released 2"));
}

TEST_F(ParameterTouch, anEndWithoutABeginCountsToMinusOneInSilence) {
    values.endTouch(timeIndex);
    EXPECT_TRUE(values.isTouched(timeIndex)) << "a count of -1 is not 0";
    EXPECT_THAT(events, IsEmpty());

    values.beginTouch(timeIndex); // -1 to 0
    EXPECT_FALSE(values.isTouched(timeIndex));
    EXPECT_THAT(events, IsEmpty());

    values.beginTouch(timeIndex);
    values.endTouch(timeIndex);
    EXPECT_THAT(events, ElementsAre("a touched 2", "a released 2"));
}

TEST_F(ParameterTouch, isAnnouncedBeforeItIsCountedAndReleasedAfterTheAnnouncement) {
    bool touchedDuringStart = true;
    a.whenTouched = [&] { touchedDuringStart = values.isTouched(timeIndex); };
    values.beginTouch(timeIndex);
    EXPECT_FALSE(touchedDuringStart);
    EXPECT_TRUE(values.isTouched(timeIndex));
}

TEST_F(ParameterTouch, everyListenerIsToldInOrder) {
    values.addListener(b);
    values.beginTouch(levelIndex);
    values.endTouch(levelIndex);
    EXPECT_THAT(events, ElementsAre("a touched 0", "b touched 0", "a released 0", "b released 0"));
}

TEST_F(ParameterTouch, indicesOutOfRangeAreIgnored) {
    for (const std::int32_t index : outOfRange) {
        values.beginTouch(index);
        EXPECT_FALSE(values.isTouched(index)) << index;
        values.endTouch(index);
        values.endTouch(index);
        EXPECT_FALSE(values.isTouched(index)) << index;
    }
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ParameterTouch, isNoChangeOfAValue) {
    values.beginTouch(timeIndex);
    values.endTouch(timeIndex);
    EXPECT_FALSE(values.testChangedFlag(timeIndex));
    EXPECT_EQ(values.getValue(timeIndex), 10.0);
}

TEST_F(ParameterChangedFlags, areSetTestedAndClearedByIndex) {
    values.setChangedFlag(timeIndex);
    EXPECT_TRUE(values.testChangedFlag(timeIndex));
    EXPECT_FALSE(values.testChangedFlag(levelIndex));
    values.clearChangedFlag(timeIndex);
    EXPECT_FALSE(values.testChangedFlag(timeIndex));
    values.clearChangedFlag(timeIndex);
    EXPECT_FALSE(values.testChangedFlag(timeIndex));
}

TEST_F(ParameterChangedFlags, areTheSameByIdentifier) {
    values.setChangedFlagByID(fourCharCode("time"));
    EXPECT_TRUE(values.testChangedFlag(timeIndex));
    EXPECT_TRUE(values.testChangedFlagByID(fourCharCode("time")));
    EXPECT_FALSE(values.testChangedFlagByID(fourCharCode("levl")));
    values.clearChangedFlagByID(fourCharCode("time"));
    EXPECT_FALSE(values.testChangedFlag(timeIndex));
}

TEST_F(ParameterChangedFlags, unknownIndicesDoNothingAndTestFalse) {
    for (const std::int32_t index : outOfRange) {
        values.setChangedFlag(index);
        EXPECT_FALSE(values.testChangedFlag(index)) << index;
        values.clearChangedFlag(index);
    }
    for (std::int32_t i = 0; i < parameterTest::count; ++i)
        EXPECT_FALSE(values.testChangedFlag(i)) << i;
}

TEST_F(ParameterChangedFlags, unknownIdentifiersDoNothingAndTestFalse) {
    values.setChangedFlag(levelIndex);
    for (const FourCharCode id : {0u, 0xFFFFFFFFu, fourCharCode("none")}) {
        values.setChangedFlagByID(id);
        EXPECT_FALSE(values.testChangedFlagByID(id));
        values.clearChangedFlagByID(id);
    }
    EXPECT_TRUE(values.testChangedFlag(levelIndex));
    for (std::int32_t i = 1; i < parameterTest::count; ++i)
        EXPECT_FALSE(values.testChangedFlag(i)) << i;
}
