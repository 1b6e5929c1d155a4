// SPDX-License-Identifier: GPL-3.0-or-later
// Editors that are open, closed and opened again while the host changes parameters on threads of
// its own, and editors of several instances beside each other.
#include "brolt/library/tests/support/EditorView.h"
#include "brolt/library/tests/support/EditorWindow.h"
#include "brolt/library/tests/support/HostFrame.h"
#include "brolt/library/tests/support/LibraryInstance.h"

#include <atomic>
#include <memory>
#include <thread>

using namespace std::chrono_literals;
using Steinberg::kResultOk;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int threadCount = 10;
constexpr Vst::ParamID parameterCount = 15;
constexpr auto length = 1500ms;

/// Threads that do the same again and again for as long as it lives.
class Hammering {
public:
    template <typename Work>
    explicit Hammering(Work work) {
        for (int i = 0; i < threadCount; ++i) {
            threads.emplace_back([this, work, i]() mutable {
                for (int step = 0; !ended; ++step) {
                    work(i, step);
                    ++done;
                }
            });
        }
    }

    ~Hammering() {
        ended = true;
        for (std::thread& each : threads)
            each.join();
    }

    Hammering(const Hammering&) = delete;
    Hammering& operator=(const Hammering&) = delete;

    [[nodiscard]] int count() const { return done; }

private:
    std::atomic<bool> ended{false};
    std::atomic<int> done{0};
    std::vector<std::thread> threads;
};

/// Another parameter and another value each time, each thread in an order of its own. With a pause:
/// locks are not fair, and ten threads that never let go of one leave the editor none of it.
void automate(LibraryInstance& instance, int thread, int step) {
    const auto id = static_cast<Vst::ParamID>(thread + step) % parameterCount;
    instance.controller().setParamNormalized(id, (step * 7 + thread) % 101 / 100.0);
    (void)instance.controller().getParamNormalized(id);
    std::this_thread::sleep_for(200us);
}

class EditorConcurrency : public ::testing::TestWithParam<HostFrame::Loop> {
protected:
    LibraryInstance instance;

    /// In a window where there can be one; the rest is the same without.
    std::unique_ptr<EditorWindow> makeWindow() {
        return EditorWindow::obstacle().empty()
                   ? std::make_unique<EditorWindow>(EditorSize{800, 600})
                   : nullptr;
    }

    static void attach(EditorView& view, const EditorWindow* window) {
        if (window != nullptr) {
            EXPECT_EQ(view.plugView().attached(window->handle(), EditorWindow::platformType()),
                      kResultOk);
        }
    }
};

std::string nameOf(const ::testing::TestParamInfo<HostFrame::Loop>& loop) {
    return loop.param == HostFrame::Loop::lent ? "inTheHostsLoop" : "withoutOne";
}

} // namespace

TEST_P(EditorConcurrency, automationOnTenThreadsReachesAnOpenEditor) {
    const auto window = makeWindow();
    HostFrame frame(GetParam());
    EditorView view(instance.controller());
    ASSERT_EQ(view.plugView().setFrame(&frame), kResultOk);
    attach(view, window.get());
    {
        const Hammering host([&](int thread, int step) { automate(instance, thread, step); });
        const auto end = Clock::now() + length;
        EXPECT_TRUE(
            frame.driveUntil([&] { return Clock::now() >= end && host.count() > 1000; }, 60s));
    }
    // What the threads left behind is what is shown in the end: as in a view that opens now.
    EditorView fresh(instance.controller());
    const EditorPicture expected = fresh.picture();
    EXPECT_TRUE(frame.driveUntil([&] { return view.picture() == expected; }, 60s));
    EXPECT_EQ(view.plugView().removed(), kResultOk);
    EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
}

TEST_P(EditorConcurrency, anEditorIsOpenedAndClosedMeanwhile) {
    const auto window = makeWindow();
    const Hammering host([&](int thread, int step) { automate(instance, thread, step); });
    const auto end = Clock::now() + length;
    int opened = 0;
    while (Clock::now() < end || opened < 3) {
        HostFrame frame(GetParam());
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        attach(view, window.get());
        frame.drive();
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
        ++opened;
    }
}

TEST_P(EditorConcurrency, theInstanceIsReplacedMeanwhile) {
    const auto window = makeWindow();
    HostFrame frame(GetParam());
    EditorView view(instance.controller());
    ASSERT_EQ(view.plugView().setFrame(&frame), kResultOk);
    attach(view, window.get());
    {
        const Hammering automation([&](int thread, int step) {
            if (thread != 0) {
                automate(instance, thread, step);
                return;
            }
            instance.component().setActive(false);
            (void)instance.arrange(1 + step % 2);
            instance.component().setActive(true);
        });
        const auto end = Clock::now() + length;
        EXPECT_TRUE(
            frame.driveUntil([&] { return Clock::now() >= end && automation.count() > 100; }, 60s));
    }
    EXPECT_EQ(instance.component().setActive(false), kResultOk);
    EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
    EXPECT_FALSE(view.picture().isOneColour());
    EXPECT_EQ(view.plugView().removed(), kResultOk);
    EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
}

TEST_P(EditorConcurrency, oneInstancesAutomationMovesNothingInAnothersEditor) {
    LibraryInstance other;
    HostFrame frame(GetParam());
    EditorView moved(instance.controller());
    EditorView still(other.controller());
    ASSERT_EQ(moved.plugView().setFrame(&frame), kResultOk);
    ASSERT_EQ(still.plugView().setFrame(&frame), kResultOk);
    const auto firstWindow = makeWindow();
    const auto secondWindow = makeWindow();
    attach(moved, firstWindow.get());
    attach(still, secondWindow.get());
    const EditorPicture before = still.picture();
    const EditorPicture movedBefore = moved.picture();
    {
        const Hammering host([&](int thread, int step) { automate(instance, thread, step); });
        const auto end = Clock::now() + length;
        EXPECT_TRUE(
            frame.driveUntil([&] { return Clock::now() >= end && host.count() > 1000; }, 60s));
    }
    EXPECT_TRUE(frame.driveUntil([&] { return moved.picture() != movedBefore; }));
    EXPECT_TRUE(still.picture() == before);
    for (EditorView* const each : {&moved, &still}) {
        EXPECT_EQ(each->plugView().removed(), kResultOk);
        EXPECT_EQ(each->plugView().setFrame(nullptr), kResultOk);
    }
}

INSTANTIATE_TEST_SUITE_P(Host, EditorConcurrency,
                         ::testing::Values(HostFrame::Loop::lent, HostFrame::Loop::none), nameOf);
