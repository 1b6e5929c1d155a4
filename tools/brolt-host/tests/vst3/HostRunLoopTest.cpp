// SPDX-License-Identifier: GPL-3.0-or-later
//
// The run loop as plug-ins use it.

#ifndef _WIN32

#    include "tools/brolt-host/vst3/HostRunLoop.h"

#    include "tools/brolt-host/vst3/Vst3HostContext.h"

#    include <gtest/gtest.h>
#    include <pluginterfaces/vst/ivsteditcontroller.h>

#    include <functional>

#    include <unistd.h>

using namespace Steinberg;

namespace {

class Pipe {
public:
    Pipe() { EXPECT_EQ(pipe(ends), 0); }

    ~Pipe() {
        close(ends[0]);
        close(ends[1]);
    }

    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    void fill(int count) const {
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(write(ends[1], "x", 1), 1);
    }

    int readOne() const {
        char byte = 0;
        return static_cast<int>(read(ends[0], &byte, 1));
    }

    [[nodiscard]] int readingEnd() const { return ends[0]; }

private:
    int ends[2]{};
};

class Reader : public U::ImplementsNonDestroyable<U::Directly<Linux::IEventHandler>> {
public:
    explicit Reader(std::function<void()> whenReadable)
        : action(std::move(whenReadable)) {}

    void PLUGIN_API onFDIsSet(int) override { action(); }

private:
    std::function<void()> action;
};

class Ticker : public U::ImplementsNonDestroyable<U::Directly<Linux::ITimerHandler>> {
public:
    void PLUGIN_API onTimer() override { ++ticks; }

    int ticks = 0;
};

} // namespace

TEST(HostRunLoop, deliversUntilNothingIsLeftToRead) {
    HostRunLoop loop;
    const Pipe pipe;
    int calls = 0;
    Reader reader([&] { calls += pipe.readOne(); });
    EXPECT_EQ(loop.registerEventHandler(&reader, pipe.readingEnd()), kResultOk);
    loop.deliverPending();
    EXPECT_EQ(calls, 0);
    pipe.fill(3);
    loop.deliverPending();
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(loop.unregisterEventHandler(&reader), kResultOk);
    pipe.fill(1);
    loop.deliverPending();
    EXPECT_EQ(calls, 3);
}

TEST(HostRunLoop, aHandlerThatReadsNothingDoesNotHoldTheHostBack) {
    HostRunLoop loop;
    const Pipe pipe;
    int calls = 0;
    Reader reader([&] { ++calls; });
    loop.registerEventHandler(&reader, pipe.readingEnd());
    pipe.fill(1);
    loop.deliverPending();
    EXPECT_EQ(calls, 100);
    loop.unregisterEventHandler(&reader);
}

TEST(HostRunLoop, aHandlerMayTakeItselfAndOthersAway) {
    HostRunLoop loop;
    const Pipe one;
    const Pipe two;
    int calls = 0;
    Reader second([&] { ++calls; });
    Reader first([&] {
        ++calls;
        loop.unregisterEventHandler(&first);
        loop.unregisterEventHandler(&second);
    });
    loop.registerEventHandler(&first, one.readingEnd());
    loop.registerEventHandler(&second, two.readingEnd());
    one.fill(1);
    two.fill(1);
    loop.deliverPending();
    EXPECT_EQ(calls, 1);
}

TEST(HostRunLoop, aTimerRunsOnceForHoweverMuchTimeHasPassed) {
    HostRunLoop loop;
    Ticker ticker;
    EXPECT_EQ(loop.registerTimer(&ticker, 1), kResultOk);
    while (ticker.ticks == 0)
        loop.deliverPending();
    EXPECT_EQ(ticker.ticks, 1);
    EXPECT_EQ(loop.unregisterTimer(&ticker), kResultOk);
    EXPECT_EQ(loop.unregisterTimer(&ticker), kResultFalse);
}

TEST(HostRunLoop, waitsForSomethingToRead) {
    HostRunLoop loop;
    const Pipe pipe;
    int calls = 0;
    Reader reader([&] { calls += pipe.readOne(); });
    loop.registerEventHandler(&reader, pipe.readingEnd());
    pipe.fill(1);
    const auto begin = std::chrono::steady_clock::now();
    loop.waitAndDeliver(std::chrono::minutes(1));
    EXPECT_EQ(calls, 1);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
    loop.unregisterEventHandler(&reader);
}

TEST(HostRunLoop, waitsForATimerAndNoLonger) {
    HostRunLoop loop;
    Ticker ticker;
    loop.registerTimer(&ticker, 20);
    const auto begin = std::chrono::steady_clock::now();
    loop.waitAndDeliver(std::chrono::minutes(1));
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(ticker.ticks, 1);
    EXPECT_LT(waited, std::chrono::seconds(30));
    loop.unregisterTimer(&ticker);
}

TEST(HostRunLoop, waitsNoLongerThanItWasTold) {
    HostRunLoop loop;
    const Pipe pipe;
    Ticker ticker;
    Reader reader([] {});
    loop.registerEventHandler(&reader, pipe.readingEnd());
    loop.registerTimer(&ticker, 3'600'000);
    const auto begin = std::chrono::steady_clock::now();
    loop.waitAndDeliver(std::chrono::milliseconds(10));
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, std::chrono::milliseconds(9)); // the system's clocks need not agree wholly
    EXPECT_LT(waited, std::chrono::seconds(30));
    EXPECT_EQ(ticker.ticks, 0);
    loop.unregisterTimer(&ticker);
    loop.unregisterEventHandler(&reader);
}

TEST(HostRunLoop, refusesWhatMakesNoSense) {
    HostRunLoop loop;
    Ticker ticker;
    Reader reader([] {});
    EXPECT_EQ(loop.registerEventHandler(nullptr, 0), kInvalidArgument);
    EXPECT_EQ(loop.registerEventHandler(&reader, -1), kInvalidArgument);
    EXPECT_EQ(loop.unregisterEventHandler(&reader), kResultFalse);
    EXPECT_EQ(loop.registerTimer(nullptr, 10), kInvalidArgument);
    EXPECT_EQ(loop.registerTimer(&ticker, 0), kInvalidArgument);
}

TEST(Vst3HostContext, offersItsNameAndTheRunLoop) {
    Vst3HostContext context;
    Vst::String128 name{};
    EXPECT_EQ(context.getName(name), kResultOk);
    EXPECT_EQ(std::u16string(name), u"brolt-host");
    const auto loop = U::cast<Linux::IRunLoop>(&context);
    EXPECT_EQ(loop.get(), &context.messages().runLoop());
    EXPECT_NE(U::cast<Vst::IHostApplication>(&context), nullptr);
    EXPECT_EQ(U::cast<Vst::IComponentHandler>(&context), nullptr);
}

#endif
