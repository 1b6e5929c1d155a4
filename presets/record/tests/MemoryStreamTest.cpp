// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/MemoryStream.h"

#include "presets/record/tests/support/ByteBuilder.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

bool writeBytes(MemoryStream& stream, std::int32_t count, unsigned value = 7) {
    const Bytes bytes(static_cast<std::size_t>(count), static_cast<std::byte>(value));
    return stream.write(count, bytes.data());
}

} // namespace

TEST(MemoryStream, anEmptyStreamIsOpenWithTheCapacityItWasGiven) {
    const MemoryStream stream(128);
    EXPECT_TRUE(stream.isOpen());
    EXPECT_EQ(stream.capacity(), 128);
    EXPECT_EQ(stream.size(), 0);
    EXPECT_EQ(stream.tell(), 0);
    EXPECT_TRUE(stream.bytes().empty());
}

TEST(MemoryStream, twoHundredBytesDoubleACapacityOfOneHundredAndTwentyEight) {
    MemoryStream stream(128);
    EXPECT_FALSE(writeBytes(stream, 200));
    EXPECT_EQ(stream.capacity(), 256);
    EXPECT_EQ(stream.size(), 200);
}

TEST(MemoryStream, threeHundredBytesTakeACapacityOfOneHundredAndTwentyEightToThemAndAMargin) {
    MemoryStream stream(128);
    EXPECT_FALSE(writeBytes(stream, 300));
    EXPECT_EQ(stream.capacity(), 428);
    EXPECT_EQ(stream.size(), 300);
}

TEST(MemoryStream, oneByteMoreThanFullDoublesTheCapacity) {
    MemoryStream stream(256);
    EXPECT_FALSE(writeBytes(stream, 256));
    EXPECT_EQ(stream.capacity(), 256);
    EXPECT_FALSE(writeBytes(stream, 1));
    EXPECT_EQ(stream.capacity(), 512);
    EXPECT_EQ(stream.size(), 257);
}

TEST(MemoryStream, twiceTheCapacityIsEnoughForExactlyThat) {
    MemoryStream stream(128);
    EXPECT_FALSE(writeBytes(stream, 256));
    EXPECT_EQ(stream.capacity(), 256);
}

TEST(MemoryStream, aStreamWithoutCapacityGrowsByTheMargin) {
    for (const std::int32_t capacity : {0, -5}) {
        MemoryStream stream(capacity);
        EXPECT_TRUE(stream.isOpen());
        EXPECT_EQ(stream.capacity(), 0);
        EXPECT_FALSE(writeBytes(stream, 1));
        EXPECT_EQ(stream.capacity(), 129);
    }
}

TEST(MemoryStream, growingKeepsWhatWasWritten) {
    MemoryStream stream(4);
    for (unsigned value = 0; value < 200; ++value)
        EXPECT_FALSE(writeBytes(stream, 1, value));
    ASSERT_EQ(stream.size(), 200);
    for (unsigned value = 0; value < 200; ++value)
        EXPECT_EQ(stream.bytes()[value], static_cast<std::byte>(value));
}

TEST(MemoryStream, writingAppendsWhereverTheReadPositionIs) {
    const Bytes bytes = bytesOf({1, 2, 3});
    MemoryStream stream{std::span<const std::byte>(bytes)};
    EXPECT_EQ(stream.seek(1), 1);
    EXPECT_FALSE(writeBytes(stream, 1, 9));
    EXPECT_EQ(stream.tell(), 1);
    EXPECT_EQ(Bytes(stream.bytes().begin(), stream.bytes().end()), bytesOf({1, 2, 3, 9}));
}

TEST(MemoryStream, aStreamOverBytesHoldsACopyAndNothingMore) {
    Bytes bytes = bytesOf({1, 2, 3});
    const MemoryStream stream{std::span<const std::byte>(bytes)};
    bytes[0] = std::byte{99};
    EXPECT_TRUE(stream.isOpen());
    EXPECT_EQ(stream.capacity(), 3);
    EXPECT_EQ(stream.size(), 3);
    EXPECT_EQ(stream.tell(), 0);
    EXPECT_EQ(stream.bytes()[0], std::byte{1});
}

TEST(MemoryStream, aStreamOverNoBytesIsOpenAndEmpty) {
    MemoryStream stream{std::span<const std::byte>()};
    EXPECT_TRUE(stream.isOpen());
    EXPECT_EQ(stream.size(), 0);
    std::byte one{};
    EXPECT_TRUE(stream.read(1, &one));
    EXPECT_FALSE(stream.read(0, nullptr));
}

TEST(MemoryStream, readingCopiesAllOrNothing) {
    const Bytes bytes = bytesOf({1, 2, 3});
    MemoryStream stream{std::span<const std::byte>(bytes)};
    Bytes destination = bytesOf({0, 0, 0, 0});
    EXPECT_FALSE(stream.read(2, destination.data()));
    EXPECT_EQ(destination, bytesOf({1, 2, 0, 0}));
    EXPECT_EQ(stream.tell(), 2);
    EXPECT_TRUE(stream.read(2, destination.data()));
    EXPECT_EQ(destination, bytesOf({1, 2, 0, 0}));
    EXPECT_EQ(stream.tell(), 2);
    EXPECT_FALSE(stream.read(1, destination.data()));
    EXPECT_EQ(destination, bytesOf({3, 2, 0, 0}));
}

TEST(MemoryStream, seekingStopsAtTheEnds) {
    const Bytes bytes = bytesOf({1, 2, 3});
    MemoryStream stream{std::span<const std::byte>(bytes)};
    EXPECT_EQ(stream.seek(2), 2);
    EXPECT_EQ(stream.seek(3), 3);
    EXPECT_EQ(stream.seek(4), 3);
    EXPECT_EQ(stream.tell(), 3);
    EXPECT_EQ(stream.seek(std::numeric_limits<std::int32_t>::max()), 3);
    EXPECT_EQ(stream.seek(-1), 0);
    EXPECT_EQ(stream.tell(), 0);
}

TEST(MemoryStream, sizesThatCannotBeFail) {
    MemoryStream stream(8);
    EXPECT_FALSE(writeBytes(stream, 4));
    std::byte one{};
    EXPECT_TRUE(stream.write(-1, &one));
    EXPECT_TRUE(stream.read(-1, &one));
    // Four bytes are there: this many more would not be countable. The bytes are never touched.
    EXPECT_TRUE(stream.write(std::numeric_limits<std::int32_t>::max(), &one));
    EXPECT_TRUE(stream.read(std::numeric_limits<std::int32_t>::max(), &one));
    EXPECT_EQ(stream.size(), 4);
    EXPECT_EQ(stream.capacity(), 8);
    EXPECT_TRUE(stream.isOpen());
    EXPECT_FALSE(writeBytes(stream, 4)); // and it still works
}
