// SPDX-License-Identifier: GPL-3.0-or-later
//
// Gains, meter ballistics, oscillator coefficients and detector rates, in the record's order.

#include "brolt/signal/CoefficientComputation.h"

#include <cmath>
#include <numbers>

namespace {

// Every time constant and frequency is for this rate, and the host's rate does not come in. At
// 88.2 kHz the tones therefore sound an octave higher and the times are halved. This is how the
// product behaves, and sessions made with it depend on it: do not pass the host's rate in here.
constexpr double computationRate = 44100.0;

constexpr double meterEnvelopeSeconds = 0.3; ///< to reach 99 % of a step
constexpr double meterPeakFallSeconds = 1.7; ///< to fall by 20 dB

float gainFromDecibels(float decibels) {
    const float exponent = decibels / 20.0F;
    return static_cast<float>(std::pow(10.0, static_cast<double>(exponent)));
}

// The t for which t (3 - t^2) / 2 is the cosine of the wanted phase step, so that the oscillator
// turns by exactly that step. With t = 2 sin(a) the cubic is sin(3 a) = k (triple-angle formula);
// the principal arcsine leads to the one root in [-1, 1].
float oscillatorCoefficient(float frequency) {
    const double phaseStep =
        static_cast<double>(frequency) * (2.0 * std::numbers::pi) / computationRate;
    const auto w = static_cast<float>(phaseStep);
    const auto k = static_cast<float>(std::cos(static_cast<double>(w)));
    return static_cast<float>(2.0 * std::sin(std::asin(static_cast<double>(k)) / 3.0));
}

// Share of the distance per sample that covers 90 % of a step in the given time.
float detectorRate(float msToSeconds, float milliseconds) {
    const float samples = msToSeconds * milliseconds * static_cast<float>(computationRate);
    return static_cast<float>(1.0 - std::pow(0.1, 1.0 / static_cast<double>(samples)));
}

} // namespace

void computeCoefficients(Coefficients& record, const BroltParameters& parameters) noexcept {
    record.outputGain = gainFromDecibels(parameters.outputGain);
    record.wetMix = parameters.wetDry / 100.0F;
    record.osc1Gain = gainFromDecibels(parameters.osc1MixGain);
    record.osc2Gain = gainFromDecibels(parameters.osc2MixGain);
    record.sampleRate = static_cast<float>(computationRate);

    record.peakDecay =
        static_cast<float>(std::pow(0.1, 1.0 / (computationRate * meterPeakFallSeconds)));
    record.envelopeMeterCoefficient =
        static_cast<float>(std::pow(0.01, 1.0 / (computationRate * meterEnvelopeSeconds)));
    // The square of the rounded decay, not of the exact one: the last bit is different.
    record.meanSquareCoefficient = record.peakDecay * record.peakDecay;

    record.msToSeconds = 0.001F;
    record.levelAttack = detectorRate(record.msToSeconds, parameters.envelopeAttack);
    record.levelRelease = detectorRate(record.msToSeconds, parameters.envelopeRelease);
    record.pitchAttack = detectorRate(record.msToSeconds, parameters.pitchAttack);
    record.pitchRelease = detectorRate(record.msToSeconds, parameters.pitchRelease);

    record.osc1AttackT = oscillatorCoefficient(parameters.osc1AttackFrequency);
    record.osc1SustainT = oscillatorCoefficient(parameters.osc1SustainFrequency);
    record.osc2AttackT = oscillatorCoefficient(parameters.osc2AttackFrequency);
    record.osc2SustainT = oscillatorCoefficient(parameters.osc2SustainFrequency);

    if (!parameters.osc1Enable)
        record.osc1Gain = 0.0F;
    if (!parameters.osc2Enable)
        record.osc2Gain = 0.0F;

    // Bypass is a setting of the mix: detectors and oscillators go on, so that switching it off
    // again finds the tones where they would have been.
    if (parameters.masterBypass) {
        record.outputGain = 1.0F;
        record.wetMix = 0.0F;
    }
}
