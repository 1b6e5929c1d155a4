// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's inputs, outputs and their slots.
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::Return;
using ::testing::StrictMock;

namespace {

class MockConnectionController : public QMIOConnectionController {
public:
    MOCK_METHOD(void, outputConnected, (std::int32_t, std::int32_t), (override));
    MOCK_METHOD(void, inputConnected, (std::int32_t, std::int32_t), (override));
    MOCK_METHOD(void, transfer, (Packet&, std::int32_t, const QMTransferPair*), (override));
    MOCK_METHOD(void, setInputCode, (std::int32_t), (override));
    MOCK_METHOD(void, setOutputCode, (std::int32_t), (override));
    MOCK_METHOD(void, setTransferCode, (std::int32_t), (override));
};

/// Two inputs and three outputs on a host whose default slots are 10 on for inputs, 20 on for
/// outputs.
class NoxPlugInConnections : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceProcessingHost host;
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
    StrictMock<MockConnectionController>* controller = nullptr;

    void attach() {
        ON_CALL(host, defaultInputSlot).WillByDefault([](std::int32_t i) { return 10 + i; });
        ON_CALL(host, defaultOutputSlot).WillByDefault([](std::int32_t i) { return 20 + i; });
        plugIn.setProcessingHost(&host);
        auto mock = std::make_unique<StrictMock<MockConnectionController>>();
        controller = mock.get();
        plugIn.setIOConnectionController(std::move(mock));
    }
};

} // namespace

TEST_F(NoxPlugInConnections, theCountsAreTheTypesAndNothingIsConnected) {
    EXPECT_EQ(plugIn.inputCount(), 2);
    EXPECT_EQ(plugIn.outputCount(), 3);
    for (std::int32_t i = -1; i <= 3; ++i) {
        EXPECT_EQ(plugIn.inputSlot(i), -1) << i;
        EXPECT_EQ(plugIn.outputSlot(i), -1) << i;
        EXPECT_FALSE(plugIn.inputSlotDiffers(i)) << i;
        EXPECT_FALSE(plugIn.outputSlotDiffers(i)) << i;
    }
}

TEST_F(NoxPlugInConnections, everyConnectionIsTracedWithTheDisplayNameAndTheAddress) {
    const LogCapture capture;
    plugIn.setDisplayName("Thing");
    plugIn.connectInput(1, 7);
    plugIn.connectOutput(2, 8);
    void* address = &plugIn;
    EXPECT_EQ(capture.messages(),
              printed("Thing(%p) Connecting Input 1 to Slot 7:\n", address) +
                  printed("Thing(%p) Connecting Output 2 to Slot 8:\n", address));
}

