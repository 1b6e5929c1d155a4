// SPDX-License-Identifier: GPL-3.0-or-later
//
// The signal processor: two sine tones under the input, their loudness and pitch led by the input's
// level, mixed, metered and written to the output.
//
// It has no object of its own. A state block is plain memory that its owner (the plug-in, or a
// host) keeps, and every operation works on one that is handed in. The pieces are each in a file of
// their own (EnvelopeDetector, SineOscillator, SmoothedGains, OutputMeter); this one puts them in
// order.

#pragma once

#include "brolt/signal/BroltState.h"
#include "brolt/signal/Coefficients.h"

#include <cstdint>
#include <type_traits>

/// N is the number of channels, 1 or 2; both are instantiated in Brolt.cpp.
template <int N, typename Sample>
class Brolt {
    static_assert(N == 1 || N == 2);
    static_assert(std::is_same_v<Sample, float>);

public:
    using State = BroltState<N>;

    /// Runs one block of `frameCount` frames of N channels. An output may be its own input, or any
    /// other buffer that starts at the same frame; buffers that overlap with a shift are not
    /// allowed. A count of 0 or less touches no buffer (the arrays may then be null), but does what
    /// belongs to the end of a block. Allocates nothing, locks nothing, uses about 5 KB of stack
    /// whatever the count, and restores the floating-point control word. [audio thread]
    static void process(State& state, const Sample* const* inputs, Sample* const* outputs,
                        const Coefficients& coefficients, int32_t frameCount) noexcept;

    /// The same without the fast form of the frames: for tests, and to measure against.
    /// [audio thread]
    static void processPlainly(State& state, const Sample* const* inputs, Sample* const* outputs,
                               const Coefficients& coefficients, int32_t frameCount) noexcept;

    /// Makes any memory of the right size a processor before its first block. [any thread]
    static void initialiseState(State& state) noexcept;

    /// Silences the processor: meters, detectors, oscillators and last sines go back to their
    /// beginning, and the next block starts with its gains at their targets. Not while a block runs
    /// on the same state. [audio thread]
    static void resetState(State& state) noexcept;

    /// Zeroes the meters' values. May come while a block runs, which may then write over it.
    /// [any thread]
    static void resetMeters(State& state) noexcept;

    /// Writes State::snapshotLength floats, read from the live state and not from the snapshot kept
    /// in it: last sine of oscillator 1 and 2, level of oscillator 1 and 2 (0 while its gain is
    /// exactly 0), then envelope, mean square and peak of each channel. May come while a block
    /// runs; the floats are whole, but may be of two neighbouring blocks. [any thread]
    static void copySnapshot(const State& state, float* destination) noexcept;
};

extern template class Brolt<1, float>;
extern template class Brolt<2, float>;
