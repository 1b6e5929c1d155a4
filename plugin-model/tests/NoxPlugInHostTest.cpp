// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's move from host to host: what is given back, what is made new, in which order.
#include "plugin-model/DspIOConnectionController.h"
#include "plugin-model/QMSharcIOConnectionController.h"
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::InSequence;
using ::testing::MockFunction;
using ::testing::NotNull;
using ::testing::Pointee;
using ::testing::Ref;
using ::testing::Return;
using ::testing::StrEq;

namespace {

enum class Delivery { none, nowhere, sharc, dsp, inProcess };
enum class Controller { none, sharc, dsp };

struct Row {
    NoxRuntimeArchitecture architecture;
    Delivery delivery;
    Controller controller;
};

// clang-format off
constexpr std::array<Row, 19> rows{{
    {-1, Delivery::none,      Controller::none},
    {0,  Delivery::none,      Controller::none},
    {1,  Delivery::sharc,     Controller::sharc},
    {2,  Delivery::none,      Controller::none},
    {3,  Delivery::none,      Controller::none},
    {4,  Delivery::none,      Controller::none},
    {5,  Delivery::none,      Controller::none},
    {6,  Delivery::none,      Controller::none},
    {7,  Delivery::none,      Controller::none},
    {8,  Delivery::none,      Controller::none},
    {9,  Delivery::sharc,     Controller::sharc},
    {10, Delivery::dsp,       Controller::dsp},
    {11, Delivery::dsp,       Controller::dsp},
    {12, Delivery::dsp,       Controller::dsp},
    {13, Delivery::inProcess, Controller::dsp},
    {14, Delivery::nowhere,   Controller::none},
    {15, Delivery::none,      Controller::none},
    {16, Delivery::none,      Controller::none},
    {99, Delivery::none,      Controller::none},
}};

// clang-format on

class NoxPlugInArchitecture : public ::testing::TestWithParam<Row> {
protected:
    TestTypeGroup group;
    NiceProcessingHost host{GetParam().architecture};
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
};

} // namespace

TEST_P(NoxPlugInArchitecture, selectsTheRoadOfTheFirstFlush) {
    constexpr std::uint64_t id = 0xABCDEF0123456789u;
    const Delivery delivery = GetParam().delivery;
    const bool dsp = delivery == Delivery::dsp;
    const bool inProcess = delivery == Delivery::inProcess;
    plugIn.setRemoteInstanceID(id);

    // The SHARC set is one message of one word; the ordinary one two words and a message of three.
    EXPECT_CALL(host, sendCoefficients(_, _, _, _, _)).Times(0);
    EXPECT_CALL(host, sendMessage(_, _, _, _, _)).Times(0);
    if (delivery == Delivery::sharc)
        EXPECT_CALL(host, sendCoefficients(0, Ref(plugIn), id, 1, NotNull()));
    if (dsp) {
        const InSequence inOrder;
        EXPECT_CALL(host, sendCoefficients(0, Ref(plugIn), id, 2, NotNull()));
        EXPECT_CALL(host, sendMessage(0, Ref(plugIn), id, 3, NotNull()));
    }
    plugIn.setProcessingHost(&host);
    EXPECT_EQ(plugIn.pushedLengths,
              inProcess ? std::vector<std::uint64_t>{8} : std::vector<std::uint64_t>{});
    EXPECT_EQ(plugIn.messageLengths,
              inProcess ? std::vector<std::uint64_t>{12} : std::vector<std::uint64_t>{});
}

TEST_P(NoxPlugInArchitecture, decidesWhoAnswersForTheHostStatus) {
    ON_CALL(host, hostWord).WillByDefault(Return(77));
    plugIn.setProcessingHost(&host);
    constexpr std::uint32_t withoutFlusher = 1024;
    std::uint32_t expected = 77;
    if (GetParam().delivery == Delivery::none)
        expected = withoutFlusher;
    if (GetParam().delivery == Delivery::nowhere)
        expected = 0;
    EXPECT_EQ(plugIn.parameterValues()->hostStatus(), expected);
}

