// SPDX-License-Identifier: GPL-3.0-or-later
// A host's frame around an editor's view. On Linux it lends the view its event loop, as most hosts
// do there, or does not; what the loop has to do is done when the test says so.
#pragma once

#include "brolt/library/tests/support/EditorView.h"
#include "brolt/library/tests/support/HostObject.h"
#include "brolt/library/tests/support/RunLoopContext.h"

#include <chrono>
#include <functional>
#include <vector>

class HostFrame : public HostObject<Steinberg::IPlugFrame> {
public:
    enum class Loop { lent, none };

    explicit HostFrame(Loop whichLoop = Loop::lent)
        : lends(whichLoop) {}

    /// What the view asked for. The host grants it.
    std::vector<EditorSize> requests;

    /// Lets the view work until the condition holds. False at the limit.
    [[nodiscard]] bool driveUntil(const std::function<bool()>& condition,
                                  std::chrono::milliseconds limit = std::chrono::seconds(10));
    /// What waits, without waiting.
    void drive();

    /// Whether the view holds neither the frame nor anything of its loop.
    [[nodiscard]] bool isLetGo() const;

    Steinberg::tresult PLUGIN_API queryInterface(const Steinberg::TUID id, void** object) override;
    Steinberg::tresult PLUGIN_API resizeView(Steinberg::IPlugView* view,
                                             Steinberg::ViewRect* newSize) override;

#ifndef _WIN32
    RunLoopContext loop;
#endif

private:
    Loop lends;
};
