// SPDX-License-Identifier: GPL-3.0-or-later
//
// Audio without an end.

#include "tools/brolt-host/editor/LoopedInput.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

namespace {

std::vector<float> samples(const ChannelBuffers& buffers, int channel, int frames) {
    return {buffers.channel(channel), buffers.channel(channel) + frames};
}

} // namespace

TEST(LoopedInput, aFileBeginsAgainWhereItEnds) {
    const TemporaryFolder folder;
    writeAudio(folder / "in.wav", 1, 48000, {0.1F, 0.2F, 0.3F});
    LoopedInput input(folder / "in.wav");
    EXPECT_EQ(input.sampleRate(), 48000);
    EXPECT_EQ(input.channels(), 1);
    EXPECT_EQ(input.frames(), 3);
    ChannelBuffers buffers(1, 5);
    input.read(buffers, 5);
    EXPECT_EQ(samples(buffers, 0, 5), (std::vector<float>{0.1F, 0.2F, 0.3F, 0.1F, 0.2F}));
    input.read(buffers, 2);
    EXPECT_EQ(samples(buffers, 0, 2), (std::vector<float>{0.3F, 0.1F}));
}

TEST(LoopedInput, goesToTheChannelsThatAreThere) {
    const TemporaryFolder folder;
    writeAudio(folder / "in.wav", 2, 44100, {0.5F, 0.25F, -0.5F, 0.25F});
    LoopedInput input(folder / "in.wav");
    ChannelBuffers mono(1, 3);
    input.read(mono, 3);
    EXPECT_EQ(samples(mono, 0, 3), (std::vector<float>{0.375F, -0.125F, 0.375F}));
}

TEST(LoopedInput, noFileIsSilence) {
    LoopedInput input(std::nullopt);
    EXPECT_EQ(input.sampleRate(), 44100);
    EXPECT_EQ(input.channels(), 2);
    ChannelBuffers buffers(2, 2);
    buffers.channel(1)[1] = 1.0F;
    input.read(buffers, 2);
    EXPECT_EQ(samples(buffers, 0, 2), (std::vector<float>{0.0F, 0.0F}));
    EXPECT_EQ(samples(buffers, 1, 2), (std::vector<float>{0.0F, 0.0F}));
}

TEST(LoopedInput, aMissingFileIsRefused) {
    EXPECT_EQ(errorOf([] { const LoopedInput input("none.wav"); }), "none.wav: no such file");
}
