// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/AudioFileReader.h"

#include "tools/brolt-host/ChunkedFile.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/InputFile.h"
#include "tools/brolt-host/SoundFile.h"

#include <algorithm>
#include <string>

struct AudioFileReader::Handle {
    SoundFile file;
};

AudioFileReader::AudioFileReader(const std::filesystem::path& file)
    : path(file)
    , handle(std::make_unique<Handle>()) {
    constexpr int mostChannels = 2;

    checkInputFile(file);
    std::error_code ignored;
    if (std::filesystem::file_size(file, ignored) == 0)
        throw HostError::ofFile(file, "is empty");

    SF_INFO info{};
    handle->file = openSoundFile(file, SFM_READ, info);
    if (handle->file == nullptr)
        throw HostError::ofFile(file, "cannot be read as audio (" + soundFileError(nullptr) + ")");
    if (const auto truncation = truncationOf(file))
        throw HostError::ofFile(file, *truncation);
    if (info.channels < 1 || info.channels > mostChannels) {
        throw HostError::ofFile(file, "has " + std::to_string(info.channels) +
                                          " channels; one or two can be rendered");
    }
    if (info.samplerate < 1)
        throw HostError::ofFile(file, "is damaged: it has no sample rate");
    if (info.frames < 1)
        throw HostError::ofFile(file, "holds no audio");
    if (info.frames == SF_COUNT_MAX)
        throw HostError::ofFile(file, "does not tell its length");
    channelCount = info.channels;
    rate = info.samplerate;
    frameCount = info.frames;
}

AudioFileReader::~AudioFileReader() = default;

std::int64_t AudioFileReader::read(float* interleaved, std::int64_t wanted) {
    const std::int64_t expected = std::min(wanted, frameCount - position);
    if (expected <= 0)
        return 0;
    const std::int64_t count = sf_readf_float(handle->file.get(), interleaved, expected);
    position += std::max<std::int64_t>(count, 0);
    if (count < expected) {
        throw HostError::ofFile(path, "is damaged: it announces " + std::to_string(frameCount) +
                                          " frames and holds " + std::to_string(position));
    }
    return count;
}

void AudioFileReader::rewind() {
    if (sf_seek(handle->file.get(), 0, SEEK_SET) != 0)
        throw HostError::ofFile(path, "cannot be read from the beginning again");
    position = 0;
}

void AudioFileReader::close() {
    handle->file.reset();
    position = frameCount;
}