TEST_P(NoxPlugInArchitecture, selectsTheConnectionController) {
    plugIn.setProcessingHost(&host);
    const QMIOConnectionController* made = plugIn.ioConnectionController();
    const Controller expected = GetParam().controller;
    EXPECT_EQ(made != nullptr, expected != Controller::none);
    EXPECT_EQ(dynamic_cast<const QMSharcIOConnectionController*>(made) != nullptr,
              expected == Controller::sharc);
    EXPECT_EQ(dynamic_cast<const DspIOConnectionController*>(made) != nullptr,
              expected == Controller::dsp);
}

TEST_P(NoxPlugInArchitecture, isAnsweredAsTheHostKind) {
    EXPECT_EQ(plugIn.hostKind(), 0);
    plugIn.setProcessingHost(&host);
    EXPECT_EQ(plugIn.hostKind(), GetParam().architecture);
    EXPECT_EQ(plugIn.processingHost(), &host);
}

INSTANTIATE_TEST_SUITE_P(EveryNumber, NoxPlugInArchitecture, ::testing::ValuesIn(rows),
                         [](const ::testing::TestParamInfo<Row>& row) {
                             return row.param.architecture < 0
                                        ? std::string("negative")
                                        : std::to_string(row.param.architecture);
                         });

namespace {

class NoxPlugInHost : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceEnvironment environment;
    NiceProcessingHost first{NoxArchitecture::native, 48000.0};
    NiceProcessingHost second{NoxArchitecture::dspMac, 96000.0};
    TestPlugIn plugIn{group.testType(), nullptr, &environment};
};

} // namespace

TEST_F(NoxPlugInHost, attachingTakesTheRateThenFlushesOneCompletePacket) {
    MockFunction<void()> pushed;
    plugIn.onPush = pushed.AsStdFunction();
    const InSequence inOrder;
    EXPECT_CALL(first, sampleRate());
    EXPECT_CALL(environment, sampleRateSet(Ref(plugIn), Pointee(48000.0)));
    EXPECT_CALL(pushed, Call());
    plugIn.setProcessingHost(&first);
    EXPECT_EQ(plugIn.sampleRate(), 48000.0);
    EXPECT_EQ(plugIn.parameterValues()->sampleRate(), 48000.0);
}

TEST_F(NoxPlugInHost, movingFreesTheAnalysisBufferThenWhatIsLeftAndOnlyThenMeetsTheNewHost) {
    plugIn.setWantsAnalysisBuffer(true);
    void* analysis = nullptr;
    EXPECT_CALL(first, allocateRemoteBlock(_, _)).WillRepeatedly(Return(&analysis));
    plugIn.setProcessingHost(&first);
    int left = 0;
    EXPECT_CALL(first, allocateRemoteBlock(_, _)).WillRepeatedly(Return(&left));
    plugIn.allocateRemoteBuffer(8, "left");

    const LogCapture capture(QM::LogLevel::error);
    const InSequence inOrder;
    EXPECT_CALL(first, freeRemoteBlock(static_cast<void*>(&analysis)));
    EXPECT_CALL(first, freeRemoteBlock(static_cast<void*>(&left)));
    EXPECT_CALL(second, runtimeArchitecture()).Times(2); // controller and flusher
    EXPECT_CALL(second, sampleRate());
    EXPECT_CALL(environment, sampleRateSet(Ref(plugIn), Pointee(96000.0)));
    EXPECT_CALL(second, allocateRemoteBlock(0, StrEq("Analysis Collection Buffer")));
    EXPECT_CALL(second, sendCoefficients(0, Ref(plugIn), 0, 2, _));
    plugIn.setProcessingHost(&second);
    EXPECT_EQ(capture.messages(),
              "NoxPlugIn: Error: Derived Class failed to remove all Remote Buffers\n");
}

TEST_F(NoxPlugInHost, buffersLeftBehindAreForgottenAfterTheyWereFreed) {
    plugIn.setProcessingHost(&first);
    void* left = plugIn.allocateRemoteBuffer(8, "left");
    EXPECT_CALL(first, freeRemoteBlock(left)).Times(1);
    plugIn.setProcessingHost(&second);
    plugIn.setProcessingHost(&first);
    plugIn.setProcessingHost(nullptr);
}

