// SPDX-License-Identifier: GPL-3.0-or-later
// Notifications and who is told of them, when and how often.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/notifications/QMNotificationCenter.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

/// Writes down what it hears, and does what it is told to when it hears something.
class Target : public QMNotificationTarget {
public:
    explicit Target(std::vector<std::string>& sharedLog, std::string ownName = "t")
        : log(sharedLog)
        , name(std::move(ownName)) {}

    void notify(QMNotificationID id) override {
        log.push_back(name + ":" + std::to_string(id));
        if (onNumber)
            onNumber(id);
    }

    void notify(QMNotificationID id, const QMNotificationArguments& arguments) override {
        log.push_back(name + ":" + std::to_string(id) + "(" + std::to_string(arguments.index) +
                      "," + std::to_string(static_cast<int>(arguments.value)) + ")");
        if (onArguments)
            onArguments(id);
    }

    std::function<void(QMNotificationID)> onNumber;
    std::function<void(QMNotificationID)> onArguments;

private:
    std::vector<std::string>& log;
    std::string name;
};

class NotificationCenter : public ToolkitTest {
protected:
    using Log = std::vector<std::string>;

    Log log;
    std::optional<QMNotificationCenter> center{std::in_place};
};

TEST_F(NotificationCenter, tellsEveryTargetTheArgumentsAndThenTheNumber) {
    Target target(log);
    center->registerTarget(target);
    center->postNotification(4, {7, 3.0});
    EXPECT_EQ(log, (Log{"t:4(7,3)", "t:4"}));
}

TEST_F(NotificationCenter, tellsATargetOnceHoweverOftenItWasRegistered) {
    Target target(log);
    center->registerTarget(target);
    center->registerTarget(target);
    center->notify(1);
    EXPECT_EQ(log, Log{"t:1"});
}

TEST_F(NotificationCenter, leavesOutTheNumberForATargetThatLeftWhenItHeardTheArguments) {
    std::array<Target, 3> targets{Target(log, "a"), Target(log, "b"), Target(log, "c")};
    for (Target& each : targets)
        center->registerTarget(each);
    targets[1].onArguments = [&](QMNotificationID) { center->unregisterTarget(targets[1]); };
    center->postNotification(2, {0, 1.0});
    // In the order of their addresses, which in an array is that of their indices.
    EXPECT_EQ(log, (Log{"a:2(0,1)", "a:2", "b:2(0,1)", "c:2(0,1)", "c:2"}));
    EXPECT_EQ(targets[1].notificationCenter(), nullptr);
}

TEST_F(NotificationCenter, toleratesATargetThatGoesWhenItHearsTheArguments) {
    auto* const target = new Target(log);
    center->registerTarget(*target);
    target->onArguments = [target](QMNotificationID) { delete target; };
    center->postNotification(2, {0, 1.0});
    EXPECT_EQ(log, Log{"t:2(0,1)"});
}

TEST_F(NotificationCenter, tellsNobodyWhoHasLeftWhileANumberWentRound) {
    std::array<Target, 2> targets{Target(log, "a"), Target(log, "b")};
    for (Target& each : targets)
        center->registerTarget(each);
    targets[0].onNumber = [&](QMNotificationID) { center->unregisterTarget(targets[1]); };
    center->notify(3);
    EXPECT_EQ(log, Log{"a:3"});
}

