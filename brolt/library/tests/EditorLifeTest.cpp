// SPDX-License-Identifier: GPL-3.0-or-later
// Editors that come and go in every order that hosts have been seen to use, in one process, for a
// long time: nothing crashes, nothing stays behind, and each is there at once.
#include "brolt/library/tests/support/AttachedEditor.h"
#include "brolt/library/tests/support/HostWait.h"
#include "brolt/library/tests/support/ProcessResources.h"

#include <algorithm>
#include <array>

using Steinberg::kResultOk;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int rounds = 300; // several times as slow as without, and as telling
#else
constexpr int rounds = 1000;
#endif
/// Until then caches fill: fonts, glyphs, the window system's.
constexpr int firstRounds = 200;
/// The middle one of all. It is a tenth of this where nothing else is going on.
constexpr std::chrono::milliseconds longestRound(100);

class EditorLife : public ::testing::Test {
protected:
    void SetUp() override {
        if (const std::string reason = EditorWindow::obstacle(); !reason.empty())
            GTEST_SKIP() << reason;
        window = std::make_unique<EditorWindow>(EditorSize{800, 600});
    }

    bool attach(EditorView& view) const {
        return view.plugView().attached(window->handle(), EditorWindow::platformType()) ==
               kResultOk;
    }

    // The orders.

    void frameFirst(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        EXPECT_TRUE(attach(view));
        frame.drive();
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
        EXPECT_TRUE(frame.isLetGo());
    }

    void frameLast(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_TRUE(attach(view));
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        frame.drive();
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
        EXPECT_TRUE(frame.isLetGo());
        EXPECT_EQ(view.plugView().removed(), kResultOk);
    }

    void withoutFrame(LibraryInstance& instance) {
        EditorView view(instance.controller());
        EXPECT_TRUE(attach(view));
        EXPECT_EQ(view.plugView().removed(), kResultOk);
    }

    void releasedWithoutRemoved(LibraryInstance& instance) {
        HostFrame frame;
        {
            EditorView view(instance.controller());
            EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
            EXPECT_TRUE(attach(view));
            frame.drive();
        }
        EXPECT_TRUE(frame.isLetGo());
    }

    void neverAttached(LibraryInstance& instance) {
        HostFrame frame;
        {
            EditorView view(instance.controller());
            EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
            EXPECT_GT(view.size().width, 0);
            EXPECT_EQ(view.plugView().removed(), kResultOk);
        }
        EXPECT_TRUE(frame.isLetGo());
    }

    void reopened(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        EXPECT_TRUE(attach(view));
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_TRUE(attach(view));
        frame.drive();
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
    }

    void restoredWhileOpen(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        EXPECT_TRUE(attach(view));
        const Bytes state = instance.state();
        instance.set("afre", 300.0);
        frame.drive();
        EXPECT_EQ(instance.restore(state), kResultOk);
        frame.drive();
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
    }

    void rearrangedWhileOpen(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        EXPECT_TRUE(attach(view));
        for (const int channels : {1, 2}) {
            EXPECT_EQ(instance.component().setActive(false), kResultOk);
            EXPECT_EQ(instance.arrange(channels), kResultOk);
            EXPECT_EQ(instance.component().setActive(true), kResultOk);
            EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
            frame.drive();
        }
        EXPECT_EQ(instance.component().setActive(false), kResultOk);
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
    }

    void terminatedWhileOpen(LibraryInstance& instance) {
        HostFrame frame;
        EditorView view(instance.controller());
        EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
        EXPECT_TRUE(attach(view));
        frame.drive();
        EXPECT_EQ(instance.component().terminate(), kResultOk);
        frame.drive();
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        EXPECT_EQ(view.plugView().removed(), kResultOk);
        EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
        EXPECT_EQ(instance.initialise(), kResultOk);
    }

    std::unique_ptr<EditorWindow> window;

    using Order = void (EditorLife::*)(LibraryInstance&);
    static constexpr std::array<Order, 9> orders = {
        &EditorLife::frameFirst,         &EditorLife::frameLast,
        &EditorLife::withoutFrame,       &EditorLife::releasedWithoutRemoved,
        &EditorLife::neverAttached,      &EditorLife::reopened,
        &EditorLife::restoredWhileOpen,  &EditorLife::rearrangedWhileOpen,
        &EditorLife::terminatedWhileOpen};
};

} // namespace

TEST_F(EditorLife, survivesEveryOrder) {
    LibraryInstance instance;
    for (const Order order : orders) {
        (this->*order)(instance);
        EXPECT_EQ(window->children(), 0U);
    }
    // Backwards, so that each comes after another one.
    for (auto order = orders.rbegin(); order != orders.rend(); ++order)
        (this->**order)(instance);
    EXPECT_EQ(window->children(), 0U);
}

TEST_F(EditorLife, leavesNothingBehindInManyRounds) {
    using Clock = std::chrono::steady_clock;
    LibraryInstance instance;
    std::vector<Clock::duration> times;
    ProcessResources settled;
    for (int round = 0; round < rounds; ++round) {
        const auto begin = Clock::now();
        (this->*orders.at(static_cast<std::size_t>(round) % orders.size()))(instance);
        times.push_back(Clock::now() - begin);
        ASSERT_EQ(window->children(), 0U) << round;
        if (round == firstRounds - 1)
            settled = ProcessResources::now();
    }
    EXPECT_TRUE(waitUntil([&] { return ProcessResources::now().threads <= settled.threads; },
                          std::chrono::seconds(10)))
        << ProcessResources::now().threads << " threads instead of " << settled.threads;
    const ProcessResources end = ProcessResources::now();
    EXPECT_LE(end.handles, settled.handles);
    if (end.allocated) {
        // An editor that stays is hundreds of kilobytes; the C library's reserve is some.
        EXPECT_LE(*end.allocated, *settled.allocated + 500U * (rounds - firstRounds));
    }
    std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
    const auto middle = times[rounds / 2];
    EXPECT_LT(middle, longestRound);
    RecordProperty("microsecondsOfARound", static_cast<int>(middle / std::chrono::microseconds(1)));
}

TEST_F(EditorLife, keepsNoLibraryInTheProcess) {
    LoadedLibrary::unloadShared();
    ASSERT_FALSE(LoadedLibrary::isInProcess());
    const std::size_t threads = ProcessResources::now().threads;
    for (int i = 0; i < 10; ++i) {
        {
            const LoadedLibrary library;
            LibraryInstance instance(LibraryInstance::Begin::initialised, library);
            frameFirst(instance);
            withoutFrame(instance);
            releasedWithoutRemoved(instance);
        }
        ASSERT_FALSE(LoadedLibrary::isInProcess()) << i;
    }
    EXPECT_TRUE(waitUntil([&] { return ProcessResources::now().threads <= threads; },
                          std::chrono::seconds(10)));
}
