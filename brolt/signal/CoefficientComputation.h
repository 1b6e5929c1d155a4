// SPDX-License-Identifier: GPL-3.0-or-later
//
// From the fifteen parameters in their display units to the processor's record.
//
// This arithmetic is part of the sound and has to give the same bits on every platform. Where
// single precision is wanted of a library function, it is computed in double precision on the
// single-precision argument and rounded once: the single-precision functions of the platforms'
// libraries differ in their last bit.

#pragma once

#include "brolt/signal/Coefficients.h"

/// The plain parameter values, narrowed to what the arithmetic works with.
struct BroltParameters {
    bool masterBypass = false;
    bool osc1Enable = false;
    float osc1AttackFrequency = 0.0F;  ///< Hz
    float osc1SustainFrequency = 0.0F; ///< Hz
    float osc1MixGain = 0.0F;          ///< dB
    bool osc2Enable = false;
    float osc2AttackFrequency = 0.0F;  ///< Hz
    float osc2SustainFrequency = 0.0F; ///< Hz
    float osc2MixGain = 0.0F;          ///< dB
    float envelopeAttack = 0.0F;       ///< ms
    float envelopeRelease = 0.0F;      ///< ms
    float pitchAttack = 0.0F;          ///< ms
    float pitchRelease = 0.0F;         ///< ms
    float wetDry = 0.0F;               ///< percent
    float outputGain = 0.0F;           ///< dB
};

/// Fills every field of `record` but `meterVersion`, which is the caller's to count on. Works for
/// 44.1 kHz whatever the host's sample rate, see there. [any thread]
void computeCoefficients(Coefficients& record, const BroltParameters& parameters) noexcept;