TEST_F(NoxPlugInHost, aMoveWithoutBuffersLogsNothing) {
    plugIn.setProcessingHost(&first);
    plugIn.freeRemoteBuffer(plugIn.allocateRemoteBuffer(8, "given back"));
    const LogCapture capture(QM::LogLevel::error);
    plugIn.setProcessingHost(&second);
    plugIn.setProcessingHost(nullptr);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(NoxPlugInHost, detachingDropsControllerAndFlusherAndKeepsTheRate) {
    plugIn.setProcessingHost(&first);
    plugIn.pushedLengths.clear();
    EXPECT_CALL(environment, sampleRateSet).Times(0);
    plugIn.setProcessingHost(nullptr);
    EXPECT_EQ(plugIn.processingHost(), nullptr);
    EXPECT_EQ(plugIn.hostKind(), 0);
    EXPECT_EQ(plugIn.ioConnectionController(), nullptr);
    EXPECT_EQ(plugIn.sampleRate(), 48000.0);
    EXPECT_EQ(plugIn.parameterValues()->hostStatus(), 1024u);
    plugIn.setParameterValue(0, 1.0);
    EXPECT_TRUE(plugIn.pushedLengths.empty());
}

TEST_F(NoxPlugInHost, theSameHostAgainKeepsControllerAndBuffersAndFlushesAgain) {
    plugIn.setWantsAnalysisBuffer(true);
    plugIn.setProcessingHost(&first);
    const QMIOConnectionController* controller = plugIn.ioConnectionController();
    plugIn.allocateRemoteBuffer(8, "kept");
    plugIn.pushedLengths.clear();
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(first, freeRemoteBlock).Times(0);
    EXPECT_CALL(first, allocateRemoteBlock).Times(0);
    plugIn.setProcessingHost(&first);
    EXPECT_EQ(plugIn.ioConnectionController(), controller);
    EXPECT_EQ(plugIn.pushedLengths, std::vector<std::uint64_t>{8});
    EXPECT_EQ(capture.messages(), "");
    ::testing::Mock::VerifyAndClearExpectations(&first);
    plugIn.setProcessingHost(nullptr); // the buffers of the fixture's host
}

TEST_F(NoxPlugInHost, aControllerSetWithoutAHostGoesWhenAHostComes) {
    plugIn.setIOConnectionController(
        std::make_unique<QMSharcIOConnectionController>(plugIn, 7, 8, 9));
    plugIn.setProcessingHost(&first);
    EXPECT_NE(dynamic_cast<DspIOConnectionController*>(plugIn.ioConnectionController()), nullptr);
}

TEST_F(NoxPlugInHost, noHostAgainStaysWithoutHost) {
    plugIn.setProcessingHost(nullptr);
    EXPECT_EQ(plugIn.processingHost(), nullptr);
    EXPECT_TRUE(plugIn.pushedLengths.empty());
}

TEST_F(NoxPlugInHost, parametersThatChangeWithTheRateAreTold) {
    dynamic_cast<TestValues&>(*plugIn.parameterValues()).rateMovesAParameter = true;
    const double rate = 88200.0;
    const InSequence inOrder;
    EXPECT_CALL(environment, sampleRateSet(Ref(plugIn), Pointee(88200.0)));
    EXPECT_CALL(environment, parametersChanged(Ref(plugIn), 1, Pointee(2), Pointee(77.0), 0));
    plugIn.setSampleRate(&rate);
    EXPECT_EQ(plugIn.sampleRate(), 88200.0);
}

TEST_F(NoxPlugInHost, aRateThatChangesNoParameterTellsOnlyTheRate) {
    const double rate = 88200.0;
    EXPECT_CALL(environment, sampleRateSet(Ref(plugIn), Pointee(88200.0)));
    EXPECT_CALL(environment, parametersChanged).Times(0);
    plugIn.setSampleRate(&rate);
}

TEST_F(NoxPlugInHost, anInstanceWithoutValuesMovesToo) {
    TestTypeGroup plain(nullptr, TestTypeKind::withoutValues);
    TestPlugIn bare(plain.testType(), nullptr, nullptr);
    bare.setProcessingHost(&first);
    EXPECT_EQ(bare.sampleRate(), 48000.0);
    EXPECT_TRUE(bare.pushedLengths.empty());
    EXPECT_NE(bare.ioConnectionController(), nullptr);
    bare.setProcessingHost(nullptr);
    EXPECT_EQ(bare.ioConnectionController(), nullptr);
}
