// SPDX-License-Identifier: GPL-3.0-or-later
//
// What happened during a render, for a picture of it: the oscillators' pitch and level, and the
// peaks of input and output. It takes the same room for a minute as for ten hours.

#pragma once

#include "tools/brolt-host/ChannelLayout.h"
#include "tools/brolt-host/ProcessorInsight.h"

#include <array>
#include <cstdint>
#include <vector>

/// The oscillators at one moment.
struct OscillatorPoint {
    double seconds;
    std::array<double, 2> frequency; ///< Hz
    std::array<double, 2> level;     ///< linear: level detector times mix gain
};

/// The highest magnitude over all channels in each of equally long stretches.
class PeakHistory {
public:
    PeakHistory(std::int64_t totalFrames, std::int64_t framesPerPeak);

    void note(const ChannelBuffers& buffers, std::int64_t start, std::int64_t frames);

    /// Linear, in order of time. [message thread]
    [[nodiscard]] const std::vector<float>& peaks() const { return peaks_; }

private:
    std::int64_t framesPerPeak_;
    std::vector<float> peaks_;
};

class RenderHistory {
public:
    /// `frames` is the length of the whole render.
    RenderHistory(std::int64_t frames, double sampleRate);

    /// True when the end of a block at `frame` is far enough behind the last reading that another
    /// one is worth its time. [message thread]
    [[nodiscard]] bool wantsReading(std::int64_t frame) const {
        return frame >= nextReading || frame == totalFrames;
    }

    /// The reading at the end of a block; `mixGains` are linear. [message thread]
    void noteOscillators(std::int64_t frame, const OscillatorReading& reading,
                         const std::array<double, 2>& mixGains);

    /// One chunk that begins at frame `start`. [message thread]
    void noteLevels(const ChannelBuffers& input, const ChannelBuffers& output, std::int64_t start,
                    std::int64_t frames);

    [[nodiscard]] double seconds() const { return static_cast<double>(totalFrames) / rate; }

    [[nodiscard]] double secondsPerPeak() const {
        return static_cast<double>(framesPerPeak) / rate;
    }

    [[nodiscard]] const std::vector<OscillatorPoint>& oscillators() const { return points; }

    [[nodiscard]] const std::vector<float>& inputPeaks() const { return input_.peaks(); }

    [[nodiscard]] const std::vector<float>& outputPeaks() const { return output_.peaks(); }

private:
    std::int64_t totalFrames;
    double rate;
    std::int64_t framesPerReading;
    std::int64_t framesPerPeak;
    std::int64_t nextReading = 0;
    std::vector<OscillatorPoint> points;
    PeakHistory input_;
    PeakHistory output_;
};