TEST_F(NotificationCenter, dropsWithArgumentsWhatComesAgainWhileItIsDelivered) {
    Target target(log);
    center->registerTarget(target);
    target.onArguments = [&](QMNotificationID) { center->postNotification(5, {9, 9.0}); };
    center->postNotification(5, {1, 1.0});
    EXPECT_EQ(log, (Log{"t:5(1,1)", "t:5"}));
    center->flush(false);
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(NotificationCenter, keepsANumberThatComesAgainWhileItIsDelivered) {
    Target target(log);
    center->registerTarget(target);
    target.onNumber = [&](QMNotificationID) {
        if (log.size() == 1)
            center->notify(5);
    };
    center->notify(5);
    EXPECT_EQ(log, Log{"t:5"});
    center->flush(false);
    EXPECT_EQ(log, (Log{"t:5", "t:5"}));
    center->flush(false);
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(NotificationCenter, deliversAnotherNumberWhileOneIsDelivered) {
    Target target(log);
    center->registerTarget(target);
    target.onNumber = [&](QMNotificationID id) {
        if (id == 1)
            center->notify(2);
    };
    center->notify(1);
    EXPECT_EQ(log, (Log{"t:1", "t:2"}));
}

TEST_F(NotificationCenter, keepsNumbersAndDropsArgumentsWhileItIsBlocked) {
    Target target(log);
    center->registerTarget(target);
    center->block();
    center->block();
    center->notify(8);
    center->postNotification(9, {1, 1.0});
    center->unblock();
    center->notify(7);
    center->unblock();
    EXPECT_EQ(log, Log{});
    center->flush(false);
    EXPECT_EQ(log, (Log{"t:7", "t:8"}));
}

TEST_F(NotificationCenter, forgetsWhatItKeptWhenItIsToldToDiscardIt) {
    Target target(log);
    center->registerTarget(target);
    center->block();
    center->notify(8);
    bool isCalled = false;
    center->addObserver([&] { isCalled = true; });
    center->unblock();
    center->flush(true);
    center->flush(false);
    EXPECT_EQ(log, Log{});
    EXPECT_FALSE(isCalled);
}

TEST_F(NotificationCenter, callsItsObserversBeforeWhatItKeptAndOnlyOnce) {
    Target target(log);
    center->registerTarget(target);
    center->block();
    center->notify(8);
    center->unblock();
    center->addObserver([&] { log.emplace_back("first"); });
    center->addObserver([&] { log.emplace_back("second"); });
    center->flush(false);
    center->flush(false);
    EXPECT_EQ(log, (Log{"first", "second", "t:8"}));
}

TEST_F(NotificationCenter, deliversDeferredNumbersOnceEachInAscendingOrder) {
    Target target(log);
    center->registerTarget(target);
    for (const QMNotificationID id : {7, 7, 3, 7})
        center->postDeferredNotification(id);
    EXPECT_EQ(log, Log{});
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(log, (Log{"t:3", "t:7"}));
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(NotificationCenter, deliversInTheNextTurnWhatIsDeferredDuringTheDelivery) {
    Target target(log);
    center->registerTarget(target);
    target.onNumber = [&](QMNotificationID id) {
        if (id == 1)
            center->postDeferredNotification(2);
    };
    center->postDeferredNotification(1);
    EXPECT_TRUE(runLoopUntil([&] { return log.size() == 2; }));
    EXPECT_EQ(log, (Log{"t:1", "t:2"}));
}

TEST_F(NotificationCenter, thatHasGoneDeliversNothingAnyMore) {
    Target target(log);
    center->registerTarget(target);
    center->postDeferredNotification(1);
    center.reset();
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(log, Log{});
    EXPECT_EQ(target.notificationCenter(), nullptr);
}

TEST_F(NotificationCenter, defersAgainAfterAMessageThatNeverCame) {
    shutDownToolkit();
    Target target(log);
    center->registerTarget(target);
    center->postDeferredNotification(1); // nobody takes it
    const juce::ScopedJuceInitialiser_GUI again;
    center->postDeferredNotification(2);
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(log, (Log{"t:1", "t:2"}));
}

TEST_F(NotificationCenter, mayGoWhileItDelivers) {
    Target a(log, "a");
    center->registerTarget(a);
    a.onNumber = [&](QMNotificationID) { center.reset(); };
    center->notify(1);
    center.emplace();
    center->registerTarget(a);
    center->postNotification(2, {0, 0.0});
    center.emplace();
    center->registerTarget(a);
    center->postDeferredNotification(3);
    center->postDeferredNotification(4);
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(log, (Log{"a:1", "a:2(0,0)", "a:2", "a:3"}));
}

TEST_F(NotificationCenter, losesATargetThatGoesToAnother) {
    Target target(log);
    QMNotificationCenter other;
    center->registerTarget(target);
    other.registerTarget(target);
    center->notify(1);
    other.notify(2);
    EXPECT_EQ(log, Log{"t:2"});
    center->unregisterTarget(target); // not its own any more
    EXPECT_EQ(target.notificationCenter(), &other);
}

TEST_F(NotificationCenter, losesATargetThatIsDestroyed) {
    {
        Target target(log);
        center->registerTarget(target);
    }
    center->notify(1);
    EXPECT_EQ(log, Log{});
}

} // namespace
