// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads an audio file of any format libsndfile knows, as single-precision samples.

#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

class AudioFileReader {
public:
    /// Opens the file and reads its header. Throws HostError for a file that is missing,
    /// unreadable, empty, no audio file, damaged, without frames or with more than two channels.
    explicit AudioFileReader(const std::filesystem::path& file);

    ~AudioFileReader();

    AudioFileReader(const AudioFileReader&) = delete;
    AudioFileReader& operator=(const AudioFileReader&) = delete;

    /// 1 or 2.
    [[nodiscard]] int channels() const { return channelCount; }

    /// Hz, as the header says.
    [[nodiscard]] int sampleRate() const { return rate; }

    /// As the header announces.
    [[nodiscard]] std::int64_t frames() const { return frameCount; }

    /// Reads the next `wanted` frames or what is left of them, channels interleaved, whole numbers
    /// scaled to -1..1. Answers how many; 0 at the end. Throws HostError when the file holds fewer
    /// frames than its header announces. [any thread, one at a time]
    std::int64_t read(float* interleaved, std::int64_t wanted);

    /// Goes back to the first frame. Throws HostError where the file does not allow that.
    /// [any thread, one at a time]
    void rewind();

    /// Lets go of the file, which Windows does not replace while it is open. Nothing can be read
    /// afterwards. [message thread]
    void close();

private:
    struct Handle;

    std::filesystem::path path;
    std::unique_ptr<Handle> handle;
    int channelCount = 0;
    int rate = 0;
    std::int64_t frameCount = 0;
    std::int64_t position = 0;
};
