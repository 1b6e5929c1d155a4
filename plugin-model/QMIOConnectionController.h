// SPDX-License-Identifier: GPL-3.0-or-later
// Moves blocks of 32-bit words between a processing host's memory and an instance, and tells the
// host how the instance's inputs and outputs are routed. The instance owns one while it has a host.
#pragma once

#include "plugin-model/Packet.h"

#include <cstdint>

/// A stretch of a transfer, both in 32-bit words: the offset into the block and the count.
struct QMTransferPair {
    std::uint32_t offset;
    std::uint32_t count;
};

class QMIOConnectionController {
public:
    virtual ~QMIOConnectionController() = default;

    virtual void outputConnected(std::int32_t output, std::int32_t slot) = 0;
    virtual void inputConnected(std::int32_t input, std::int32_t slot) = 0;
    /// Fills the block from the host: the given stretches, or all of it without pairs. A stretch
    /// that passes the block's end is cut. Without a host the block stays as it is.
    virtual void transfer(Packet& block, std::int32_t pairCount, const QMTransferPair* pairs) = 0;
    virtual void setInputCode(std::int32_t code) = 0;
    virtual void setOutputCode(std::int32_t code) = 0;
    virtual void setTransferCode(std::int32_t code) = 0;
};
