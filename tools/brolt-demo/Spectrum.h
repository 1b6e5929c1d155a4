// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which frequencies a signal is made of.

#pragma once

#include <complex>
#include <optional>
#include <vector>

/// In place; the size must be a power of two. Radix 2, decimation in time. [any thread]
void fourierTransform(std::vector<std::complex<double>>& values);

/// Mean power spectrum over half-overlapping Hann windows of `windowLength` samples (a power of
/// two), from 0 Hz up to half the sample rate. A short signal is one window, filled up with zeros.
/// [any thread]
std::vector<double> powerSpectrum(const std::vector<float>& samples, std::size_t windowLength);

/// The lowest frequency (Hz) from 20 Hz up whose peak in the spectrum is at most 12 dB below the
/// highest; nothing for silence. Interpolated between the lines of the spectrum. [any thread]
std::optional<double> lowestStrongFrequency(const std::vector<float>& samples, double sampleRate);
