// SPDX-License-Identifier: GPL-3.0-or-later
// Instances of types that have no values object, or not even a parameter set.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

using ::testing::Mock;
using ::testing::Pointee;
using ::testing::Ref;

namespace {

/// An instance of a type that has a set and no values object.
class NoxPlugInWithoutValues : public ::testing::Test {
protected:
    NiceEnvironment environment;
    TestTypeGroup group{&environment, TestTypeKind::withoutValues};
    TestPlugIn plugIn{group.testType(), nullptr, &environment};
};

} // namespace

TEST_F(NoxPlugInWithoutValues, aRefreshAppliesTheRateAgainAndCallsEveryChangeHook) {
    const double rate = 48000.0;
    plugIn.setSampleRate(&rate);
    Mock::VerifyAndClearExpectations(&environment);
    EXPECT_CALL(environment, sampleRateSet(Ref(plugIn), Pointee(48000.0))).WillOnce([&] {
        EXPECT_TRUE(plugIn.hookCalls.empty()); // the rate comes first
    });
    plugIn.refresh(&plugIn);
    EXPECT_EQ(plugIn.hookCalls, (std::vector<TestHookCall>{{11, 0}, {33, 2}}));
}

TEST_F(NoxPlugInWithoutValues, aRefreshWithoutArgumentDoesNothing) {
    EXPECT_CALL(environment, sampleRateSet).Times(0);
    plugIn.refresh(nullptr);
    EXPECT_TRUE(plugIn.hookCalls.empty());
}

TEST_F(NoxPlugInWithoutValues, changesDoNothing) {
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(environment, parameterChanged).Times(0);
    EXPECT_CALL(environment, parameterTouched).Times(0);
    plugIn.setParameterValue(0, 7.0);
    plugIn.setNormalisedValue(0, 1.0);
    plugIn.storeAndFlush(0, 7.0);
    plugIn.beginAccumulate();
    plugIn.endAccumulate();
    plugIn.endAccumulate();
    plugIn.beginTouch(0);
    EXPECT_FALSE(plugIn.isTouched(0));
    plugIn.endTouch(0);
    EXPECT_FALSE(plugIn.testChangedFlag(0));
    plugIn.clearChangedFlag(0);
    plugIn.logParameterValues();
    PacketList packets;
    packets.push_back(std::make_unique<Packet>(Packet::messageKind, 4));
    plugIn.generatePackets(packets);
    plugIn.releasePackets(packets);
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_EQ(packets.size(), 1u);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(NoxPlugInWithoutValues, anIndexOutOfRangeIsLoggedAllTheSame) {
    const LogCapture capture(QM::LogLevel::error);
    plugIn.setParameterValue(3, 7.0);
    EXPECT_EQ(capture.messages(), "Error: got unexpected parameter index: 3\n");
}

TEST(NoxPlugInWithoutSet, aRefreshHasNoHooksToCall) {
    TestTypeGroup group(nullptr, TestTypeKind::withoutSet);
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    plugIn.refresh(&plugIn);
    EXPECT_TRUE(plugIn.hookCalls.empty());
    EXPECT_EQ(plugIn.sampleRate(), 44100.0);
}
