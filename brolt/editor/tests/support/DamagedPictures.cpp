// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/tests/support/DamagedPictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string_view>

namespace {

constexpr std::uint32_t side = 30000;

bool hasAt(const FileBytes& bytes, std::size_t place, std::string_view text) {
    return bytes.size() >= place + text.size() &&
           std::equal(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(place),
                      [](char wanted, std::uint8_t byte) {
                          return static_cast<std::uint8_t>(wanted) == byte;
                      });
}

void putBigEndian(FileBytes& bytes, std::size_t place, std::uint32_t number) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes[place + i] = static_cast<std::uint8_t>(number >> (24 - 8 * i));
}

/// The checksum of PNG.
std::uint32_t checksumOf(const FileBytes& bytes, std::size_t from, std::size_t to) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (std::size_t i = from; i < to; ++i) {
        sum ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? 0xEDB88320 ^ (sum >> 1) : sum >> 1;
    }
    return ~sum;
}

/// Width and height follow eight bytes of signature and eight of the chunk's length and name.
void enlargePng(FileBytes& bytes) {
    constexpr std::size_t name = 12;
    constexpr std::size_t sum = 29;
    putBigEndian(bytes, 16, side);
    putBigEndian(bytes, 20, side);
    putBigEndian(bytes, sum, checksumOf(bytes, name, sum));
}

/// The canvas: one less than each side in three bytes, the lowest first. A file without a canvas is
/// lossless and has 14 bits for each side behind a byte of signature: then all are set.
void enlargeWebp(FileBytes& bytes) {
    if (hasAt(bytes, 12, "VP8X")) {
        for (std::size_t i = 0; i < 6; ++i)
            bytes[24 + i] = static_cast<std::uint8_t>((side - 1) >> (8 * (i % 3)));
        return;
    }
    ASSERT_TRUE(hasAt(bytes, 12, "VP8L"));
    bytes[21] = bytes[22] = bytes[23] = 0xFF;
    bytes[24] = static_cast<std::uint8_t>(bytes[24] | 0x0F);
}

FileBytes enlarged(FileBytes bytes) {
    if (hasAt(bytes, 1, "PNG"))
        enlargePng(bytes);
    else
        enlargeWebp(bytes);
    return bytes;
}

FileBytes noise(std::size_t size) {
    std::minstd_rand random(1);
    FileBytes bytes(size);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(random() >> 8);
    return bytes;
}

} // namespace

std::vector<DamagedPicture> damagedCopiesOf(const FileBytes& picture) {
    const FileBytes half(picture.begin(),
                         picture.begin() + static_cast<std::ptrdiff_t>(picture.size() / 2));
    return {{"cut off", half},
            {"empty", {}},
            {"random", noise(5000)},
            {"too large", enlarged(picture)}};
}
