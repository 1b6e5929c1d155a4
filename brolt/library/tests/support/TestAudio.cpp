// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/TestAudio.h"

#include "brolt/signal/tests/TestRandom.h"

#include <bit>

Audio testAudio(int channels, int frames, unsigned start) {
    constexpr int strokeLength = 1500;
    TestRandom random(start);
    Audio audio(static_cast<std::size_t>(channels));
    float amplitude = 0.0F;
    for (int i = 0; i < frames; ++i) {
        amplitude = i % strokeLength == 20 ? 0.9F : amplitude * 0.998F;
        for (std::vector<float>& channel : audio)
            channel.push_back(amplitude * random.sample());
    }
    return audio;
}

Audio partOf(const Audio& audio, std::size_t first, std::size_t frames) {
    Audio part;
    for (const std::vector<float>& channel : audio) {
        const auto begin = channel.begin() + static_cast<std::ptrdiff_t>(first);
        part.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(frames));
    }
    return part;
}

void append(Audio& audio, const Audio& more) {
    audio.resize(more.size());
    for (std::size_t c = 0; c < more.size(); ++c)
        audio[c].insert(audio[c].end(), more[c].begin(), more[c].end());
}

::testing::AssertionResult sameBits(const Audio& a, const Audio& b) {
    if (a.size() != b.size())
        return ::testing::AssertionFailure() << a.size() << " and " << b.size() << " channels";
    for (std::size_t c = 0; c < a.size(); ++c) {
        if (a[c].size() != b[c].size())
            return ::testing::AssertionFailure()
                   << a[c].size() << " and " << b[c].size() << " samples in channel " << c;
        for (std::size_t i = 0; i < a[c].size(); ++i) {
            if (std::bit_cast<std::uint32_t>(a[c][i]) != std::bit_cast<std::uint32_t>(b[c][i]))
                return ::testing::AssertionFailure() << "sample " << i << " of channel " << c
                                                     << ": " << a[c][i] << " and " << b[c][i];
        }
    }
    return ::testing::AssertionSuccess();
}
