// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/StateMemoryStream.h"

#include <algorithm>
#include <cstring>

std::size_t StateMemoryStream::read(std::size_t size, void* destination) {
    const std::size_t count = std::min(size, data.size() - position);
    if (count > 0)
        std::memcpy(destination, data.data() + position, count);
    position += count;
    return count;
}

std::size_t StateMemoryStream::write(std::size_t size, const void* bytes) {
    if (size == 0)
        return 0;
    if (size > data.size() - position)
        data.resize(position + size);
    std::memcpy(data.data() + position, bytes, size);
    position += size;
    return size;
}

std::int64_t StateMemoryStream::tell() const {
    return static_cast<std::int64_t>(position);
}

bool StateMemoryStream::seek(std::int64_t newPosition) {
    if (newPosition < 0 || newPosition > static_cast<std::int64_t>(data.size()))
        return false;
    position = static_cast<std::size_t>(newPosition);
    return true;
}
