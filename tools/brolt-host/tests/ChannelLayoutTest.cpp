// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/ChannelLayout.h"

#include <gmock/gmock.h>

#include <array>

using testing::ElementsAre;

namespace {

std::vector<float> channelOf(const ChannelBuffers& buffers, int index, std::size_t frames) {
    return {buffers.channel(index), buffers.channel(index) + frames};
}

} // namespace

TEST(ChannelLayout, twoChannelsAreSeparatedAndPutTogetherAgain) {
    const std::array<float, 6> interleaved{1.0F, 2.0F, 3.0F, 4.0F, 5.0F, 6.0F};
    ChannelBuffers buffers(2, 3);
    separateChannels(interleaved.data(), 2, 3, buffers);
    EXPECT_THAT(channelOf(buffers, 0, 3), ElementsAre(1.0F, 3.0F, 5.0F));
    EXPECT_THAT(channelOf(buffers, 1, 3), ElementsAre(2.0F, 4.0F, 6.0F));

    std::array<float, 6> again{};
    interleaveChannels(buffers, 3, again.data());
    EXPECT_EQ(again, interleaved);
}

TEST(ChannelLayout, oneChannelGoesToBothSides) {
    const std::array<float, 2> samples{0.5F, -1.0F};
    ChannelBuffers buffers(2, 2);
    separateChannels(samples.data(), 1, 2, buffers);
    EXPECT_THAT(channelOf(buffers, 0, 2), ElementsAre(0.5F, -1.0F));
    EXPECT_THAT(channelOf(buffers, 1, 2), ElementsAre(0.5F, -1.0F));
}

TEST(ChannelLayout, twoChannelsAreAveragedForOne) {
    const std::array<float, 4> interleaved{1.0F, 0.0F, -0.5F, -0.25F};
    ChannelBuffers buffers(1, 2);
    separateChannels(interleaved.data(), 2, 2, buffers);
    EXPECT_THAT(channelOf(buffers, 0, 2), ElementsAre(0.5F, -0.375F));
}

TEST(ChannelLayout, oneChannelStaysOne) {
    const std::array<float, 2> samples{0.5F, -1.0F};
    ChannelBuffers buffers(1, 2);
    separateChannels(samples.data(), 1, 2, buffers);
    std::array<float, 2> again{};
    interleaveChannels(buffers, 2, again.data());
    EXPECT_EQ(again, samples);
}
