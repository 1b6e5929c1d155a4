// SPDX-License-Identifier: GPL-3.0-or-later
// Host threads change parameters, as adapters do, while the message thread runs an editor, which is
// opened and closed in the middle.
#include "widgets/ui/tests/support/TableEditor.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int threadCount = 10;
constexpr auto duration = std::chrono::milliseconds(1000);

class EditorConcurrency : public EditorTest {
protected:
    void SetUp() override {
        for (std::int32_t i = 0; i < threadCount; ++i) {
            const FourCharCode id = instance.get().idOfIndex(i + 1);
            lists.push_back({id});
            QMWidgetDescriptor descriptor;
            descriptor.widgetID = id;
            descriptor.widgetType = ProbeTypes::toggle;
            descriptor.parameterIDs = lists.back();
            descriptors.push_back(descriptor);
            areas.push_back({id, 0, i * 20, 20, 20});
        }
        describe("metr", ProbeTypes::meter, {}, "Output", {fourCharCode("out ")});
        place("metr", {0, 50, 20, 20});
    }

    /// Each thread sets a parameter of its own to and fro until told to stop.
    void startThreads() {
        for (std::int32_t i = 0; i < threadCount; ++i)
            threads.emplace_back([this, i] { changeUntilStopped(i + 1); });
    }

    void changeUntilStopped(std::int32_t index) {
        INoxPlugIn& plugIn = instance.get();
        const double minimum = plugIn.minimum(index);
        const double range = plugIn.maximum(index) - minimum;
        for (int step = 0; !stop; step = (step + 1) % 1000) {
            {
                const std::scoped_lock lock(instance.environment().controlLock());
                plugIn.setParameterValue(index, minimum + range * step / 1000.0);
            }
            ++changes;
            std::this_thread::yield();
        }
    }

    void stopThreads() {
        stop = true;
        for (std::thread& thread : threads)
            thread.join();
        threads.clear();
    }

    void runLoopFor(Clock::duration time) {
        const auto end = Clock::now() + time;
        EXPECT_TRUE(runLoopUntil([&] {
            if (editor)
                editor->tick();
            return Clock::now() > end;
        }));
    }

    [[nodiscard]] ProbeControl& controlOf(std::int32_t index) {
        return dynamic_cast<ProbeControl&>(*editor->widgetOfID(instance.get().idOfIndex(index)));
    }

    std::atomic<bool> stop{false};
    std::atomic<int> changes{0};
    std::vector<std::thread> threads;
};

TEST_F(EditorConcurrency, bringsValuesCoalescedAndNeverOntoAHeldControl) {
    startThreads();
    runLoopFor(duration / 4); // nobody listens

    open();
    ProbeControl& held = controlOf(1);
    held.beginTouch(0);
    const double shownBefore = held.values[0];
    held.forget();
    controlOf(2).forget();
    const int changesBefore = changes;
    runLoopFor(duration / 4);
    EXPECT_EQ(held.shown, 0);
    EXPECT_EQ(held.values[0], shownBefore);
    EXPECT_EQ(controlOf(2).shownUndeferred, 0);
    // A batch takes 30 ms at least; changes come by the hundred meanwhile.
    EXPECT_LT(controlOf(2).shown, changes - changesBefore + 1);
    EXPECT_LE(controlOf(2).shown, 30);
    held.endTouch(0);

    editor.reset();
    runLoopFor(duration / 4);
    open();
    runLoopFor(duration / 4);
    stopThreads();

    const auto allArrived = [this] {
        for (std::int32_t index = 1; index <= threadCount; ++index) {
            if (controlOf(index).values[0] != editor->parameterValue(index))
                return false;
        }
        return true;
    };
    EXPECT_TRUE(runLoopUntil(allArrived));
}

TEST_F(EditorConcurrency, bearsAnInstanceThatAnotherThreadRemoves) {
    open();
    std::thread remover([this] {
        const auto end = Clock::now() + duration / 10;
        for (int i = 0; Clock::now() < end; ++i)
            instance.set("gain", i % 24);
        instance.remove();
    });
    runLoopFor(duration / 4);
    remover.join();
    EXPECT_FALSE(editor->belongsTo(nullptr));
    EXPECT_EQ(editor->parameterCount(), 0);
    editor->setParameterFromUI(14, 1.0);
    runLoopFor(duration / 10);
}

} // namespace
