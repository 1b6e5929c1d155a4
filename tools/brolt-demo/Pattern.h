// SPDX-License-Identifier: GPL-3.0-or-later
//
// The beat that kick and bass line of the demonstration share.

#pragma once

namespace Pattern {

constexpr int sampleRate = 44100;
constexpr double beatsPerMinute = 96.0;
constexpr int stepsPerBar = 16;
constexpr int barCount = 4;

/// Sixteenth notes. [any thread]
constexpr double secondsPerStep() {
    constexpr double stepsPerBeat = 4.0;
    return 60.0 / beatsPerMinute / stepsPerBeat;
}

/// First frame of a step, counted from the beginning. [any thread]
constexpr int frameOfStep(int step) {
    return static_cast<int>(step * secondsPerStep() * sampleRate);
}

constexpr int frameCount() {
    return frameOfStep(barCount * stepsPerBar);
}

} // namespace Pattern
