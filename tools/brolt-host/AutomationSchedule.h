// SPDX-License-Identifier: GPL-3.0-or-later
//
// Deals out automation block by block, as a workstation delivers it: a change takes effect at the
// beginning of the block that contains its frame.

#pragma once

#include "tools/brolt-host/Automation.h"

#include <cstdint>
#include <vector>

class AutomationSchedule {
public:
    /// A change's frame is its time by the sample rate (Hz), rounded to the nearest frame, halves
    /// up. `changes` must be in order of time.
    AutomationSchedule(const std::vector<AutomationChange>& changes, double sampleRate);

    /// The settings to make before the block [start, start + frames) runs: for each parameter with
    /// changes in it the last of them, in the order of the parameters' first changes in the block.
    /// Blocks must be asked for one after the other. The answer stays until the next call.
    /// [message thread]
    const std::vector<ParameterSetting>& settingsFor(std::int64_t start, std::int64_t frames);

    /// Changes that no block has contained so far. [message thread]
    [[nodiscard]] std::size_t remaining() const { return events.size() - next; }

private:
    struct Event {
        std::int64_t frame;
        std::int32_t index;
        double value;
    };

    std::vector<Event> events;
    std::size_t next = 0;
    std::vector<ParameterSetting> settings;
};
