// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/AaxChunkFile.h"

#include "brolt/model/QMBrolt_ProductCodes.h"

#include <algorithm>
#include <cstring>

namespace {

struct Head {
    std::int32_t size;
    std::int32_t version;
    FourCharCode maker;
    FourCharCode product;
    FourCharCode plugIn;
    FourCharCode chunk;
    std::array<char, 32> name;
};

static_assert(sizeof(Head) == 56 && offsetof(Head, chunk) == 20 && offsetof(Head, name) == 24);

std::optional<Head> headOf(std::span<const std::byte> bytes) {
    Head head{};
    if (bytes.size() < sizeof head)
        return std::nullopt;
    std::memcpy(&head, bytes.data(), sizeof head);
    return head;
}

} // namespace

std::vector<std::byte> aaxChunkFile(const AaxChunk& chunk, FourCharCode plugIn) {
    const Head head{static_cast<std::int32_t>(chunk.data.size()),
                    chunk.version,
                    QMBrolt::manufacturerCode,
                    QMBrolt::productCode,
                    plugIn,
                    AaxChunks::state,
                    chunk.name};
    std::vector<std::byte> bytes(sizeof head + chunk.data.size());
    std::memcpy(bytes.data(), &head, sizeof head);
    std::copy(chunk.data.begin(), chunk.data.end(),
              bytes.begin() + static_cast<std::ptrdiff_t>(sizeof head));
    return bytes;
}

bool isAaxChunkFile(std::span<const std::byte> bytes) {
    const std::optional<Head> head = headOf(bytes);
    return head && head->chunk == AaxChunks::state;
}

std::optional<std::span<const std::byte>> aaxChunkData(std::span<const std::byte> file) {
    const std::optional<Head> head = headOf(file);
    if (!head || head->size < 0 ||
        static_cast<std::size_t>(head->size) > file.size() - sizeof(Head))
        return std::nullopt;
    return file.subspan(sizeof(Head), static_cast<std::size_t>(head->size));
}
