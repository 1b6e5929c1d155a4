// SPDX-License-Identifier: GPL-3.0-or-later
// Parameter changes on their way from any thread to the plug-in UI.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/notifications/QMPlugInUIParameterHandler.h"
#include "widgets/notifications/tests/support/RecordingUI.h"

#include <array>
#include <optional>

namespace {

class PlugInUIParameterHandler : public ToolkitTest {
protected:
    using Batch = std::vector<RecordingUI::Change>;

    /// On a thread that is not the message thread, and to its end.
    template <typename Work>
    static void elsewhere(Work work) {
        std::thread(work).join();
    }

    RecordingUI ui;
    std::optional<QMPlugInUIParameterHandler> handler{std::in_place, nullptr, ui};
};

TEST_F(PlugInUIParameterHandler, passesChangesOfTheMessageThreadStraightOn) {
    handler->parameterChanged(3, 0.5, 0);
    const std::array<std::int32_t, 2> indices{8, 2};
    const std::array<double, 2> values{1.0, 2.0};
    handler->parametersChanged(2, indices.data(), values.data(), 0);
    EXPECT_EQ(ui.singles, (Batch{{3, 0.5}}));
    ASSERT_EQ(ui.batches.size(), 1U);
    EXPECT_EQ(ui.batches[0], (Batch{{8, 1.0}, {2, 2.0}}));
}

TEST_F(PlugInUIParameterHandler, bringsTwoValuesOfOneParameterAsOneChangeWithTheLater) {
    elsewhere([&] {
        handler->parameterChanged(5, 1.0, 0);
        handler->parameterChanged(5, 2.0, 0);
    });
    EXPECT_TRUE(ui.batches.empty());
    EXPECT_TRUE(runLoopUntil([&] { return !ui.batches.empty(); }));
    EXPECT_EQ(ui.batches, (std::vector<Batch>{{{5, 2.0}}}));
    EXPECT_TRUE(ui.singles.empty());
}

TEST_F(PlugInUIParameterHandler, bringsWhatCameTogetherInTheOrderOfTheParameters) {
    elsewhere([&] {
        const std::array<std::int32_t, 3> indices{9, 1, 4};
        const std::array<double, 3> values{0.9, 0.1, 0.4};
        handler->parametersChanged(3, indices.data(), values.data(), 0);
        handler->parameterChanged(1, 0.2, 0);
    });
    EXPECT_TRUE(runLoopUntil([&] { return !ui.batches.empty(); }));
    EXPECT_EQ(ui.batches, (std::vector<Batch>{{{1, 0.2}, {4, 0.4}, {9, 0.9}}}));
}

TEST_F(PlugInUIParameterHandler, takesNoLessThanThirtyMillisecondsForABatch) {
    const auto begin = std::chrono::steady_clock::now();
    elsewhere([&] { handler->parameterChanged(0, 1.0, 0); });
    EXPECT_TRUE(runLoopUntil([&] { return !ui.batches.empty(); }));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(29));
}

TEST_F(PlugInUIParameterHandler, bringsALaterChangeInABatchOfItsOwn) {
    for (int i = 1; i <= 2; ++i) {
        elsewhere([&, i] { handler->parameterChanged(0, i, 0); });
        EXPECT_TRUE(runLoopUntil([&] { return ui.batches.size() == static_cast<std::size_t>(i); }));
    }
    EXPECT_EQ(ui.batches, (std::vector<Batch>{{{0, 1.0}}, {{0, 2.0}}}));
}

TEST_F(PlugInUIParameterHandler, bringsNothingAfterItsEnd) {
    elsewhere([&] { handler->parameterChanged(0, 1.0, 0); });
    handler.reset();
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
    EXPECT_TRUE(runLoopUntil([&] { return std::chrono::steady_clock::now() > end; }));
    EXPECT_TRUE(ui.batches.empty());
}

} // namespace
