// SPDX-License-Identifier: GPL-3.0-or-later
//
// Between the interleaved channels of files and the separate ones of processors, where the two may
// differ in number.

#pragma once

#include <cstdint>
#include <vector>

/// Buffers of one chunk for each of the processor's channels.
class ChannelBuffers {
public:
    ChannelBuffers(int channels, std::int64_t frames);

    [[nodiscard]] int channelCount() const { return static_cast<int>(buffers.size()); }

    [[nodiscard]] float* channel(int index) {
        return buffers[static_cast<std::size_t>(index)].data();
    }

    [[nodiscard]] const float* channel(int index) const {
        return buffers[static_cast<std::size_t>(index)].data();
    }

private:
    std::vector<std::vector<float>> buffers;
};

/// Takes frames of a file with 1 or 2 channels apart. One channel goes to every buffer; two
/// channels for one buffer are averaged. [any thread]
void separateChannels(const float* interleaved, int fileChannels, std::int64_t frames,
                      ChannelBuffers& buffers);

/// Puts the buffers' channels together. [any thread]
void interleaveChannels(const ChannelBuffers& buffers, std::int64_t frames, float* interleaved);
