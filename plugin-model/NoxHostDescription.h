// SPDX-License-Identifier: GPL-3.0-or-later
// What a host adapter can tell the environment about its host: eleven providers, each installed
// only where the host offers the value.
#pragma once

#include "plugin-model/NoxTransport.h"

#include <array>
#include <functional>
#include <utility>

struct NoxHostDescription {
    bool enabled = false; ///< the providers are asked only when set

    std::function<double()> sampleRate;                                   // provider 0
    std::function<double()> tempo;                                        // provider 1
    std::function<std::pair<std::uint64_t, std::uint64_t>()> valuePairFG; // provider 2
    std::function<NoxTimeSignature()> timeSignature;                      // provider 3
    std::function<std::uint64_t()> position;                              // provider 4
    std::function<std::uint64_t()> valueE;                                // provider 5
    std::array<std::function<std::uint32_t()>, 5> transportFlags;         // providers 6 to 10
};
