// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/RepeatingCheck.h"

#include "QMShell/toolkit/ToolkitUse.h"

#include <juce_events/juce_events.h>

#include <utility>

class RepeatingCheck::ToolkitTimer final : public juce::Timer {
public:
    explicit ToolkitTimer(std::function<void()> function)
        : check(std::move(function)) {}

private:
    void timerCallback() override { check(); }

    std::function<void()> check;
};

RepeatingCheck::RepeatingCheck(int periodMs, std::function<void()> check)
    : timer(std::make_unique<ToolkitTimer>(std::move(check))) {
    ToolkitUse::run([this, periodMs] { timer->startTimer(periodMs); });
}

RepeatingCheck::~RepeatingCheck() {
    // On the message thread, which therefore is not in the midst of a check.
    ToolkitUse::run([this] { timer.reset(); });
}
