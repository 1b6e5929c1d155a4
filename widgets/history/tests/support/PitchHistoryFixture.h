// SPDX-License-Identifier: GPL-3.0-or-later
// A pitch history with a record and a clock of the test's own.
#pragma once

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/history/QMPitchHistory.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

class PitchHistoryFixture : public ToolkitTest {
protected:
    static constexpr int tickMs = 30;

    PitchHistoryFixture() { history.bindMeterRecord(0, fourCharCode("ptch"), 6, &record); }

    [[nodiscard]] MeterClock clock() {
        return [this] { return now; };
    }

    /// The cosine of the phase's step from frame to frame.
    [[nodiscard]] static float cosineOf(double hertz, double rate = 44100.0) {
        return static_cast<float>(std::cos(2.0 * 3.14159265358979 * hertz / rate));
    }

    void setOscillator(std::size_t oscillator, double hertz, float gain) {
        record.values[2 * oscillator] = cosineOf(hertz);
        record.values[2 * oscillator + 1] = gain;
    }

    void tickAfter(int milliseconds) {
        now += milliseconds;
        history.tick();
    }

    void tickFor(int milliseconds) {
        for (int i = 0; i < milliseconds; i += tickMs)
            tickAfter(tickMs);
    }

    std::int64_t now = 1000000;
    /// Two oscillators that stand still and are silent.
    NoxMeterRecord record{2, {1.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f}};
    QMPitchHistory history{QMPitchHistory::usualLength, nullptr, clock()};
};
