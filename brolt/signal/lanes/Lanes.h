// SPDX-License-Identifier: GPL-3.0-or-later
//
// Names for four floats side by side, as every machine this runs on has them (SSE2).
//
// The functions of this folder are always inlined: a stage is written apart from the others and
// runs woven into them.

#pragma once

#include <emmintrin.h>

#define BROLT_ALWAYS_INLINE [[gnu::always_inline]] inline

namespace lanes {

using Floats = __m128;
using Integers = __m128i;

constexpr int count = 4;

BROLT_ALWAYS_INLINE Floats all(float value) {
    return _mm_set1_ps(value);
}

BROLT_ALWAYS_INLINE Integers allIntegers(int value) {
    return _mm_set1_epi32(value);
}

BROLT_ALWAYS_INLINE Floats magnitude(Floats value) {
    return _mm_and_ps(value, _mm_castsi128_ps(allIntegers(0x7FFFFFFF)));
}

/// The lane J of value in all lanes.
template <int J>
BROLT_ALWAYS_INLINE Floats broadcast(Floats value) {
    return _mm_shuffle_ps(value, value, _MM_SHUFFLE(J, J, J, J));
}

/// A vector's lanes in an array, for scalar code.
struct Array {
    alignas(16) float lane[count];

    explicit Array(Floats value) { _mm_store_ps(lane, value); }
};

} // namespace lanes
