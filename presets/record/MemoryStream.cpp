// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/MemoryStream.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

/// What is added when twice the capacity is still too small, in bytes.
constexpr std::int64_t growthMargin = 128;

std::byte* allocate(std::size_t size) {
    // An empty buffer is a buffer too: malloc(0) may answer null.
    return static_cast<std::byte*>(std::malloc(std::max<std::size_t>(size, 1)));
}

} // namespace

MemoryStream::MemoryStream(std::int32_t initialCapacity) {
    growTo(std::max(initialCapacity, 0));
}

MemoryStream::MemoryStream(std::span<const std::byte> bytes) {
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        return;
    growTo(static_cast<std::int64_t>(bytes.size()));
    if (buffer != nullptr && !bytes.empty()) {
        std::memcpy(buffer.get(), bytes.data(), bytes.size());
        length = capacity_;
    }
}

void MemoryStream::growTo(std::int64_t wanted) {
    if (wanted > std::numeric_limits<std::int32_t>::max())
        return;
    Buffer larger(allocate(static_cast<std::size_t>(wanted)));
    if (larger == nullptr)
        return;
    if (length > 0)
        std::memcpy(larger.get(), buffer.get(), static_cast<std::size_t>(length));
    buffer = std::move(larger);
    capacity_ = static_cast<std::int32_t>(wanted);
}

bool MemoryStream::write(std::int32_t size, const void* bytes) {
    if (size < 0)
        return true;
    const std::int64_t needed = std::int64_t{length} + size;
    if (needed > capacity_) {
        const std::int64_t twice = std::int64_t{capacity_} * 2;
        growTo(needed <= twice ? twice : needed + growthMargin);
    }
    if (needed > capacity_ || buffer == nullptr)
        return true;
    if (size > 0)
        std::memcpy(buffer.get() + length, bytes, static_cast<std::size_t>(size));
    length = static_cast<std::int32_t>(needed);
    return false;
}

bool MemoryStream::read(std::int32_t size, void* destination) {
    if (size < 0 || size > length - position)
        return true;
    if (size > 0)
        std::memcpy(destination, buffer.get() + position, static_cast<std::size_t>(size));
    position += size;
    return false;
}

std::int32_t MemoryStream::seek(std::int32_t newPosition) {
    position = std::clamp(newPosition, 0, length);
    return position;
}

std::span<const std::byte> MemoryStream::bytes() const {
    return {buffer.get(), static_cast<std::size_t>(length)};
}
