// SPDX-License-Identifier: GPL-3.0-or-later
//
// The stream as plug-ins use it, their mistakes included.

#include "tools/brolt-host/vst3/Vst3StateStream.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

using namespace Steinberg;

namespace {

constexpr std::array bytes{std::byte{1}, std::byte{2}, std::byte{3}};

int64 positionOf(Vst3StateStream& stream) {
    int64 position = -1;
    stream.tell(&position);
    return position;
}

} // namespace

TEST(Vst3StateStream, readsWhatThereIsAndSaysHowMuch) {
    Vst3StateStream stream(bytes);
    std::array<std::byte, 8> buffer{};
    int32 size = -1;
    EXPECT_EQ(stream.read(buffer.data(), 2, &size), kResultOk);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(stream.read(buffer.data(), 8, &size), kResultOk);
    EXPECT_EQ(size, 1);
    EXPECT_EQ(buffer[0], std::byte{3});
    EXPECT_EQ(stream.read(buffer.data(), 8, &size), kResultOk);
    EXPECT_EQ(size, 0);
    stream.rewind();
    EXPECT_EQ(positionOf(stream), 0);
}

TEST(Vst3StateStream, writesAtItsPosition) {
    Vst3StateStream stream(bytes);
    stream.seek(2, IBStream::kIBSeekSet, nullptr);
    std::array more{std::byte{8}, std::byte{9}};
    int32 size = -1;
    EXPECT_EQ(stream.write(more.data(), 2, &size), kResultOk);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(stream.bytes(),
              (std::vector{std::byte{1}, std::byte{2}, std::byte{8}, std::byte{9}}));
}

TEST(Vst3StateStream, seeksFromEitherEndAndFromWhereItIs) {
    Vst3StateStream stream(bytes);
    int64 position = -1;
    EXPECT_EQ(stream.seek(0, IBStream::kIBSeekEnd, &position), kResultOk);
    EXPECT_EQ(position, 3);
    EXPECT_EQ(stream.seek(-2, IBStream::kIBSeekCur, &position), kResultOk);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(stream.seek(2, IBStream::kIBSeekSet, nullptr), kResultOk);
    EXPECT_EQ(positionOf(stream), 2);
}

TEST(Vst3StateStream, staysWhereItIsWhenAskedForWhatIsNot) {
    Vst3StateStream stream(bytes);
    stream.seek(1, IBStream::kIBSeekSet, nullptr);
    constexpr int64 far = std::numeric_limits<int64>::max();
    EXPECT_EQ(stream.seek(4, IBStream::kIBSeekSet, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.seek(-2, IBStream::kIBSeekCur, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.seek(far, IBStream::kIBSeekCur, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.seek(-far - 1, IBStream::kIBSeekEnd, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.seek(0, 3, nullptr), kInvalidArgument);
    EXPECT_EQ(positionOf(stream), 1);
    std::byte byte{};
    EXPECT_EQ(stream.read(&byte, -1, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.read(nullptr, 1, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.write(&byte, -1, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.write(nullptr, 1, nullptr), kInvalidArgument);
    EXPECT_EQ(stream.tell(nullptr), kInvalidArgument);
}
