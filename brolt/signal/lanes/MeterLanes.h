// SPDX-License-Identifier: GPL-3.0-or-later
//
// The output meters of two channels: both mean squares in lanes 0 and 1, both envelopes in lanes 2
// and 3, both peaks in lanes 2 and 3 of a second vector. A mono output is metered in both channels.
//
// The two followers are one expression, kept * state + (news - known) * share: the mean square
// keeps its pole's part and knows nothing of its past, the envelope keeps all and takes its share
// of what is new. Times one and minus zero change no bit.

#pragma once

#include "brolt/signal/OutputMeter.h"
#include "brolt/signal/lanes/Lanes.h"

namespace lanes {

/// Squares and magnitudes of two channels' samples: (left, right) pairs of two frames each.
struct MeterNews {
    Floats squares01;
    Floats squares23;
    Floats magnitudes01;
    Floats magnitudes23;
};

BROLT_ALWAYS_INLINE MeterNews meterNews(Floats left, Floats right) {
    const Floats frames01 = _mm_unpacklo_ps(left, right);
    const Floats frames23 = _mm_unpackhi_ps(left, right);
    return {_mm_mul_ps(frames01, frames01), _mm_mul_ps(frames23, frames23), magnitude(frames01),
            magnitude(frames23)};
}

class MeterLanes {
public:
    /// The ballistics of the left meter serve both: they are always loaded together.
    BROLT_ALWAYS_INLINE MeterLanes(const OutputMeter& left, const OutputMeter& right)
        : followers(_mm_setr_ps(left.meanSquare, right.meanSquare, left.envelope, right.envelope))
        , peaks(_mm_setr_ps(0.0F, 0.0F, left.peak, right.peak))
        , kept(_mm_setr_ps(left.meanSquareCoefficient, left.meanSquareCoefficient, 1.0F, 1.0F))
        , share(_mm_setr_ps(1.0F - left.meanSquareCoefficient, 1.0F - left.meanSquareCoefficient,
                            1.0F - left.envelopeCoefficient, 1.0F - left.envelopeCoefficient))
        , known(_mm_castsi128_ps(_mm_setr_epi32(0, 0, -1, -1)))
        , peakDecay(all(left.peakDecay)) {}

    /// Follows frame J of four.
    template <int J>
    BROLT_ALWAYS_INLINE void follow(const MeterNews& news) {
        const Floats squares = J < 2 ? news.squares01 : news.squares23;
        const Floats magnitudes = J < 2 ? news.magnitudes01 : news.magnitudes23;
        const Floats both =
            J % 2 == 0 ? _mm_movelh_ps(squares, magnitudes) : _mm_movehl_ps(magnitudes, squares);
        peaks = _mm_max_ps(both, _mm_mul_ps(peakDecay, peaks));
        const Floats change = _mm_sub_ps(both, _mm_and_ps(followers, known));
        followers = _mm_add_ps(_mm_mul_ps(kept, followers), _mm_mul_ps(change, share));
    }

    BROLT_ALWAYS_INLINE void store(OutputMeter& meter, int channel) const {
        const Array follower(followers);
        const Array peak(peaks);
        meter.meanSquare = follower.lane[channel];
        meter.envelope = follower.lane[2 + channel];
        meter.peak = peak.lane[2 + channel];
    }

private:
    Floats followers;
    Floats peaks;
    Floats kept;
    Floats share;
    Floats known;
    Floats peakDecay;
};

} // namespace lanes
