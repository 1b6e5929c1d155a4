// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/Packet.h"

#include <cstdlib>
#include <limits>
#include <new>

Packet::Packet(std::uint32_t packetKind, std::uint64_t byteLength)
    : kind(packetKind)
    , length(byteLength)
    , data(nullptr) {
    if (byteLength > std::numeric_limits<std::size_t>::max())
        throw std::bad_alloc();
    // One byte at least, so that a null payload always means a failure.
    data = std::calloc(byteLength == 0 ? 1 : static_cast<std::size_t>(byteLength), 1);
    if (data == nullptr)
        throw std::bad_alloc();
}

Packet::~Packet() {
    std::free(data);
}
