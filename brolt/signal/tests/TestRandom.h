// SPDX-License-Identifier: GPL-3.0-or-later
//
// Random numbers that are the same on every platform: the distributions of the standard library are
// not, and a digest or the starting number in a failure message has to mean the same everywhere.

#pragma once

#include <bit>
#include <cstdint>

/// The xorshift64* generator (Vigna, "An experimental exploration of Marsaglia's xorshift
/// generators, scrambled", 2016).
class TestRandom {
public:
    /// Any start but 0.
    explicit TestRandom(uint64_t start)
        : word(start) {}

    uint32_t next() {
        word ^= word >> 12;
        word ^= word << 25;
        word ^= word >> 27;
        return static_cast<uint32_t>((word * 0x2545F4914F6CDD1DULL) >> 32);
    }

    /// 0..bound-1
    uint32_t below(uint32_t bound) {
        return static_cast<uint32_t>((static_cast<uint64_t>(next()) * bound) >> 32);
    }

    bool oneIn(uint32_t count) { return below(count) == 0; }

    /// A multiple of 2^-24 in [0, 1).
    float fraction() { return static_cast<float>(next() >> 8) * 0x1p-24F; }

    /// A multiple of 2^-23 in [-1, 1).
    float sample() { return static_cast<float>(static_cast<int32_t>(next()) >> 8) * 0x1p-23F; }

    float between(float low, float high) { return low + fraction() * (high - low); }

    /// Any of the 2^32 patterns.
    float pattern() { return std::bit_cast<float>(next()); }

private:
    uint64_t word;
};
