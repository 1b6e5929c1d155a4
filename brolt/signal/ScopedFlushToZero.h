// SPDX-License-Identifier: GPL-3.0-or-later
//
// Flush-to-zero and denormals-are-zero for the length of a scope.
//
// The tails of followers and smoothers run into subnormal numbers, which cost a hundred times a
// normal operation. This is the processor's only protection against them, and part of its
// arithmetic: with these bits off the output differs in its last bits.
//
// The trap: to the compiler the control register has nothing to do with floating-point code, and it
// may move arithmetic of the same function across the constructor or destructor. Keep the
// arithmetic in a function that is not inlined and call that one inside the scope.

#pragma once

#include <xmmintrin.h>

/// Restores the caller's whole control word on the way out, status flags included.
class ScopedFlushToZero {
public:
    /// [any thread]
    ScopedFlushToZero() noexcept
        : saved(_mm_getcsr()) {
        _mm_setcsr(saved | flushToZeroAndDenormalsAreZero);
    }

    /// [any thread]
    ~ScopedFlushToZero() { _mm_setcsr(saved); }

    ScopedFlushToZero(const ScopedFlushToZero&) = delete;
    ScopedFlushToZero& operator=(const ScopedFlushToZero&) = delete;

private:
    static constexpr unsigned int flushToZeroAndDenormalsAreZero = 0x8040;

    unsigned int saved;
};
