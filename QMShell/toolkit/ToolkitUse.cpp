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

    /// For a host that unloads the library, or exits, with instances still there: a thread of ours
    /// must not run on in code that is gone.
    ~Shared() {
        if (loop)
            end();
    }
};

Shared& shared() {
    static Shared one;
    return one;
}

} // namespace

ToolkitUse::ToolkitUse(std::unique_ptr<IHostRunLoop> hostRunLoop) {
    const std::scoped_lock lock(shared().lock);
    if (shared().users == 0)
        shared().begin(std::move(hostRunLoop));
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

int ToolkitUse::count() {
    const std::scoped_lock lock(shared().lock);
    return shared().users;
}
