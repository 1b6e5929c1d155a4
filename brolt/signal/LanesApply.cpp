// SPDX-License-Identifier: GPL-3.0-or-later
//
// When the fast form is exact. Everything is asked of bit patterns, since a subnormal number
// compares equal to zero while subnormals are off.

#include "brolt/signal/LaneFrames.h"

#include "brolt/signal/lanes/Lanes.h"

#include <bit>

namespace {

constexpr uint32_t magnitudeBits = 0x7FFFFFFFU;

uint32_t bitsOf(float value) {
    return std::bit_cast<uint32_t>(value);
}

/// Positive zero, or a normal number not too great: what a detector's level is.
bool isLevel(float value) {
    const uint32_t bits = bitsOf(value);
    return bits == 0 || (bits >= bitsOf(0x1p-126F) && bits <= bitsOf(0x1p100F));
}

/// A detector that moves, but not past its target.
bool isRate(float value) {
    const uint32_t bits = bitsOf(value);
    return bits >= bitsOf(0x1p-126F) && bits <= bitsOf(1.0F);
}

bool magnitudeBetween(float value, float lowest, float highest) {
    const uint32_t bits = bitsOf(value) & magnitudeBits;
    return bits >= bitsOf(lowest) && bits <= bitsOf(highest);
}

/// Phases this close to the unit circle, and steps of at least this size, stay far from the ends of
/// the exponent's range: a sum of two products of theirs is zero or keeps most of its bits above
/// 2^-80.
bool isPhase(float value) {
    return value == 0.0F ? (bitsOf(value) & magnitudeBits) == 0
                         : magnitudeBetween(value, 0x1p-40F, 1.0625F);
}

bool isStep(float t) {
    return magnitudeBetween(t, 0x1p-20F, 1.0F);
}

bool hasUsualConstants(const SineOscillator& oscillator) {
    const SineOscillator usual;
    return oscillator.normScale == usual.normScale && oscillator.normTarget == usual.normTarget &&
           oscillator.polyScale == usual.polyScale && oscillator.polyOffset == usual.polyOffset &&
           oscillator.limit == usual.limit;
}

bool applies(const SineOscillator& oscillator) {
    return hasUsualConstants(oscillator) && isPhase(oscillator.x) && isPhase(oscillator.y);
}

bool applies(const Coefficients& k) {
    return isRate(k.levelAttack) && isRate(k.levelRelease) && isRate(k.pitchAttack) &&
           isRate(k.pitchRelease) && isStep(k.osc1AttackT) && isStep(k.osc1SustainT) &&
           isStep(k.osc2AttackT) && isStep(k.osc2SustainT);
}

/// Whether every sample is a number far from the end of the range: as the detectors subtract and
/// add, nothing becomes infinite or NaN. The upper halves of the magnitudes' bits are enough for
/// that, and the greatest of sixteen-bit numbers is one instruction.
bool areOrdinary(const float* samples, int32_t frames) {
    constexpr int greatestUpperHalf = std::bit_cast<int>(0x1p100F) >> 16;
    const lanes::Integers magnitude = lanes::allIntegers(static_cast<int>(magnitudeBits));
    lanes::Integers greatest = _mm_setzero_si128();
    for (int32_t i = 0; i + lanes::count <= frames; i += lanes::count) {
        const lanes::Integers bits = _mm_castps_si128(_mm_loadu_ps(samples + i));
        greatest = _mm_max_epi16(greatest, _mm_and_si128(bits, magnitude));
    }
    const lanes::Integers upperHalves = _mm_srli_epi32(greatest, 16);
    return _mm_movemask_epi8(_mm_cmpgt_epi32(upperHalves, lanes::allIntegers(greatestUpperHalf))) ==
           0;
}

} // namespace

template <int N>
bool lanesApply(const BlockChains<N>& chains, const Coefficients& coefficients,
                const float* const* inputs, const float* const* outputs, int32_t frames) noexcept {
    if (N == 2 && outputs[0] == outputs[N - 1])
        return false;
    // The meters share one set of ballistics.
    const OutputMeter& left = chains.outputMeters[0];
    const OutputMeter& right = chains.outputMeters[N - 1];
    if (left.envelopeCoefficient != right.envelopeCoefficient ||
        left.meanSquareCoefficient != right.meanSquareCoefficient ||
        left.peakDecay != right.peakDecay)
        return false;
    return isLevel(chains.levelDetector.level) && isLevel(chains.pitchDetector.level) &&
           applies(chains.oscillator1) && applies(chains.oscillator2) && applies(coefficients) &&
           areOrdinary(inputs[0], frames) && areOrdinary(inputs[N - 1], frames);
}

template bool lanesApply<1>(const BlockChains<1>&, const Coefficients&, const float* const*,
                            const float* const*, int32_t) noexcept;
template bool lanesApply<2>(const BlockChains<2>&, const Coefficients&, const float* const*,
                            const float* const*, int32_t) noexcept;
