// SPDX-License-Identifier: GPL-3.0-or-later
// Many threads change parameters while the message thread delivers them.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/notifications/QMPlugInUIParameterHandler.h"
#include "widgets/notifications/tests/support/RecordingUI.h"

#include <atomic>
#include <map>
#include <vector>

namespace {

class ParameterHandlerConcurrency : public ToolkitTest {};

TEST_F(ParameterHandlerConcurrency, bringsEveryThreadsLastValueOfEachOfItsParameters) {
    constexpr int threadCount = 10;
    constexpr int changes = 20000;
    RecordingUI ui;
    QMPlugInUIParameterHandler handler(nullptr, ui);
    std::atomic<int> running{threadCount};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 1; i <= changes; ++i)
                handler.parameterChanged(thread, i, 0);
            --running;
        });
    }
    std::map<std::int32_t, double> seen;
    std::size_t read = 0;
    const auto allArrived = [&] {
        for (; read < ui.batches.size(); ++read) {
            for (const auto& [index, value] : ui.batches[read]) {
                EXPECT_GT(value, seen[index]) << "an older value after a newer one";
                seen[index] = value;
            }
        }
        for (int thread = 0; thread < threadCount; ++thread) {
            if (seen[thread] != changes)
                return false;
        }
        return running == 0;
    };
    EXPECT_TRUE(runLoopUntil(allArrived));
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
