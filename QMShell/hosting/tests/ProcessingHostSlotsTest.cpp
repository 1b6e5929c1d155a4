// SPDX-License-Identifier: GPL-3.0-or-later
// The processing host's slots: who gets one, in which order things happen, and who leaves.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "QMShell/hosting/tests/MockHostedPlugIn.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

using ::testing::InSequence;
using ::testing::Mock;
using ::testing::NiceMock;
using ::testing::Ref;
using ::testing::Return;

namespace {

/// A host whose hooks can be watched.
class HookedHost : public QMShellPlugInProcessingHost {
public:
    MOCK_METHOD(NoxResult, testHook, (INoxPlugIn&), (override));
    MOCK_METHOD(NoxResult, attachHook, (std::int32_t, INoxPlugIn&), (override));
    MOCK_METHOD(NoxResult, detachHook, (std::int32_t, INoxPlugIn&), (override));
};

class ProcessingHostSlots : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceHostedPlugIn first{group};
    NiceHostedPlugIn second{group};
    NiceHostedPlugIn third{group};
    NiceMock<HookedHost> host;
    void* hostAddress = static_cast<QMShellPlugInProcessingHost*>(&host);

    static void* addressOf(INoxPlugIn& plugIn) { return &plugIn; }

    /// The host's end, after the test, tells the slotted instances once more.
    void TearDown() override {
        for (MockHostedPlugIn* plugIn : {&first, &second, &third})
            Mock::VerifyAndClearExpectations(plugIn);
    }

    void fill() {
        host.setSlotLimit(-1);
        for (MockHostedPlugIn* plugIn : {&first, &second, &third})
            ASSERT_EQ(host.instantiate(*plugIn), 0);
    }
};

} // namespace

TEST_F(ProcessingHostSlots, withTheInitialLimitOfZeroNothingIsSlotted) {
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, testHook).Times(0);
    EXPECT_CALL(host, attachHook).Times(0);
    EXPECT_CALL(first, setProcessingHost).Times(0);
    EXPECT_EQ(host.testInstantiatePlugIn(first), 7);
    EXPECT_EQ(capture.messages(), "");
    first.setDisplayName("Thing");
    EXPECT_EQ(host.instantiate(first), 7);
    EXPECT_EQ(host.slotCount(), 0);
    EXPECT_EQ(host.plugInAt(0), nullptr);
    EXPECT_EQ(capture.messages(),
              printed("Error: Instantiate Plugin: TestInstantiatePlugIn returned 7 for Thing[%p]\n",
                      addressOf(first)));
}

TEST_F(ProcessingHostSlots, aLimitIsANumberOfOccupiedSlots) {
    host.setSlotLimit(1);
    EXPECT_EQ(host.testInstantiatePlugIn(first), 0);
    EXPECT_EQ(host.instantiate(first), 0);
    EXPECT_EQ(host.testInstantiatePlugIn(second), 7);
    EXPECT_EQ(host.instantiate(second), 7);
    EXPECT_EQ(host.slotCount(), 1);
    host.removePlugIn(&first);
    EXPECT_EQ(host.instantiate(second), 0);
    EXPECT_EQ(host.plugInAt(0), &second);
}

TEST_F(ProcessingHostSlots, aNegativeLimitIsNone) {
    fill();
    EXPECT_EQ(host.slotCount(), 3);
    EXPECT_EQ(host.plugInAt(0), &first);
    EXPECT_EQ(host.plugInAt(1), &second);
    EXPECT_EQ(host.plugInAt(2), &third);
    EXPECT_EQ(host.plugInAt(3), nullptr);
    EXPECT_EQ(host.plugInAt(-1), nullptr);
}

TEST_F(ProcessingHostSlots, theAttachHookComesBeforeTheInstanceHearsOfItsHost) {
    host.setSlotLimit(-1);
    const InSequence inOrder;
    EXPECT_CALL(host, testHook(Ref(first)));
    EXPECT_CALL(host, attachHook(0, Ref(first)));
    EXPECT_CALL(first, setProcessingHost(&host));
    EXPECT_EQ(host.instantiate(first), 0);
}

TEST_F(ProcessingHostSlots, theAttachHooksAnswerIsTheResultAndTheInstanceStays) {
    host.setSlotLimit(-1);
    EXPECT_CALL(host, attachHook).WillOnce(Return(12));
    EXPECT_CALL(first, setProcessingHost(&host));
    EXPECT_EQ(host.instantiate(first), 12);
    EXPECT_EQ(host.slotCount(), 1);
}

TEST_F(ProcessingHostSlots, aTestAnswerOfFourLetsTheInstanceInAndIsTheResult) {
    host.setSlotLimit(-1);
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, testHook).WillOnce(Return(4));
    EXPECT_CALL(host, attachHook).Times(0);
    EXPECT_CALL(first, setProcessingHost(&host));
    EXPECT_EQ(host.instantiate(first), 4);
    EXPECT_EQ(host.plugInAt(0), &first);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(ProcessingHostSlots, anyOtherTestAnswerKeepsTheInstanceOut) {
    host.setSlotLimit(-1);
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, testHook).WillOnce(Return(-2001));
    EXPECT_CALL(first, setProcessingHost).Times(0);
    EXPECT_EQ(host.instantiate(first), -2001);
    EXPECT_EQ(host.slotCount(), 0);
    EXPECT_EQ(capture.messages(),
              printed("Error: Instantiate Plugin: TestInstantiatePlugIn returned -2001 for "
                      "Undefined Plugin[%p]\n",
                      addressOf(first)));
}

