// SPDX-License-Identifier: GPL-3.0-or-later
// Play position and tempo, as an instance and its environment carry them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

struct NoxTransportPosition {
    double playRate = 1.0;
    double position = 0.0;
};

static_assert(sizeof(NoxTransportPosition) == 16);

/// Beats per bar over beat unit.
struct NoxTimeSignature {
    std::uint32_t numerator = 4;
    std::uint32_t denominator = 4;
};

/// An unknown position: all bits set.
constexpr std::uint64_t noxUnknownPosition = std::numeric_limits<std::uint64_t>::max();

/// What an environment answers about time. A memory image of eight 64-bit words; on entry the last
/// word holds the caller's request bits.
struct NoxTimeInfo {
    double sampleRate; ///< Hz
    std::uint64_t position;
    double tempo; ///< beats a minute
    std::uint64_t valueE;
    std::uint64_t valueF;
    std::uint64_t valueG;
    NoxTimeSignature timeSignature;
    std::uint64_t flags;
};

static_assert(sizeof(NoxTimeInfo) == 64);
static_assert(offsetof(NoxTimeInfo, timeSignature) == 48);
static_assert(offsetof(NoxTimeInfo, flags) == 56);

/// Request bits on entry to the time-info query: which providers to ask.
namespace NoxTimeRequest {
constexpr std::uint64_t transportFlags = 0x20;
constexpr std::uint64_t valueE = 0x40;
constexpr std::uint64_t valuePairFG = 0x80;
constexpr std::uint64_t tempo = 0x100;
constexpr std::uint64_t timeSignature = 0x200;
} // namespace NoxTimeRequest
