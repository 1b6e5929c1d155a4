// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/StateMemoryStream.h"

#include "QMShell/state/StateStreamReading.h"
#include "presets/record/tests/support/ByteBuilder.h"

#include <gtest/gtest.h>

TEST(StateMemoryStream, writesAtItsPositionAndReadsFromThere) {
    StateMemoryStream stream;
    EXPECT_EQ(stream.write(3, "abc"), 3u);
    EXPECT_EQ(stream.tell(), 3);
    EXPECT_TRUE(stream.seek(1));
    EXPECT_EQ(stream.write(4, "BCDE"), 4u);
    EXPECT_EQ(stream.bytes(), bytesOf({'a', 'B', 'C', 'D', 'E'}));
    EXPECT_TRUE(stream.seek(0));
    char two[2] = {};
    EXPECT_EQ(stream.read(2, two), 2u);
    EXPECT_EQ(std::string(two, 2), "aB");
    EXPECT_EQ(stream.tell(), 2);
}

TEST(StateMemoryStream, readsFewerAtTheEnd) {
    const Bytes bytes = bytesOf({1, 2, 3});
    StateMemoryStream stream(bytes);
    Bytes five(5);
    EXPECT_EQ(stream.read(5, five.data()), 3u);
    EXPECT_EQ(stream.read(5, five.data()), 0u);
    EXPECT_EQ(stream.tell(), 3);
}

TEST(StateMemoryStream, goesNowhereOutsideOfItself) {
    StateMemoryStream stream(bytesOf({1, 2, 3}));
    EXPECT_TRUE(stream.seek(3));
    EXPECT_FALSE(stream.seek(4));
    EXPECT_FALSE(stream.seek(-1));
    EXPECT_EQ(stream.tell(), 3);
}

namespace {

/// Gives one byte at a time, as a host may.
class DrippingStream : public StateMemoryStream {
public:
    using StateMemoryStream::StateMemoryStream;

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override {
        return StateMemoryStream::read(size > 0 ? 1 : 0, destination);
    }
};

/// Says that it gave more than was asked for.
class LyingStream : public StateMemoryStream {
public:
    using StateMemoryStream::StateMemoryStream;

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override {
        const std::size_t count = StateMemoryStream::read(size, destination);
        return count == 0 ? 0 : size + 100;
    }
};

} // namespace

TEST(StateStreamReading, putsTogetherWhatComesInPieces) {
    const Bytes bytes = bytesOf({1, 2, 3, 4, 5});
    DrippingStream stream(bytes);
    Bytes three(3);
    EXPECT_TRUE(readExactly(stream, 3, three.data()));
    EXPECT_EQ(three, bytesOf({1, 2, 3}));
    EXPECT_EQ(readExactly(stream, 2), bytesOf({4, 5}));
    EXPECT_TRUE(stream.seek(1));
    EXPECT_EQ(readRemaining(stream), bytesOf({2, 3, 4, 5}));
}

TEST(StateStreamReading, failsWhereTheStreamHoldsFewer) {
    StateMemoryStream stream(bytesOf({1, 2, 3}));
    Bytes four(4);
    EXPECT_FALSE(readExactly(stream, 4, four.data()));
    EXPECT_TRUE(stream.seek(0));
    EXPECT_FALSE(readExactly(stream, 4));
    EXPECT_EQ(readExactly(stream, 0), Bytes());
}

TEST(StateStreamReading, aPromiseBeyondAllMemoryIsRefusedWithoutTakingIt) {
    // Taking this much would throw.
    StateMemoryStream stream(bytesOf({1, 2, 3}));
    EXPECT_FALSE(readExactly(stream, std::size_t{1} << 62));
}

TEST(StateStreamReading, readsMoreThanOnePortion) {
    const Bytes bytes(200000, std::byte{7});
    StateMemoryStream stream(bytes);
    EXPECT_EQ(readExactly(stream, 150000), Bytes(150000, std::byte{7}));
    EXPECT_EQ(readRemaining(stream).size(), 50000u);
}

TEST(StateStreamReading, doesNotBelieveAStreamThatGivesMoreThanItWasAsked) {
    LyingStream stream(bytesOf({1, 2, 3, 4}));
    Bytes four(4);
    EXPECT_FALSE(readExactly(stream, 4, four.data()));
    EXPECT_TRUE(stream.seek(0));
    EXPECT_LE(readRemaining(stream).size(), 65536u);
}
