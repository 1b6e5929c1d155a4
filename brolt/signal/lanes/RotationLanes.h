// SPDX-License-Identifier: GPL-3.0-or-later
//
// Both oscillators: the frequency polynomial of four frames at once, and the rotation of one frame
// after the other with oscillator 1 in lane 0 and oscillator 2 in lane 1.
//
// The rotation is the longest chain from frame to frame and sets the speed of everything. The phase
// is therefore carried at twice its value and the sine and cosine of the step at half of theirs, so
// that the renormalisation need not halve: the products in the chain are the same numbers, and so
// are the results, since a power of two only changes exponents. lanesApply keeps out the states in
// which an exponent could leave its range.

#pragma once

#include "brolt/signal/SineOscillator.h"
#include "brolt/signal/lanes/Lanes.h"

namespace lanes {

/// Half of sine and cosine of the phase steps of four frames, (oscillator 1, oscillator 2) pairs of
/// frames 0 and 1, and of frames 2 and 3.
struct StepPairs {
    Floats sine01;
    Floats sine23;
    Floats cosine01;
    Floats cosine23;
};

/// The frequency polynomial of one oscillator.
class StepPolynomial {
public:
    BROLT_ALWAYS_INLINE StepPolynomial(float attackT, float sustainT)
        : sustain(all(sustainT))
        , sweep(all(attackT - sustainT)) {}

    /// Half of the sine and the cosine, for the pitch envelope of four frames.
    BROLT_ALWAYS_INLINE void evaluate(Floats pitch, Floats& halfSine, Floats& halfCosine) const {
        const Floats wanted = _mm_add_ps(sustain, _mm_mul_ps(pitch, sweep));
        const Floats t = _mm_min_ps(_mm_max_ps(wanted, all(-1.0F)), all(1.0F)); // NaN becomes -1
        halfSine = _mm_mul_ps(_mm_sub_ps(all(3.0F), _mm_mul_ps(t, t)), _mm_mul_ps(all(0.25F), t));
        halfCosine = _mm_sqrt_ps(_mm_sub_ps(all(0.25F), _mm_mul_ps(halfSine, halfSine)));
    }

private:
    Floats sustain;
    Floats sweep;
};

BROLT_ALWAYS_INLINE StepPairs pairSteps(Floats sine1, Floats sine2, Floats cosine1,
                                        Floats cosine2) {
    return {_mm_unpacklo_ps(sine1, sine2), _mm_unpackhi_ps(sine1, sine2),
            _mm_unpacklo_ps(cosine1, cosine2), _mm_unpackhi_ps(cosine1, cosine2)};
}

class RotationLanes {
public:
    BROLT_ALWAYS_INLINE RotationLanes(const SineOscillator& first, const SineOscillator& second)
        : sines(_mm_setr_ps(2.0F * first.x, 2.0F * second.x, 0.0F, 0.0F))
        , cosines(_mm_setr_ps(2.0F * first.y, 2.0F * second.y, 0.0F, 0.0F)) {}

    /// Advances by the step of frame J of four and answers twice the oscillators' outputs before
    /// it.
    template <int J>
    BROLT_ALWAYS_INLINE Floats turn(const StepPairs& steps) {
        Floats sine = J < 2 ? steps.sine01 : steps.sine23;
        Floats cosine = J < 2 ? steps.cosine01 : steps.cosine23;
        if constexpr (J % 2 == 1) {
            sine = _mm_movehl_ps(sine, sine);
            cosine = _mm_movehl_ps(cosine, cosine);
        }
        const Floats output = sines;
        const Floats x = _mm_add_ps(_mm_mul_ps(cosine, cosines), _mm_mul_ps(sine, sines));
        const Floats y = _mm_sub_ps(_mm_mul_ps(sine, cosines), _mm_mul_ps(cosine, sines));
        const Floats squared = _mm_add_ps(_mm_mul_ps(x, x), _mm_mul_ps(y, y));
        const Floats twiceCorrection = _mm_sub_ps(all(3.0F), squared);
        sines = _mm_mul_ps(x, twiceCorrection);
        cosines = _mm_mul_ps(y, twiceCorrection);
        return output;
    }

    BROLT_ALWAYS_INLINE void store(SineOscillator& first, SineOscillator& second) const {
        const Array x(_mm_mul_ps(sines, all(0.5F)));
        const Array y(_mm_mul_ps(cosines, all(0.5F)));
        first.x = x.lane[0];
        first.y = y.lane[0];
        second.x = x.lane[1];
        second.y = y.lane[1];
    }

private:
    Floats sines;
    Floats cosines;
};

} // namespace lanes
