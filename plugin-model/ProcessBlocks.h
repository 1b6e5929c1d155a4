// SPDX-License-Identifier: GPL-3.0-or-later
// The two descriptions of audio that reach an instance's processing entries. They are memory images
// filled by host adapters: sequences of 64-bit words.
#pragma once

#include <cstddef>
#include <cstdint>

/// One direction of one block for the local processing entry.
struct NoxProcessBlock {
    std::int64_t frameCount; ///< read as a signed 32-bit number
    std::int32_t channelCount;
    std::uint8_t flag;
    float** channels; ///< one pointer a channel, frameCount samples each
};

static_assert(sizeof(NoxProcessBlock) == 24);
static_assert(offsetof(NoxProcessBlock, channels) == 16);

/// The host-managed processing entry's view of one instance, for hosts that keep the coefficient
/// and state memory themselves.
struct NoxHostManagedBlock {
    float** inputs;
    void* word1; ///< not used by this system
    float** outputs;
    const std::int32_t* frameCount;
    const void* coefficients; ///< the record to use, or null
    void* state;              ///< state block initialised through initialiseStateBuffer, or null
    void* word6;
    void* word7;
    float** meterOutput; ///< points at the meter output pointer; either may be null
};

static_assert(sizeof(NoxHostManagedBlock) == 72);
static_assert(offsetof(NoxHostManagedBlock, outputs) == 16);
static_assert(offsetof(NoxHostManagedBlock, frameCount) == 24);
static_assert(offsetof(NoxHostManagedBlock, coefficients) == 32);
static_assert(offsetof(NoxHostManagedBlock, state) == 40);
static_assert(offsetof(NoxHostManagedBlock, meterOutput) == 64);
