// SPDX-License-Identifier: GPL-3.0-or-later
// The environment's listeners: who hears what, in which order, and what the log says.
#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "plugin-model/NoxParameterHandler.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using ::testing::InSequence;
using ::testing::StrictMock;

namespace {

class MockHandler : public NoxParameterHandler {
public:
    using NoxParameterHandler::NoxParameterHandler;
    MOCK_METHOD(void, sampleRateChanged, (const double*), (override));
    MOCK_METHOD(void, plugInGoingAway, (), (override));
    MOCK_METHOD(void, parameterTouched, (std::int32_t), (override));
    MOCK_METHOD(void, parameterReleased, (std::int32_t), (override));
    MOCK_METHOD(void, parameterChanged, (std::int32_t, double, std::uint8_t), (override));
    MOCK_METHOD(void, parametersChanged,
                (std::int32_t, const std::int32_t*, const double*, std::uint8_t), (override));
    MOCK_METHOD(void, blockSizeChanged, (std::int32_t), (override));
};

/// Three instances; their addresses are in no known order.
class EnvironmentListeners : public ::testing::Test {
protected:
    TestTypeGroup group;
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
    TestPlugIn other{group.testType(), nullptr, nullptr};
    TestPlugIn third{group.testType(), nullptr, nullptr};
    NoxPlugInEnvironment environment;
    StrictMock<MockHandler> a{&plugIn};
    StrictMock<MockHandler> b{&plugIn};
    StrictMock<MockHandler> c{&plugIn};
    StrictMock<MockHandler> ofOther{&other};

    void addAll() {
        for (NoxParameterHandler* handler :
             std::initializer_list<NoxParameterHandler*>{&b, &ofOther, &a, &c})
            environment.addListener(*handler);
    }

    static void* addressOf(INoxPlugIn& instance) { return &instance; }

    void* address = static_cast<NoxPlugInEnvironment*>(&environment);
};

} // namespace

TEST_F(EnvironmentListeners, everyNewsReachesTheInstancesListenersInTheOrderOfTheirAdding) {
    addAll();
    const double rate = 48000.0;
    const std::array<std::int32_t, 2> indices{3, 1};
    const std::array<double, 2> values{0.5, 0.25};
    const InSequence inOrder;
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, plugInGoingAway());
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, sampleRateChanged(&rate));
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, blockSizeChanged(512));
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, parameterTouched(7));
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, parameterReleased(8));
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, parameterChanged(9, 0.75, 200));
    for (MockHandler* handler : {&b, &a, &c})
        EXPECT_CALL(*handler, parametersChanged(2, indices.data(), values.data(), 3));
    environment.plugInGoingAway(plugIn);
    environment.sampleRateSet(plugIn, &rate);
    environment.blockSizeSet(plugIn, 512);
    environment.parameterTouched(plugIn, 7);
    environment.parameterReleased(plugIn, 8);
    environment.parameterChanged(plugIn, 9, 0.75, 200);
    environment.parametersChanged(plugIn, 2, indices.data(), values.data(), 3);
}

TEST_F(EnvironmentListeners, newsOfAnInstanceWithoutListenersIsLoggedAndReachesNobody) {
    addAll();
    const double rate = 88200.5;
    void* nobody = addressOf(third);
    const LogCapture capture;
    environment.plugInGoingAway(third);
    environment.sampleRateSet(third, &rate);
    environment.parameterTouched(third, 7);
    environment.parameterReleased(third, -8);
    environment.blockSizeSet(third, 512);
    const std::int32_t index = 0;
    const double value = 1.0;
    environment.parameterChanged(third, 9, 0.75, 0);
    environment.parametersChanged(third, 1, &index, &value, 0);
    EXPECT_EQ(capture.messages(),
              printed("Env[%p]: Plug-in %p going away...\n", address, nobody) +
                  printed("Env[%p]: %p s/r set to 88200.5\n", address, nobody) +
                  printed("Env[%p]: %p param 7 TOUCHED\n", address, nobody) +
                  printed("Env[%p]: %p param -8 RELEASED\n", address, nobody) +
                  printed("Env[%p]: %p blocksize set to 512\n", address, nobody));
}

TEST_F(EnvironmentListeners, anEnvironmentWithoutListenersLogsToo) {
    const LogCapture capture;
    environment.parameterTouched(plugIn, 0);
    EXPECT_EQ(capture.messages(),
              printed("Env[%p]: %p param 0 TOUCHED\n", address, addressOf(plugIn)));
}

TEST_F(EnvironmentListeners, theLineComesBeforeTheListeners) {
    const LogCapture capture;
    environment.addListener(a);
    EXPECT_CALL(a, parameterTouched(0)).WillOnce([&] { EXPECT_NE(capture.messages(), ""); });
    environment.parameterTouched(plugIn, 0);
}

