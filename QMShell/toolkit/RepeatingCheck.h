// SPDX-License-Identifier: GPL-3.0-or-later
// Calls a function again and again on the toolkit's message thread, for as long as it lives.
#pragma once

#include <functional>
#include <memory>

class RepeatingCheck {
public:
    /// A user of the toolkit (ToolkitUse) must outlive it. [any thread but audio]
    RepeatingCheck(int periodMs, std::function<void()> check);
    /// When this returns no check runs any more. Nothing that the check waits for must be held.
    /// [any thread but audio]
    ~RepeatingCheck();
    RepeatingCheck(const RepeatingCheck&) = delete;
    RepeatingCheck& operator=(const RepeatingCheck&) = delete;

private:
    class ToolkitTimer;
    std::unique_ptr<ToolkitTimer> timer;
};
