// SPDX-License-Identifier: GPL-3.0-or-later
//
// Writes a WAV file that depends on nothing but its samples: no time stamps, no names of software.
// Past 4 GB, where WAV ends, it becomes an RF64 file.

#pragma once

#include "tools/brolt-host/ReplacedFile.h"
#include "tools/brolt-host/SampleEncoding.h"

#include <cstdint>
#include <memory>
#include <vector>

struct AudioFileFormat {
    int channels;
    int sampleRate; ///< Hz
    SampleEncoding encoding = SampleEncoding::float32;
};

class AudioFileWriter {
public:
    /// `frames` is how many will come. Throws HostError when the file cannot be made (see
    /// ReplacedFile).
    AudioFileWriter(const std::filesystem::path& file, const AudioFileFormat& format,
                    std::int64_t frames);

    /// Without finish and commit nothing is left of the file.
    ~AudioFileWriter();

    AudioFileWriter(const AudioFileWriter&) = delete;
    AudioFileWriter& operator=(const AudioFileWriter&) = delete;

    /// Appends frames, channels interleaved. Throws HostError when the disk is full or fails.
    /// [message thread]
    void write(const float* interleaved, std::int64_t frames);

    /// Closes the complete file, still under its temporary name. Throws as write. [message thread]
    void finish();

    /// Gives it its name. Throws HostError when the system refuses. [message thread]
    void commit() { output.commit(); }

    /// Samples that a whole-number encoding could not hold. [message thread]
    [[nodiscard]] std::int64_t samplesBeyondFullScale() const { return beyondFullScale; }

private:
    struct Handle;

    ReplacedFile output;
    AudioFileFormat format;
    std::unique_ptr<Handle> handle; ///< goes before `output`: Windows does not remove open files
    std::vector<std::int32_t> words;
    std::int64_t written = 0;
    std::int64_t beyondFullScale = 0;
};
