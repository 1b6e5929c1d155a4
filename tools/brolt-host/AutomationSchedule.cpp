// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/AutomationSchedule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

std::int64_t frameAt(double seconds, double sampleRate) {
    // Past every file there is, and still a number of frames.
    constexpr double never = 9.0e18;
    const double frame = seconds * sampleRate;
    return frame < never ? std::llround(frame) : std::numeric_limits<std::int64_t>::max();
}

} // namespace

AutomationSchedule::AutomationSchedule(const std::vector<AutomationChange>& changes,
                                       double sampleRate) {
    events.reserve(changes.size());
    for (const AutomationChange& change : changes)
        events.push_back({frameAt(change.seconds, sampleRate), change.index, change.value});
}

const std::vector<ParameterSetting>& AutomationSchedule::settingsFor(std::int64_t start,
                                                                     std::int64_t frames) {
    settings.clear();
    for (; next < events.size() && events[next].frame < start + frames; ++next) {
        const Event& event = events[next];
        const auto earlier =
            std::find_if(settings.begin(), settings.end(),
                         [&](const ParameterSetting& s) { return s.index == event.index; });
        if (earlier != settings.end())
            earlier->value = event.value;
        else
            settings.push_back({event.index, event.value, {}});
    }
    return settings;
}
