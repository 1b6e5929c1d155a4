// SPDX-License-Identifier: GPL-3.0-or-later
//
// Everything the processor remembers from one block to the next, for N channels.
//
// A memory image: a host that owns the memory is told its size and the offsets of the snapshot and
// of the request counter, and reads both from outside. Little-endian, no hidden padding, every
// offset fixed below. A value-initialised object is a processor before its first block.

#pragma once

#include "brolt/signal/EnvelopeDetector.h"
#include "brolt/signal/OutputMeter.h"
#include "brolt/signal/SineOscillator.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

template <int N>
struct BroltState {
    static_assert(N == 1 || N == 2);

    /// Floats of an analysis snapshot: four of the oscillators, three of each channel's meter.
    static constexpr int32_t snapshotLength = 4 + 3 * N;

    float outputGain = 0.0F; ///< the four smoothed gains; the first block sets them to its targets
    float wetMix = 0.0F;
    float osc1Gain = 0.0F;
    float osc2Gain = 0.0F;
    float osc1LastSine = 0.0F; ///< cosine of the last phase step: Hz = acos(s) / 2 pi * sample rate
    float osc2LastSine = 0.0F;
    EnvelopeDetector levelDetector;
    EnvelopeDetector pitchDetector;
    SineOscillator oscillator1;
    SineOscillator oscillator2;
    int32_t meterVersionSeen = -1; ///< version of the record that loaded the meters' ballistics
    std::array<OutputMeter, N> outputMeters;
    int32_t snapshotRequest = 0; ///< raised from outside to ask for a snapshot
    int32_t snapshotServed = 0;  ///< equals the request once the snapshot below is written
    std::array<float, snapshotLength> analysisSnapshot{};
    uint8_t firstBlock = 1;
    std::array<uint8_t, 3> reserved{};
    float smoothingPole = 0.999F;
    float smoothingStep = 1.0F - 0.999F; ///< single precision: 0.0009999871
};

// clang-format off
static_assert(std::is_standard_layout_v<BroltState<1>> && std::is_trivially_copyable_v<BroltState<1>>);
static_assert(std::is_standard_layout_v<BroltState<2>> && std::is_trivially_copyable_v<BroltState<2>>);

static_assert(sizeof(BroltState<1>)                     == 176 && sizeof(BroltState<2>)                     == 216);
static_assert(offsetof(BroltState<1>, outputGain)       ==   0 && offsetof(BroltState<2>, outputGain)       ==   0);
static_assert(offsetof(BroltState<1>, wetMix)           ==   4 && offsetof(BroltState<2>, wetMix)           ==   4);
static_assert(offsetof(BroltState<1>, osc1Gain)         ==   8 && offsetof(BroltState<2>, osc1Gain)         ==   8);
static_assert(offsetof(BroltState<1>, osc2Gain)         ==  12 && offsetof(BroltState<2>, osc2Gain)         ==  12);
static_assert(offsetof(BroltState<1>, osc1LastSine)     ==  16 && offsetof(BroltState<2>, osc1LastSine)     ==  16);
static_assert(offsetof(BroltState<1>, osc2LastSine)     ==  20 && offsetof(BroltState<2>, osc2LastSine)     ==  20);
static_assert(offsetof(BroltState<1>, levelDetector)    ==  24 && offsetof(BroltState<2>, levelDetector)    ==  24);
static_assert(offsetof(BroltState<1>, pitchDetector)    ==  32 && offsetof(BroltState<2>, pitchDetector)    ==  32);
static_assert(offsetof(BroltState<1>, oscillator1)      ==  40 && offsetof(BroltState<2>, oscillator1)      ==  40);
static_assert(offsetof(BroltState<1>, oscillator2)      ==  68 && offsetof(BroltState<2>, oscillator2)      ==  68);
static_assert(offsetof(BroltState<1>, meterVersionSeen) ==  96 && offsetof(BroltState<2>, meterVersionSeen) ==  96);
static_assert(offsetof(BroltState<1>, outputMeters)     == 100 && offsetof(BroltState<2>, outputMeters)     == 100);
static_assert(offsetof(BroltState<1>, snapshotRequest)  == 128 && offsetof(BroltState<2>, snapshotRequest)  == 156);
static_assert(offsetof(BroltState<1>, snapshotServed)   == 132 && offsetof(BroltState<2>, snapshotServed)   == 160);
static_assert(offsetof(BroltState<1>, analysisSnapshot) == 136 && offsetof(BroltState<2>, analysisSnapshot) == 164);
static_assert(offsetof(BroltState<1>, firstBlock)       == 164 && offsetof(BroltState<2>, firstBlock)       == 204);
static_assert(offsetof(BroltState<1>, smoothingPole)    == 168 && offsetof(BroltState<2>, smoothingPole)    == 208);
static_assert(offsetof(BroltState<1>, smoothingStep)    == 172 && offsetof(BroltState<2>, smoothingStep)    == 212);
// clang-format on
