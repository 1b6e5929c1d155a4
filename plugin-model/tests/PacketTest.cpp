// SPDX-License-Identifier: GPL-3.0-or-later
// A packet's payload: its size, what it holds at first, and sizes that cannot be had.
#include "plugin-model/Packet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

TEST(Packet, keepsItsKindAndLength) {
    const Packet packet(7, 72);
    EXPECT_EQ(packet.kind, 7u);
    EXPECT_EQ(packet.length, 72u);
    EXPECT_EQ(packet.wordCount(), 18u);
}

TEST(Packet, startsWithAPayloadOfZeros) {
    // Memory that was used before is the likeliest to show a missing zero-fill.
    for (int i = 0; i < 8; ++i) {
        const Packet packet(0, 1000);
        auto* bytes = static_cast<unsigned char*>(packet.data);
        ASSERT_NE(bytes, nullptr);
        EXPECT_TRUE(std::all_of(bytes, bytes + 1000, [](unsigned char b) { return b == 0; }));
        std::memset(bytes, 0xA5, 1000);
    }
}

TEST(Packet, hasAPayloadAddressEvenWithoutBytes) {
    const Packet packet(1, 0);
    EXPECT_EQ(packet.length, 0u);
    EXPECT_EQ(packet.wordCount(), 0u);
    EXPECT_NE(packet.data, nullptr);
}

TEST(Packet, countsWholeWordsOnly) {
    EXPECT_EQ(Packet(1, 3).wordCount(), 0u);
    EXPECT_EQ(Packet(1, 4).wordCount(), 1u);
    EXPECT_EQ(Packet(1, 7).wordCount(), 1u);
    EXPECT_EQ(Packet(1, 71).wordCount(), 17u);
}

TEST(Packet, aLengthThatCannotBeHadIsBadAlloc) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer ends the process on a request that cannot be served";
#endif
    // Volatile, so that the compiler does not see through to the impossible request.
    volatile std::uint64_t tooMuch = std::numeric_limits<std::uint64_t>::max();
    EXPECT_THROW(Packet(0, tooMuch), std::bad_alloc);
}

TEST(Packet, kindsHaveTheirFixedNumbers) {
    EXPECT_EQ(Packet::coefficientKind, 0u);
    EXPECT_EQ(Packet::messageKind, 1u);
    EXPECT_EQ(Packet::connectionKind, 3u);
}

TEST(PacketList, ownsItsPacketsAndKeepsTheirOrder) {
    PacketList list;
    for (std::uint32_t kind : {3u, 1u, 2u})
        list.push_back(std::make_unique<Packet>(kind, 4));
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0]->kind, 3u);
    EXPECT_EQ(list[1]->kind, 1u);
    EXPECT_EQ(list[2]->kind, 2u);
    list.clear(); // a leak or a double free shows under the address sanitizer
    EXPECT_TRUE(list.empty());
}
