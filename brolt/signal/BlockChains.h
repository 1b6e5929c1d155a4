// SPDX-License-Identifier: GPL-3.0-or-later
//
// What runs from frame to frame through a block: the part of the state that a block works on, taken
// out of the memory image for the length of the block.

#pragma once

#include "brolt/signal/EnvelopeDetector.h"
#include "brolt/signal/OutputMeter.h"
#include "brolt/signal/SineOscillator.h"
#include "brolt/signal/SmoothedGains.h"

#include <array>

template <int N>
struct BlockChains {
    SmoothedGains gains{};
    EnvelopeDetector levelDetector;
    EnvelopeDetector pitchDetector;
    SineOscillator oscillator1;
    SineOscillator oscillator2;
    std::array<OutputMeter, N> outputMeters;
    float osc1LastSine = 0.0F; ///< of the last frame run; 0 before the first
    float osc2LastSine = 0.0F;
};

/// What stays the same through a block.
struct BlockConstants {
    SmoothedGains targets;
    GainSmoothing smoothing;
};