TEST_F(EnvironmentListeners, theLinesAreAtLevelFour) {
    const LogCapture capture(3);
    const double rate = 48000.0;
    environment.plugInGoingAway(plugIn);
    environment.sampleRateSet(plugIn, &rate);
    environment.parameterTouched(plugIn, 0);
    environment.parameterReleased(plugIn, 0);
    environment.blockSizeSet(plugIn, 1);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(EnvironmentListeners, aListenerAddedTwiceHearsTwiceAndIsRemovedOnceEachTime) {
    environment.addListener(a);
    environment.addListener(a);
    EXPECT_CALL(a, parameterTouched(1)).Times(2);
    environment.parameterTouched(plugIn, 1);
    environment.removeListener(a);
    EXPECT_CALL(a, parameterTouched(2)).Times(1);
    environment.parameterTouched(plugIn, 2);
    environment.removeListener(a);
    environment.parameterTouched(plugIn, 3);
}

TEST_F(EnvironmentListeners, removingTakesExactlyTheOneGiven) {
    addAll();
    environment.removeListener(a);
    const InSequence inOrder;
    EXPECT_CALL(b, parameterTouched(1));
    EXPECT_CALL(c, parameterTouched(1));
    environment.parameterTouched(plugIn, 1);
}

TEST_F(EnvironmentListeners, removingAStrangerDoesNothing) {
    environment.addListener(a);
    environment.removeListener(b);
    environment.removeListener(ofOther);
    EXPECT_CALL(a, parameterTouched(1));
    environment.parameterTouched(plugIn, 1);
}

TEST_F(EnvironmentListeners, aListenerMayRemoveItselfWhileItIsTold) {
    addAll();
    EXPECT_CALL(b, parameterTouched(1)).WillOnce([&] { environment.removeListener(b); });
    EXPECT_CALL(a, parameterTouched).Times(2);
    EXPECT_CALL(c, parameterTouched).Times(2);
    environment.parameterTouched(plugIn, 1);
    environment.parameterTouched(plugIn, 2);
}

TEST_F(EnvironmentListeners, aListenerRemovedByAnEarlierOneIsNotToldAndMayBeGone) {
    auto doomed = std::make_unique<StrictMock<MockHandler>>(&plugIn);
    environment.addListener(a);
    environment.addListener(*doomed);
    environment.addListener(c);
    EXPECT_CALL(a, plugInGoingAway()).WillOnce([&] {
        environment.removeListener(*doomed);
        doomed.reset();
    });
    EXPECT_CALL(c, plugInGoingAway());
    environment.plugInGoingAway(plugIn);
}

TEST_F(EnvironmentListeners, aListenerAddedWhileOthersAreToldHearsOfTheNextNews) {
    environment.addListener(a);
    EXPECT_CALL(a, parameterTouched).WillOnce([&] { environment.addListener(b); });
    environment.parameterTouched(plugIn, 1);
    EXPECT_CALL(a, parameterTouched(2));
    EXPECT_CALL(b, parameterTouched(2));
    environment.parameterTouched(plugIn, 2);
}

TEST_F(EnvironmentListeners, aListenerMayCauseMoreNews) {
    environment.addListener(a);
    environment.addListener(b);
    EXPECT_CALL(a, parameterTouched(1)).WillOnce([&] { environment.parameterReleased(plugIn, 1); });
    EXPECT_CALL(a, parameterReleased(1));
    EXPECT_CALL(b, parameterReleased(1));
    EXPECT_CALL(b, parameterTouched(1));
    environment.parameterTouched(plugIn, 1);
}

TEST_F(EnvironmentListeners, aListenerOfNoInstanceIsKept) {
    StrictMock<MockHandler> ofNone(nullptr);
    environment.addListener(ofNone);
    environment.addListener(a);
    EXPECT_CALL(a, parameterTouched(1));
    environment.parameterTouched(plugIn, 1);
    environment.removeListener(ofNone);
}

TEST_F(EnvironmentListeners, theBaseHandlerDoesNothing) {
    NoxParameterHandler bare(&plugIn);
    environment.addListener(bare);
    const double rate = 48000.0;
    const std::int32_t index = 0;
    environment.plugInGoingAway(plugIn);
    environment.sampleRateSet(plugIn, &rate);
    environment.blockSizeSet(plugIn, 1);
    environment.parameterTouched(plugIn, 0);
    environment.parameterReleased(plugIn, 0);
    environment.parameterChanged(plugIn, 0, 1.0, 0);
    environment.parametersChanged(plugIn, 1, &index, &rate, 0);
    EXPECT_EQ(bare.plugIn(), &plugIn);
}

TEST_F(EnvironmentListeners, aRealInstanceTellsItsListeners) {
    auto real = std::make_unique<TestPlugIn>(group.testType(), nullptr, &environment);
    StrictMock<MockHandler> handler(real.get());
    environment.addListener(handler);
    const InSequence inOrder;
    EXPECT_CALL(handler, parameterTouched(0));
    EXPECT_CALL(handler, parameterChanged(0, 2.0, 0));
    EXPECT_CALL(handler, parameterReleased(0));
    EXPECT_CALL(handler, plugInGoingAway()).WillOnce([&] { environment.removeListener(handler); });
    real->beginTouch(0);
    real->setParameterValue(0, 2.0);
    real->endTouch(0);
    real.reset();
}
