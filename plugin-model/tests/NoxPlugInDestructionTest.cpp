// SPDX-License-Identifier: GPL-3.0-or-later
// The farewells of an instance, and their order.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

#include <memory>

using ::testing::InSequence;
using ::testing::Ref;

TEST(NoxPlugInDestruction, environmentHostAndTypeHearOfItInThisOrder) {
    TestTypeGroup group;
    TestType& type = group.testType();
    NiceEnvironment environment;
    NiceProcessingHost host;
    ::testing::MockFunction<void(const INoxPlugIn&)> forgotten;
    type.onForget = forgotten.AsStdFunction();
    auto plugIn = std::make_unique<TestPlugIn>(type, &host, &environment);
    {
        const InSequence inOrder;
        EXPECT_CALL(environment, plugInGoingAway(Ref(*plugIn)));
        EXPECT_CALL(host, removePlugIn(plugIn.get()));
        EXPECT_CALL(forgotten, Call(Ref(*plugIn)));
    }
    plugIn.reset();
}

TEST(NoxPlugInDestruction, theValuesOutliveTheFarewells) {
    TestTypeGroup group;
    NiceEnvironment environment;
    auto plugIn = std::make_unique<TestPlugIn>(group.testType(), nullptr, &environment);
    ::testing::MockFunction<void()> valuesGone;
    dynamic_cast<TestValues&>(*plugIn->parameterValues()).onDestruction =
        valuesGone.AsStdFunction();
    const InSequence inOrder;
    EXPECT_CALL(environment, plugInGoingAway(Ref(*plugIn))).WillOnce([](INoxPlugIn& dying) {
        EXPECT_EQ(dying.parameterValue(0), 5.0);
    });
    EXPECT_CALL(valuesGone, Call());
    plugIn.reset();
}

TEST(NoxPlugInDestruction, buffersThatTheHostStillKeepsAreFreed) {
    TestTypeGroup group;
    NiceProcessingHost host;
    auto plugIn = std::make_unique<TestPlugIn>(group.testType(), &host, nullptr);
    void* left = plugIn->allocateRemoteBuffer(16, "left");
    const InSequence inOrder;
    EXPECT_CALL(host, removePlugIn(plugIn.get()));
    EXPECT_CALL(host, freeRemoteBlock(left));
    plugIn.reset();
}

TEST(NoxPlugInDestruction, withoutHostAndEnvironmentItOnlyLeavesItsType) {
    TestTypeGroup group;
    int forgotten = 0;
    group.testType().onForget = [&](const INoxPlugIn&) { ++forgotten; };
    { const TestPlugIn plugIn(group.testType(), nullptr, nullptr); }
    EXPECT_EQ(forgotten, 1);
}
