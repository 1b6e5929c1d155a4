// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/StateStreamReading.h"

#include <algorithm>
#include <limits>

namespace {

/// Bytes asked for at a time: more than any state of ours needs.
constexpr std::size_t portion = 65536;

/// At most limit bytes; fewer when the stream ends before.
std::vector<std::byte> readUpTo(IStateByteStream& stream, std::size_t limit) {
    std::vector<std::byte> bytes;
    while (bytes.size() < limit) {
        const std::size_t before = bytes.size();
        const std::size_t wanted = std::min(portion, limit - before);
        bytes.resize(before + wanted);
        const std::size_t count = std::min(stream.read(wanted, bytes.data() + before), wanted);
        bytes.resize(before + count);
        if (count == 0)
            break;
    }
    return bytes;
}

} // namespace

bool readExactly(IStateByteStream& stream, std::size_t size, void* destination) {
    auto* const bytes = static_cast<std::byte*>(destination);
    std::size_t done = 0;
    while (done < size) {
        const std::size_t count = stream.read(size - done, bytes + done);
        if (count == 0 || count > size - done)
            return false;
        done += count;
    }
    return true;
}

std::optional<std::vector<std::byte>> readExactly(IStateByteStream& stream, std::size_t size) {
    std::vector<std::byte> bytes = readUpTo(stream, size);
    if (bytes.size() != size)
        return std::nullopt;
    return bytes;
}

std::vector<std::byte> readRemaining(IStateByteStream& stream) {
    return readUpTo(stream, std::numeric_limits<std::size_t>::max());
}