TEST_F(NoxPlugInConnections, theTraceIsAtLevelFour) {
    const LogCapture capture(3);
    plugIn.connectInput(1, 7);
    plugIn.connectOutput(2, 8);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(NoxPlugInConnections, anInputAtTheCountDoesNothingButTheLogLine) {
    attach();
    const LogCapture capture;
    EXPECT_CALL(host, defaultInputSlot).Times(0);
    plugIn.connectInput(2, 5);
    plugIn.connectInput(-1, 5);
    void* address = &plugIn;
    EXPECT_EQ(capture.messages(),
              printed("Undefined Plugin(%p) Connecting Input %d to Slot 5:\n", address, 2) +
                  printed("Undefined Plugin(%p) Connecting Input %d to Slot 5:\n", address, -1));
    EXPECT_EQ(plugIn.inputSlot(2), -1);
    EXPECT_EQ(plugIn.inputCount(), 2);
}

TEST_F(NoxPlugInConnections, anOutputAtTheCountDoesNothingButTheLogLine) {
    attach();
    const LogCapture capture;
    EXPECT_CALL(host, defaultOutputSlot).Times(0);
    plugIn.connectOutput(3, 5);
    plugIn.connectOutput(-1, 5);
    void* address = &plugIn;
    EXPECT_EQ(capture.messages(),
              printed("Undefined Plugin(%p) Connecting Output %d to Slot 5:\n", address, 3) +
                  printed("Undefined Plugin(%p) Connecting Output %d to Slot 5:\n", address, -1));
    EXPECT_EQ(plugIn.outputSlot(3), -1);
    EXPECT_EQ(plugIn.outputCount(), 3);
}

TEST_F(NoxPlugInConnections, theControllerHearsOfEveryInput) {
    attach();
    EXPECT_CALL(*controller, inputConnected(0, 10));
    EXPECT_CALL(*controller, inputConnected(1, 3));
    plugIn.connectInput(0, 10);
    plugIn.connectInput(1, 3);
    EXPECT_EQ(plugIn.inputSlot(0), 10);
    EXPECT_EQ(plugIn.inputSlot(1), 3);
    EXPECT_FALSE(plugIn.inputSlotDiffers(0));
    EXPECT_TRUE(plugIn.inputSlotDiffers(1));
}

TEST_F(NoxPlugInConnections, theControllerHearsOfOutputsThatLeaveTheDefaultSlotOnly) {
    attach();
    EXPECT_CALL(*controller, outputConnected(1, 5));
    plugIn.connectOutput(0, 20);
    plugIn.connectOutput(1, 5);
    EXPECT_EQ(plugIn.outputSlot(0), 20);
    EXPECT_EQ(plugIn.outputSlot(1), 5);
    EXPECT_FALSE(plugIn.outputSlotDiffers(0));
    EXPECT_TRUE(plugIn.outputSlotDiffers(1));
}

TEST_F(NoxPlugInConnections, goingBackToTheDefaultSlotIsNoDifferenceAnyMore) {
    attach();
    EXPECT_CALL(*controller, inputConnected(_, _)).Times(2);
    EXPECT_CALL(*controller, outputConnected(1, 5)).Times(1);
    plugIn.connectInput(1, 3);
    plugIn.connectInput(1, 11);
    plugIn.connectOutput(1, 5);
    plugIn.connectOutput(1, 21);
    EXPECT_FALSE(plugIn.inputSlotDiffers(1));
    EXPECT_FALSE(plugIn.outputSlotDiffers(1));
}

TEST_F(NoxPlugInConnections, withoutAHostTheSlotIsStoredAndNoDifferenceRecorded) {
    plugIn.connectInput(0, 3);
    plugIn.connectOutput(2, 4);
    EXPECT_EQ(plugIn.inputSlot(0), 3);
    EXPECT_EQ(plugIn.outputSlot(2), 4);
    EXPECT_FALSE(plugIn.inputSlotDiffers(0));
    EXPECT_FALSE(plugIn.outputSlotDiffers(2));
}

TEST_F(NoxPlugInConnections, aChannelPairThatTheTypeDoesNotKnowIsRefused) {
    EXPECT_EQ(plugIn.setIOConfiguration(2, 2), 11);
    EXPECT_EQ(plugIn.setIOConfiguration(3, 2), 11);
    EXPECT_EQ(plugIn.setIOConfiguration(-1, -1), 11);
    EXPECT_EQ(plugIn.inputCount(), 2);
    EXPECT_EQ(plugIn.outputCount(), 3);
}

TEST_F(NoxPlugInConnections, theProductMayRefuseAPairThatTheTypeKnows) {
    plugIn.hookResult = NoxResultCode::invalidGraph;
    EXPECT_EQ(plugIn.setIOConfiguration(2, 3), 12);
    plugIn.hookResult = NoxResultCode::noError;
    EXPECT_EQ(plugIn.setIOConfiguration(2, 3), 0);
    EXPECT_EQ(plugIn.inputCount(), 2);
    EXPECT_EQ(plugIn.outputCount(), 3);
}

TEST_F(NoxPlugInConnections, theBaseAcceptsEveryPairThatTheTypeKnows) {
    NoxPlugIn base(group.testType(), nullptr, nullptr);
    EXPECT_EQ(base.setIOConfiguration(2, 3), 0);
}

TEST_F(NoxPlugInConnections, analysisGoesThroughTheControllerWhenThereIsOne) {
    attach();
    Packet packet(Packet::messageKind, 40);
    EXPECT_CALL(host, fetchInputCopy).Times(0);
    EXPECT_CALL(*controller, transfer(::testing::Ref(packet), 0, nullptr));
    plugIn.fetchAnalysis(packet);
}

TEST_F(NoxPlugInConnections, analysisComesFromTheHostsInputCopyWithoutAController) {
    attach();
    plugIn.setIOConnectionController(nullptr);
    plugIn.setRemoteInstanceID(44);
    Packet packet(Packet::messageKind, 43);
    EXPECT_CALL(host, fetchInputCopy(::testing::Ref(plugIn), 44, 0, 10, packet.data))
        .WillOnce(Return(6));
    plugIn.fetchAnalysis(packet);
}
