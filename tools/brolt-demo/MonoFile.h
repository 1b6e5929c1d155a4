// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole audio files as one channel.

#pragma once

#include <filesystem>
#include <vector>

struct MonoFile {
    std::vector<float> samples; ///< the average of the channels
    int sampleRate;             ///< Hz
    float peak;                 ///< over all channels before they are averaged, linear
};

/// Throws HostError as AudioFileReader does. [message thread]
MonoFile readMonoFile(const std::filesystem::path& file);
