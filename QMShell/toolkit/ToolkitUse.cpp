// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/ToolkitUse.h"

#include "QMShell/toolkit/MessageLoop.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <mutex>
#include <utility>

namespace {

/// So long that a tooltip comes only where a widget asks for it itself.
constexpr int tooltipDelayMs = 100000;

struct Shared {
    std::mutex lock; ///< of the counter; hosts may make instances on several threads
    int users = 0;
    std::unique_ptr<MessageLoop> loop;
    std::unique_ptr<juce::TooltipWindow> tooltips;

    void begin(std::unique_ptr<IHostRunLoop> hostRunLoop) {
        loop = makeMessageLoop(std::move(hostRunLoop));
        loop->run(
            [this] { tooltips = std::make_unique<juce::TooltipWindow>(nullptr, tooltipDelayMs); });
    }

    void end() {
        loop->run([this] { tooltips.reset(); });
        loop.reset();
    }

    /// What is still there when the process ends stays as it is, and stands still.
    void abandon() {
        if (loop)
            loop->abandon();
        static_cast<void>(tooltips.release());
        static_cast<void>(loop.release());
    }
};

Shared& shared() {
    static Shared one;
    return one;
}

/// For hosts that exit with instances still there. Made after the toolkit has begun, it goes before
/// the toolkit's statics do.
struct LastResort {
    LastResort() = default;

    ~LastResort() { shared().abandon(); }

    LastResort(const LastResort&) = delete;
    LastResort& operator=(const LastResort&) = delete;
};

} // namespace

ToolkitUse::ToolkitUse(std::unique_ptr<IHostRunLoop> hostRunLoop) {
    const std::scoped_lock lock(shared().lock);
    if (shared().users == 0)
        shared().begin(std::move(hostRunLoop));
    static const LastResort lastResort;
    ++shared().users;
}

ToolkitUse::~ToolkitUse() {
    const std::scoped_lock lock(shared().lock);
    if (--shared().users == 0)
        shared().end();
}

void ToolkitUse::run(const std::function<void()>& task) {
    shared().loop->run(task);
}
