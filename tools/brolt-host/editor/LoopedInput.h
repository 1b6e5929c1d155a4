// SPDX-License-Identifier: GPL-3.0-or-later
//
// An audio file that begins again where it ends, or silence that goes on for ever.

#pragma once

#include "tools/brolt-host/AudioFileReader.h"
#include "tools/brolt-host/ChannelLayout.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

class LoopedInput {
public:
    /// Nothing is silence, in stereo and at 44.1 kHz. Throws HostError for a file that cannot be
    /// rendered. [message thread]
    explicit LoopedInput(const std::optional<std::filesystem::path>& file);

    /// 1 or 2.
    [[nodiscard]] int channels() const { return reader != nullptr ? reader->channels() : 2; }

    /// Hz.
    [[nodiscard]] int sampleRate() const;

    /// Of one round; 0 for silence.
    [[nodiscard]] std::int64_t frames() const { return reader != nullptr ? reader->frames() : 0; }

    /// Fills the first frames of the buffers. Throws HostError. [any thread, one at a time]
    void read(ChannelBuffers& buffers, std::int32_t frames);

private:
    void readInterleaved(std::int64_t frames);

    std::unique_ptr<AudioFileReader> reader; ///< null plays silence
    std::vector<float> interleaved;
};
