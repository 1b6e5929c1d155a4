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
    std::shared_ptr<MessageLoop> loop;
    std::unique_ptr<juce::TooltipWindow> tooltips;

    void begin(std::shared_ptr<IHostRunLoop> hostRunLoop) {
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
        if (!loop)
            return;
        loop->abandon();
        static_cast<void>(tooltips.release());
        static_cast<void>(new std::shared_ptr<MessageLoop>(std::move(loop)));
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

ToolkitUse::ToolkitUse(std::shared_ptr<IHostRunLoop> hostRunLoop)
    : lent(std::move(hostRunLoop)) {
    const std::scoped_lock lock(shared().lock);
    if (shared().users == 0)
        shared().begin(lent);
    else if (lent)
        shared().loop->lend(lent);
    static const LastResort lastResort;
    ++shared().users;
}

ToolkitUse::~ToolkitUse() {
    const std::scoped_lock lock(shared().lock);
    if (--shared().users == 0)
        shared().end();
    else if (lent)
        shared().loop->takeBack(lent.get());
}

void ToolkitUse::run(const std::function<void()>& task) {
    shared().loop->run(task);
}

void ToolkitUse::setTooltipsAtOnce(bool on) {
    if (shared().tooltips)
        shared().tooltips->setMillisecondsBeforeTipAppears(on ? 0 : tooltipDelayMs);
}
