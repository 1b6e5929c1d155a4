// SPDX-License-Identifier: GPL-3.0-or-later
// Messages on their way to the message thread.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/notifications/QMAsyncPortableLambdaMessage.h"
#include "widgets/notifications/QMPortableMessageDispatcher.h"

#include <memory>
#include <vector>

namespace {

class PortableMessage : public ToolkitTest {
protected:
    QMPortableMessageDispatcher& dispatcher = QMPortableMessageDispatcher::getInstance();
};

TEST_F(PortableMessage, fromTheMessageThreadIsDeliveredBeforePostReturns) {
    bool isDelivered = false;
    EXPECT_TRUE(dispatcher.post(makeLambdaMessage([&] { isDelivered = true; })));
    EXPECT_TRUE(isDelivered);
}

TEST_F(PortableMessage, thatIsForcedToWaitComesInALaterTurn) {
    bool isDelivered = false;
    EXPECT_TRUE(dispatcher.post(makeLambdaMessage([&] { isDelivered = true; }), true));
    EXPECT_FALSE(isDelivered);
    EXPECT_TRUE(runLoopUntil([&] { return isDelivered; }));
}

TEST_F(PortableMessage, fromAnotherThreadIsDeliveredOnTheMessageThread) {
    std::thread::id deliveredOn;
    bool wasAccepted = false;
    std::thread poster([&] {
        wasAccepted =
            dispatcher.post(makeLambdaMessage([&] { deliveredOn = std::this_thread::get_id(); }));
    });
    poster.join();
    EXPECT_TRUE(wasAccepted);
    EXPECT_TRUE(runLoopUntil([&] { return deliveredOn != std::thread::id(); }));
    EXPECT_EQ(deliveredOn, std::this_thread::get_id());
}

TEST_F(PortableMessage, comesInTheOrderInWhichItWasPosted) {
    std::vector<int> order;
    for (int i = 0; i < 5; ++i)
        dispatcher.post(makeLambdaMessage([&order, i] { order.push_back(i); }), true);
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST_F(PortableMessage, isGoneAfterItsDelivery) {
    const auto held = std::make_shared<int>(1);
    dispatcher.post(makeLambdaMessage([held] {}));
    EXPECT_EQ(held.use_count(), 1);
    dispatcher.post(makeLambdaMessage([held] {}), true);
    EXPECT_EQ(held.use_count(), 2);
    EXPECT_TRUE(runLoopUntil([&] { return held.use_count() == 1; }));
}

TEST_F(PortableMessage, isRefusedAndGoneWithoutAToolkit) {
    shutDownToolkit();
    const auto held = std::make_shared<int>(1);
    bool isDelivered = false;
    EXPECT_FALSE(dispatcher.post(makeLambdaMessage([held, &isDelivered] { isDelivered = true; })));
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_FALSE(isDelivered);
}

TEST_F(PortableMessage, isNoneWhenItIsNull) {
    EXPECT_FALSE(dispatcher.post(nullptr));
}

TEST(PortableMessageDispatcher, isOneForTheProcess) {
    EXPECT_EQ(&QMPortableMessageDispatcher::getInstance(),
              &QMPortableMessageDispatcher::getInstance());
}

} // namespace