TEST_F(ProcessingHostSlots, aNewSlotIsTracedTwiceAndAFoundOneOnce) {
    host.setSlotLimit(-1);
    {
        const LogCapture capture;
        host.instantiate(first);
        EXPECT_EQ(capture.messages(),
                  printed("PH[%p]: Found Slot 0 for PlugIn %p\n", hostAddress, addressOf(first)) +
                      printed("PH[%p]: Added Slot 0 during instantiation\n", hostAddress));
    }
    host.instantiate(second);
    host.removePlugIn(&first);
    const LogCapture capture;
    host.instantiate(third);
    EXPECT_EQ(capture.messages(),
              printed("PH[%p]: Found Slot 0 for PlugIn %p\n", hostAddress, addressOf(third)));
}

TEST_F(ProcessingHostSlots, theFirstFreeSlotIsUsedAgain) {
    fill();
    host.removePlugIn(&second);
    host.removePlugIn(&first);
    EXPECT_EQ(host.slotCount(), 1);
    NiceHostedPlugIn fourth(group);
    EXPECT_CALL(host, attachHook(0, Ref(fourth)));
    EXPECT_CALL(host, attachHook(1, Ref(first)));
    EXPECT_EQ(host.instantiate(fourth), 0);
    EXPECT_EQ(host.instantiate(first), 0);
    EXPECT_EQ(host.plugInAt(0), &fourth);
    EXPECT_EQ(host.plugInAt(1), &first);
    EXPECT_EQ(host.plugInAt(2), &third);
    host.removePlugIn(&fourth);
}

TEST_F(ProcessingHostSlots, plugInAtCountsOccupiedSlotsEvenWhenFreeOnesLieBefore) {
    fill();
    host.removePlugIn(&first);
    EXPECT_EQ(host.plugInAt(0), nullptr);
    EXPECT_EQ(host.plugInAt(1), &second);
    EXPECT_EQ(host.plugInAt(2), nullptr); // slot 2 is occupied, but there are two instances
}

TEST_F(ProcessingHostSlots, slotInfoAsksTheInstance) {
    fill();
    EXPECT_EQ(host.slotInfo(1), nullptr); // was not told its slot
    second.setSlotNumber(1);
    ASSERT_NE(host.slotInfo(1), nullptr);
    EXPECT_EQ(host.slotInfo(1)->index, 1);
    EXPECT_EQ(host.slotInfo(1), second.slotRecord());
    EXPECT_EQ(host.slotInfo(3), nullptr);
    EXPECT_EQ(host.slotInfo(-1), nullptr);
    host.removePlugIn(&second);
    EXPECT_EQ(host.slotInfo(1), nullptr);
}

TEST_F(ProcessingHostSlots, removingNothingIsNoSuchPlugIn) {
    EXPECT_EQ(host.removePlugIn(nullptr), 2);
    EXPECT_EQ(host.removePlugIn(&first), 2);
}

TEST_F(ProcessingHostSlots, removingAnInstanceWithoutASlotRecordClearsTheEntryAndAnswersTwo) {
    fill();
    const LogCapture capture;
    EXPECT_CALL(host, detachHook).Times(0);
    EXPECT_CALL(second, setProcessingHost(nullptr));
    EXPECT_EQ(host.removePlugIn(&second), 2);
    EXPECT_EQ(host.slotCount(), 2);
    EXPECT_EQ(host.plugInAt(1), nullptr);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(ProcessingHostSlots, removingAnInstanceThatKnowsItsSlotAnswersTheDetachHook) {
    fill();
    second.setSlotNumber(1);
    const LogCapture capture;
    const InSequence inOrder;
    EXPECT_CALL(host, detachHook(1, Ref(second))).WillOnce([&] {
        EXPECT_EQ(host.plugInAt(1), &second); // still in its slot
        return 15;
    });
    EXPECT_CALL(second, setProcessingHost(nullptr));
    EXPECT_EQ(host.removePlugIn(&second), 15);
    EXPECT_EQ(host.slotCount(), 2);
    EXPECT_EQ(host.plugInAt(1), nullptr);
    EXPECT_EQ(capture.messages(),
              printed("PH[%p]: Removing PlugIn %p from Slot 1\n", hostAddress, addressOf(second)));
}

TEST_F(ProcessingHostSlots, theDetachHookOfThisHostIsASuccess) {
    QMShellPlugInProcessingHost plain;
    plain.setSlotLimit(-1);
    plain.instantiate(first);
    first.setSlotNumber(0);
    EXPECT_EQ(plain.removePlugIn(&first), 0);
    EXPECT_EQ(plain.removePlugIn(&first), 2); // gone already
}

TEST_F(ProcessingHostSlots, aRecordThatDoesNotMatchRemovesNothing) {
    fill();
    EXPECT_CALL(second, setProcessingHost).Times(0);
    EXPECT_CALL(host, detachHook).Times(0);
    for (const std::int32_t wrong : {0, 2, 3, 1000000}) {
        second.setSlotNumber(wrong);
        EXPECT_EQ(host.removePlugIn(&second), 2) << wrong;
    }
    EXPECT_EQ(host.slotCount(), 3);
    EXPECT_EQ(host.plugInAt(1), &second);
}
