// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/RenderHistory.h"

#include <algorithm>
#include <cmath>

namespace {

/// Readings and peaks over the whole render: several for each column of a picture.
constexpr std::int64_t mostEntries = 12000;

constexpr double shortestReadingSeconds = 0.005;
constexpr double shortestPeakSeconds = 0.004;

std::int64_t framesPerEntry(std::int64_t frames, double sampleRate, double shortestSeconds) {
    const auto shortest = static_cast<std::int64_t>(shortestSeconds * sampleRate);
    return std::max({shortest, (frames + mostEntries - 1) / mostEntries, std::int64_t{1}});
}

} // namespace

PeakHistory::PeakHistory(std::int64_t totalFrames, std::int64_t framesPerPeak)
    : framesPerPeak_(framesPerPeak)
    , peaks_(static_cast<std::size_t>((totalFrames + framesPerPeak - 1) / framesPerPeak)) {}

void PeakHistory::note(const ChannelBuffers& buffers, std::int64_t start, std::int64_t frames) {
    for (int c = 0; c < buffers.channelCount(); ++c) {
        const float* const samples = buffers.channel(c);
        for (std::int64_t i = 0; i < frames;) {
            const std::int64_t bin = (start + i) / framesPerPeak_;
            const std::int64_t end = std::min(frames, (bin + 1) * framesPerPeak_ - start);
            float& peak = peaks_[static_cast<std::size_t>(bin)];
            for (; i < end; ++i)
                peak = std::max(peak, std::fabs(samples[i])); // not a number never is the larger
        }
    }
}

RenderHistory::RenderHistory(std::int64_t frames, double sampleRate)
    : totalFrames(frames)
    , rate(sampleRate)
    , framesPerReading(framesPerEntry(frames, sampleRate, shortestReadingSeconds))
    , framesPerPeak(framesPerEntry(frames, sampleRate, shortestPeakSeconds))
    , input_(frames, framesPerPeak)
    , output_(frames, framesPerPeak) {}

void RenderHistory::noteOscillators(std::int64_t frame, const OscillatorReading& reading,
                                    const std::array<double, 2>& mixGains) {
    nextReading = frame + framesPerReading;
    points.push_back({static_cast<double>(frame) / rate,
                      reading.frequency,
                      {reading.level[0] * mixGains[0], reading.level[1] * mixGains[1]}});
}

void RenderHistory::noteLevels(const ChannelBuffers& input, const ChannelBuffers& output,
                               std::int64_t start, std::int64_t frames) {
    input_.note(input, start, frames);
    output_.note(output, start, frames);
}
