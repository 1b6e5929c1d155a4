// SPDX-License-Identifier: GPL-3.0-or-later
// What a values object knows beside the values: its flusher, status, rate, packets and set.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>

using parameterTest::FlushRecord;
using parameterTest::RecordingFlusher;

namespace {

class ParameterSurroundings : public testing::Test {
protected:
    FlushRecord record; ///< outlives the values and so the flusher that writes to it
    FlushRecord second;
    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
};

} // namespace

TEST_F(ParameterSurroundings, theStatusIsTheDefaultWithoutAFlusher) {
    EXPECT_EQ(values.hostStatus(), 1024u);
    values.setDefaultHostStatus(0xFFFFFFFFu);
    EXPECT_EQ(values.hostStatus(), 0xFFFFFFFFu);
}

TEST_F(ParameterSurroundings, theStatusIsTheFlushersWhenThereIsOne) {
    record.status = 77;
    values.setFlusher(std::make_unique<RecordingFlusher>(record));
    EXPECT_EQ(values.hostStatus(), 77u);
    values.setDefaultHostStatus(5);
    EXPECT_EQ(values.hostStatus(), 77u);
    record.status = 0;
    EXPECT_EQ(values.hostStatus(), 0u);
    values.setFlusher(nullptr);
    EXPECT_EQ(values.hostStatus(), 5u);
}

TEST_F(ParameterSurroundings, flushingWithoutAFlusherDoesNothing) {
    values.flush();
    values.storeAndFlush(parameterTest::levelIndex, 1.0);
    EXPECT_EQ(values.getValue(parameterTest::levelIndex), 1.0);
}

TEST_F(ParameterSurroundings, aNewFlusherTakesThePlaceOfTheOldOne) {
    values.setFlusher(std::make_unique<RecordingFlusher>(record));
    values.flush();
    values.setFlusher(std::make_unique<RecordingFlusher>(second));
    EXPECT_EQ(record.destroyed, 1);
    EXPECT_EQ(second.destroyed, 0);
    values.flush();
    EXPECT_EQ(record.flushes, 1);
    EXPECT_EQ(second.flushes, 1);
    values.setFlusher(nullptr);
    EXPECT_EQ(second.destroyed, 1);
}

TEST_F(ParameterSurroundings, theFlusherGoesWithTheValues) {
    {
        QM::QMParameterValues shortLived(set, 48000.0);
        shortLived.setFlusher(std::make_unique<RecordingFlusher>(record));
        EXPECT_EQ(record.destroyed, 0);
    }
    EXPECT_EQ(record.destroyed, 1);
}

TEST_F(ParameterSurroundings, theFlusherGetsTheValuesObject) {
    const QM::QMParameterValues* flushed = nullptr;
    record.whenFlushed = [&](QM::QMParameterValues& object) { flushed = &object; };
    values.setFlusher(std::make_unique<RecordingFlusher>(record));
    values.flush();
    EXPECT_EQ(flushed, &values);
}

TEST_F(ParameterSurroundings, theSampleRateIsTheOneGiven) {
    EXPECT_EQ(values.sampleRate(), 48000.0);
    QM::QMParameterChanges changes;
    values.setSampleRate(96000.0, changes);
    EXPECT_EQ(values.sampleRate(), 96000.0);
    EXPECT_TRUE(changes.empty());
}

TEST_F(ParameterSurroundings, areEnabledUntilDisabled) {
    EXPECT_TRUE(values.enabled());
    values.disable();
    EXPECT_FALSE(values.enabled());
    values.disable();
    EXPECT_FALSE(values.enabled());
}

TEST_F(ParameterSurroundings, theSetIsTheOneGiven) {
    EXPECT_EQ(&values.parameterSet(), &set);
    EXPECT_EQ(&std::as_const(values).parameterSet(), &set);
}

TEST_F(ParameterSurroundings, coefficientVersionsAreCountedFromTwo) {
    EXPECT_EQ(values.nextCoefficientVersion(), 2);
    EXPECT_EQ(values.nextCoefficientVersion(), 3);
    EXPECT_EQ(values.nextCoefficientVersion(), 4);
}

TEST_F(ParameterSurroundings, theFrameworkGeneratesNoPackets) {
    PacketList packets;
    values.generatePackets(packets);
    EXPECT_TRUE(packets.empty());
    values.generateSharcPackets(packets);
    EXPECT_TRUE(packets.empty());
    EXPECT_EQ(values.nextCoefficientVersion(), 2) << "no packet, no version";
}

TEST_F(ParameterSurroundings, generatingTheSharcSetReleasesTheList) {
    PacketList packets;
    packets.push_back(std::make_unique<Packet>(0u, 72u));
    values.generateSharcPackets(packets);
    EXPECT_TRUE(packets.empty());
}

TEST_F(ParameterSurroundings, releasingEmptiesTheList) {
    PacketList packets;
    packets.push_back(std::make_unique<Packet>(0u, 72u));
    packets.push_back(std::make_unique<Packet>(1u, 4u));
    values.releasePackets(packets);
    EXPECT_TRUE(packets.empty());
    values.releasePackets(packets);
    EXPECT_TRUE(packets.empty());
}
