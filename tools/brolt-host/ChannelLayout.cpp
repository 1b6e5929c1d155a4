// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ChannelLayout.h"

#include <algorithm>

ChannelBuffers::ChannelBuffers(int channels, std::int64_t frames)
    : buffers(static_cast<std::size_t>(channels),
              std::vector<float>(static_cast<std::size_t>(frames))) {}

void separateChannels(const float* interleaved, int fileChannels, std::int64_t frames,
                      ChannelBuffers& buffers) {
    if (fileChannels == 1) {
        for (int c = 0; c < buffers.channelCount(); ++c)
            std::copy_n(interleaved, frames, buffers.channel(c));
        return;
    }
    float* const left = buffers.channel(0);
    if (buffers.channelCount() == 1) {
        for (std::int64_t i = 0; i < frames; ++i)
            left[i] = 0.5F * (interleaved[2 * i] + interleaved[2 * i + 1]);
        return;
    }
    float* const right = buffers.channel(1);
    for (std::int64_t i = 0; i < frames; ++i) {
        left[i] = interleaved[2 * i];
        right[i] = interleaved[2 * i + 1];
    }
}

void interleaveChannels(const ChannelBuffers& buffers, std::int64_t frames, float* interleaved) {
    if (buffers.channelCount() == 1) {
        std::copy_n(buffers.channel(0), frames, interleaved);
        return;
    }
    const float* const left = buffers.channel(0);
    const float* const right = buffers.channel(1);
    for (std::int64_t i = 0; i < frames; ++i) {
        interleaved[2 * i] = left[i];
        interleaved[2 * i + 1] = right[i];
    }
}
