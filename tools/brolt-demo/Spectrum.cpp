// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-demo/Spectrum.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double lowestFrequency = 20.0;
constexpr double strongWithin = 12.0; // dB below the highest peak

/// Puts each value where its index with reversed bits says.
void reverseBits(std::vector<std::complex<double>>& values) {
    const std::size_t size = values.size();
    for (std::size_t i = 1, reversed = 0; i < size; ++i) {
        std::size_t bit = size >> 1U;
        for (; (reversed & bit) != 0; bit >>= 1U)
            reversed ^= bit;
        reversed ^= bit;
        if (i < reversed)
            std::swap(values[i], values[reversed]);
    }
}

/// The top of the parabola through a peak and its neighbours, as an offset from the peak.
double peakOffset(double before, double peak, double after) {
    const double curvature = before - 2.0 * peak + after;
    return curvature < 0.0 ? 0.5 * (before - after) / curvature : 0.0;
}

} // namespace

void fourierTransform(std::vector<std::complex<double>>& values) {
    reverseBits(values);
    for (std::size_t length = 2; length <= values.size(); length *= 2) {
        const double angle = -2.0 * std::numbers::pi / static_cast<double>(length);
        for (std::size_t k = 0; k < length / 2; ++k) {
            const std::complex<double> turn = std::polar(1.0, angle * static_cast<double>(k));
            for (std::size_t start = k; start < values.size(); start += length) {
                const std::complex<double> even = values[start];
                const std::complex<double> odd = values[start + length / 2] * turn;
                values[start] = even + odd;
                values[start + length / 2] = even - odd;
            }
        }
    }
}

std::vector<double> powerSpectrum(const std::vector<float>& samples, std::size_t windowLength) {
    std::vector<double> power(windowLength / 2 + 1);
    std::vector<std::complex<double>> window(windowLength);
    int windows = 0;
    std::size_t start = 0;
    do {
        for (std::size_t i = 0; i < windowLength; ++i) {
            const double phase =
                2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(windowLength);
            const double sample =
                start + i < samples.size() ? static_cast<double>(samples[start + i]) : 0.0;
            window[i] = sample * 0.5 * (1.0 - std::cos(phase));
        }
        fourierTransform(window);
        for (std::size_t i = 0; i < power.size(); ++i)
            power[i] += std::norm(window[i]);
        ++windows;
        start += windowLength / 2;
    } while (start + windowLength <= samples.size());
    for (double& line : power)
        line /= windows;
    return power;
}

std::optional<double> lowestStrongFrequency(const std::vector<float>& samples, double sampleRate) {
    // Lines some 1.3 Hz apart at 44.1 kHz.
    constexpr std::size_t windowLength = 32768;
    const std::vector<double> power = powerSpectrum(samples, windowLength);
    const double spacing = sampleRate / static_cast<double>(windowLength);
    const auto first =
        static_cast<std::size_t>(std::max(std::ceil(lowestFrequency / spacing), 1.0));
    const auto isPeak = [&](std::size_t i) {
        return power[i] > power[i - 1] && power[i] >= power[i + 1];
    };

    double highest = 0.0;
    for (std::size_t i = first; i + 1 < power.size(); ++i)
        highest = isPeak(i) ? std::max(highest, power[i]) : highest;
    const double strong = highest * std::pow(10.0, -strongWithin / 10.0);
    for (std::size_t i = first; i + 1 < power.size() && highest > 0.0; ++i) {
        if (isPeak(i) && power[i] >= strong) {
            const double offset =
                peakOffset(std::log(power[i - 1]), std::log(power[i]), std::log(power[i + 1]));
            return (static_cast<double>(i) + offset) * spacing;
        }
    }
    return std::nullopt;
}
