// SPDX-License-Identifier: GPL-3.0-or-later
// The unit of traffic from the parameter side to a processor: a coefficient record or a control
// message. It owns its payload and is made on the parameter side only; the audio thread never
// sees a packet.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

struct Packet {
    /// Kind 0: a coefficient record for the instance's queue.
    static constexpr std::uint32_t coefficientKind = 0;
    /// Any other kind is a message; its payload starts with a 32-bit message code.
    static constexpr std::uint32_t messageKind = 1;
    /// Routing words for a remote host's connection matrix.
    static constexpr std::uint32_t connectionKind = 3;

    std::uint32_t kind;
    std::uint64_t length; ///< payload size in bytes
    void* data;           ///< payload, zero-filled at creation, freed with the packet

    /// Throws std::bad_alloc when the payload cannot be allocated.
    Packet(std::uint32_t packetKind, std::uint64_t byteLength);
    ~Packet();
    Packet(const Packet&) = delete;
    Packet& operator=(const Packet&) = delete;

    /// Payload size in whole 32-bit words.
    [[nodiscard]] std::uint32_t wordCount() const {
        return static_cast<std::uint32_t>(length / sizeof(std::uint32_t));
    }
};

static_assert(sizeof(Packet) == 24);
static_assert(offsetof(Packet, kind) == 0);
static_assert(offsetof(Packet, length) == 8);
static_assert(offsetof(Packet, data) == 16);

/// Ordered and growable; owns its packets.
using PacketList = std::vector<std::unique_ptr<Packet>>;
