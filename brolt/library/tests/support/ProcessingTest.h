// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of processing in each of the layouts: an instance, what it is fed, and what the model makes
// of that.
#pragma once

#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <algorithm>

class ProcessingTest : public ::testing::TestWithParam<int> {
public:
    static std::string layoutName(const ::testing::TestParamInfo<int>& layout) {
        return layout.param == 1 ? "mono" : "stereo";
    }

protected:
    LibraryInstance instance;
    int channels = GetParam();
    Audio input = testAudio(channels, 6000);

    void start(double rate = 44100.0) {
        instance.start({.channels = channels, .sampleRate = rate});
    }

    /// With small blocks announced. At one sample a second, so that two of them last for longer
    /// than the test.
    void startAnnouncing(int mostFrames) {
        instance.start({.channels = channels, .sampleRate = 1.0, .mostFrames = mostFrames});
    }

    [[nodiscard]] Audio expected(int blockSize = 512) const {
        return ModelTwin(channels).render(input, blockSize);
    }

    /// Fills a block's input with the frames from `first` on.
    void feed(AudioBlock& block, std::size_t first) const {
        for (std::size_t c = 0; c < input.size(); ++c) {
            const std::span<float> samples = block.input(static_cast<int>(c));
            const auto from = input[c].begin() + static_cast<std::ptrdiff_t>(first);
            std::copy_n(from, samples.size(), samples.begin());
        }
    }

    /// From rest, the instance sounds as it should.
    void expectSound() { EXPECT_TRUE(sameBits(instance.render(input), expected())); }
};
