// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's buffers in its host's memory.
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::Ref;
using ::testing::Return;
using ::testing::StrEq;

namespace {

class NoxPlugInRemoteMemory : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceProcessingHost host;
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
    int word = 0;

    void attach() { plugIn.setProcessingHost(&host); }

    void TearDown() override { plugIn.setProcessingHost(nullptr); }
};

} // namespace

TEST_F(NoxPlugInRemoteMemory, withoutAHostThereIsNone) {
    EXPECT_EQ(plugIn.allocateRemoteBuffer(16, "name"), nullptr);
    EXPECT_EQ(plugIn.writeRemoteBuffer(&word, 0, 4, &word), 6);
    EXPECT_EQ(plugIn.readRemoteBuffer(&word, 0, 4, &word), 6);
    EXPECT_EQ(plugIn.readPlugInData(0, 4, &word), 6);
    plugIn.freeRemoteBuffer(&word);
    plugIn.setWantsAnalysisBuffer(true);
    plugIn.allocateAnalysisBuffer();
    plugIn.freeAnalysisBuffer();
}

TEST_F(NoxPlugInRemoteMemory, everyOperationIsTheHostsWithItsArguments) {
    attach();
    plugIn.setRemoteInstanceID(99);
    int source = 1;
    int destination = 2;
    EXPECT_CALL(host, allocateRemoteBlock(16, StrEq("name"))).WillOnce(Return(&word));
    EXPECT_CALL(host, writeRemoteBlock(&word, 1, 2, &source)).WillOnce(Return(4));
    EXPECT_CALL(host, readRemoteBlock(&word, 3, 4, &destination)).WillOnce(Return(5));
    EXPECT_CALL(host, readPlugInData(Ref(plugIn), 99, 6, 7, &destination)).WillOnce(Return(9));
    EXPECT_CALL(host, freeRemoteBlock(&word));
    EXPECT_EQ(plugIn.allocateRemoteBuffer(16, "name"), &word);
    EXPECT_EQ(plugIn.writeRemoteBuffer(&word, 1, 2, &source), 4);
    EXPECT_EQ(plugIn.readRemoteBuffer(&word, 3, 4, &destination), 5);
    EXPECT_EQ(plugIn.readPlugInData(6, 7, &destination), 9);
    plugIn.freeRemoteBuffer(&word);
}

TEST_F(NoxPlugInRemoteMemory, anAddressGivenTwiceIsRecordedOnce) {
    attach();
    ON_CALL(host, allocateRemoteBlock).WillByDefault(Return(&word));
    EXPECT_EQ(plugIn.allocateRemoteBuffer(16, "a"), &word);
    EXPECT_EQ(plugIn.allocateRemoteBuffer(16, "b"), &word);
    EXPECT_CALL(host, freeRemoteBlock(&word)).Times(1);
    plugIn.setProcessingHost(nullptr);
}

TEST_F(NoxPlugInRemoteMemory, aRefusedAllocationIsNotRecorded) {
    attach();
    ON_CALL(host, allocateRemoteBlock).WillByDefault(Return(nullptr));
    EXPECT_EQ(plugIn.allocateRemoteBuffer(16, "a"), nullptr);
    EXPECT_CALL(host, freeRemoteBlock).Times(0);
    plugIn.setProcessingHost(nullptr);
}

TEST_F(NoxPlugInRemoteMemory, anAnalysisBufferThatNobodyWantsIsNotAllocated) {
    attach();
    EXPECT_CALL(host, allocateRemoteBlock).Times(0);
    EXPECT_CALL(host, freeRemoteBlock).Times(0);
    plugIn.allocateAnalysisBuffer();
    plugIn.freeAnalysisBuffer();
}

TEST_F(NoxPlugInRemoteMemory, theAnalysisBufferHasSizeZeroAndItsName) {
    attach();
    plugIn.setWantsAnalysisBuffer(true);
    EXPECT_CALL(host, allocateRemoteBlock(0, StrEq("Analysis Collection Buffer")))
        .WillOnce(Return(&word));
    plugIn.allocateAnalysisBuffer();
}

TEST_F(NoxPlugInRemoteMemory, freeingTheAnalysisBufferTwiceDoesNothingTheSecondTime) {
    attach();
    plugIn.setWantsAnalysisBuffer(true);
    ON_CALL(host, allocateRemoteBlock).WillByDefault(Return(&word));
    plugIn.allocateAnalysisBuffer();
    EXPECT_CALL(host, freeRemoteBlock(&word)).Times(1);
    plugIn.freeAnalysisBuffer();
    plugIn.freeAnalysisBuffer();
}

TEST_F(NoxPlugInRemoteMemory, aRefreshAllocatesTheAnalysisBufferOnce) {
    attach();
    plugIn.setWantsAnalysisBuffer(true);
    EXPECT_CALL(host, allocateRemoteBlock(0, _)).WillOnce(Return(&word));
    plugIn.refresh(&word);
    plugIn.refresh(&word);
}
