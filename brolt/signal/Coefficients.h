// SPDX-License-Identifier: GPL-3.0-or-later
//
// The record of per-block constants that the processor works from.
//
// The audio thread never sees a parameter: whoever changes parameters computes one of these records
// and hands it over. It travels as a 72-byte message payload and lies in memory that a host may
// own, so it is a memory image: little-endian, no padding, every offset fixed below.

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// A record built before any parameter was read carries the values given here. The four pairs from
/// offset 40 on are (attack, release) or (attack, sustain) and are used as pairs.
struct Coefficients {
    float outputGain = 1.0F;     ///< linear
    float wetMix = 1.0F;         ///< 0..1, 0 passes the input only
    float osc1Gain = 1.0F;       ///< linear, 0 when the oscillator is disabled
    float osc2Gain = 1.0F;       ///< linear, 0 when the oscillator is disabled
    float sampleRate = 44100.0F; ///< Hz, the rate the record was computed for
    int32_t meterVersion = -1;   ///< differs from record to record; a new one reloads the meters
    float peakDecay = 0.0F;      ///< per-sample multiplier of the held peak
    float envelopeMeterCoefficient = 0.0F; ///< pole of the meter's envelope follower
    float meanSquareCoefficient = 0.0F;    ///< pole of the meter's mean-square follower
    float msToSeconds = 0.001F;
    float levelAttack = 1.0F;  ///< share of the distance covered per sample, 0..1
    float levelRelease = 1.0F; ///< share of the distance covered per sample, 0..1
    float pitchAttack = 1.0F;  ///< share of the distance covered per sample, 0..1
    float pitchRelease = 1.0F; ///< share of the distance covered per sample, 0..1
    float osc1AttackT = 1.0F;  ///< frequency coefficient at full pitch envelope; 1 is 0 Hz
    float osc1SustainT = 1.0F; ///< frequency coefficient at zero pitch envelope
    float osc2AttackT = 1.0F;  ///< frequency coefficient at full pitch envelope
    float osc2SustainT = 1.0F; ///< frequency coefficient at zero pitch envelope
};

// clang-format off
static_assert(sizeof(Coefficients) == 72);
static_assert(std::is_standard_layout_v<Coefficients> && std::is_trivially_copyable_v<Coefficients>);
static_assert(offsetof(Coefficients, outputGain)               ==  0);
static_assert(offsetof(Coefficients, wetMix)                   ==  4);
static_assert(offsetof(Coefficients, osc1Gain)                 ==  8);
static_assert(offsetof(Coefficients, osc2Gain)                 == 12);
static_assert(offsetof(Coefficients, sampleRate)               == 16);
static_assert(offsetof(Coefficients, meterVersion)             == 20);
static_assert(offsetof(Coefficients, peakDecay)                == 24);
static_assert(offsetof(Coefficients, envelopeMeterCoefficient) == 28);
static_assert(offsetof(Coefficients, meanSquareCoefficient)    == 32);
static_assert(offsetof(Coefficients, msToSeconds)              == 36);
static_assert(offsetof(Coefficients, levelAttack)              == 40);
static_assert(offsetof(Coefficients, levelRelease)             == 44);
static_assert(offsetof(Coefficients, pitchAttack)              == 48);
static_assert(offsetof(Coefficients, pitchRelease)             == 52);
static_assert(offsetof(Coefficients, osc1AttackT)              == 56);
static_assert(offsetof(Coefficients, osc1SustainT)             == 60);
static_assert(offsetof(Coefficients, osc2AttackT)              == 64);
static_assert(offsetof(Coefficients, osc2SustainT)             == 68);
// clang-format on
