// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-demo/BassLine.h"

#include "tools/brolt-demo/Pattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

struct Note {
    int step;   ///< from the beginning of the line
    int length; ///< steps
    int key;    ///< MIDI note number
    double velocity;
};

// clang-format off
constexpr std::array<Note, 22> notes{{
    { 0, 5, 45, 1.0}, { 6, 2, 45, 0.7}, { 8, 4, 45, 0.9}, {12, 2, 48, 0.8}, {14, 2, 50, 0.8},
    {16, 5, 43, 1.0}, {22, 2, 43, 0.7}, {24, 4, 43, 0.9}, {28, 4, 47, 0.8},
    {32, 5, 45, 1.0}, {38, 2, 45, 0.7}, {40, 4, 45, 0.9}, {44, 2, 52, 0.8}, {46, 2, 50, 0.8},
    {48, 5, 41, 1.0}, {54, 2, 41, 0.7}, {56, 4, 43, 0.9}, {60, 1, 43, 0.7}, {61, 1, 45, 0.7},
    {62, 1, 47, 0.7}, {63, 1, 48, 0.8}, {20, 1, 43, 0.5},
}};

// clang-format on

double frequencyOf(int key) {
    constexpr int keyOfA4 = 69;
    constexpr double pitchOfA4 = 440.0;
    constexpr double keysPerOctave = 12.0;
    return pitchOfA4 * std::exp2((key - keyOfA4) / keysPerOctave);
}

/// One pluck: overtones fall off with their number and die away the faster the higher they are.
double pluckedString(double frequency, double seconds) {
    constexpr double highestOvertone = 2500.0;
    double sum = 0.0;
    for (int n = 1; n * frequency < highestOvertone; ++n) {
        const double strength = 1.0 / (n * std::sqrt(static_cast<double>(n)));
        const double decay = std::exp(-seconds * (1.6 + 2.4 * n));
        sum += strength * decay * std::sin(2.0 * std::numbers::pi * n * frequency * seconds);
    }
    return sum;
}

/// Begins and ends without a click; 0..1.
double fade(double seconds, double duration) {
    constexpr double attack = 0.004;
    constexpr double release = 0.03;
    return std::clamp(std::min(seconds / attack, (duration - seconds) / release), 0.0, 1.0);
}

} // namespace

std::vector<float> bassLine() {
    constexpr double level = 0.42;
    constexpr double detuning = 1.0012; // of the right channel: two cents, a slow drift
    std::vector<float> result(static_cast<std::size_t>(2 * Pattern::frameCount()));
    for (const Note& note : notes) {
        const int start = Pattern::frameOfStep(note.step);
        const double duration = note.length * Pattern::secondsPerStep();
        const int frames = std::min(static_cast<int>(duration * Pattern::sampleRate),
                                    Pattern::frameCount() - start);
        for (int i = 0; i < frames; ++i) {
            const double seconds = static_cast<double>(i) / Pattern::sampleRate;
            const double gain = level * note.velocity * fade(seconds, duration);
            const double frequency = frequencyOf(note.key);
            const std::size_t at = 2 * static_cast<std::size_t>(start + i);
            result[at] += static_cast<float>(gain * pluckedString(frequency, seconds));
            result[at + 1] +=
                static_cast<float>(gain * pluckedString(frequency * detuning, seconds));
        }
    }
    return result;
}
