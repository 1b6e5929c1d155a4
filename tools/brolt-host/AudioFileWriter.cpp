// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/AudioFileWriter.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/SoundFile.h"

#include <cerrno>
#include <cstdint>

namespace {

constexpr int bitsPerByte = 8;

/// Bytes in front of the samples and behind them, more than there will ever be.
constexpr std::int64_t headerAllowance = 4096;

int libraryEncoding(SampleEncoding encoding) {
    switch (encoding) {
    case SampleEncoding::pcm24:
        return SF_FORMAT_PCM_24;
    case SampleEncoding::pcm16:
        return SF_FORMAT_PCM_16;
    default:
        return SF_FORMAT_FLOAT;
    }
}

std::int64_t sampleBytes(const AudioFileFormat& format, std::int64_t frames) {
    return frames * format.channels * bytesPerSample(format.encoding);
}

int container(const AudioFileFormat& format, std::int64_t frames) {
    constexpr std::int64_t wavLimit = std::int64_t{UINT32_MAX} - headerAllowance;
    return sampleBytes(format, frames) <= wavLimit ? SF_FORMAT_WAV : SF_FORMAT_RF64;
}

/// Why a write came up short: the system's reason where it gave one.
HostError writeError(const std::filesystem::path& file, SNDFILE* sound, int systemError) {
    if (systemError != 0)
        return HostError::ofFile(file, systemError);
    if (sound != nullptr && sf_error(sound) != SF_ERR_NO_ERROR)
        return HostError::ofFile(file, "cannot be written (" + soundFileError(sound) + ")");
    return HostError::ofFile(file, "cannot be written completely; is the disk full?");
}

} // namespace

struct AudioFileWriter::Handle {
    SoundFile file;
};

AudioFileWriter::AudioFileWriter(const std::filesystem::path& file,
                                 const AudioFileFormat& audioFormat, std::int64_t frames)
    : output(file)
    , format(audioFormat)
    , handle(std::make_unique<Handle>()) {
    SF_INFO info{};
    info.samplerate = format.sampleRate;
    info.channels = format.channels;
    info.format = container(format, frames) | libraryEncoding(format.encoding);
    handle->file = openSoundFile(output.temporaryPath(), SFM_WRITE, info);
    if (handle->file == nullptr)
        throw HostError::ofFile(file, "cannot be written (" + soundFileError(nullptr) + ")");
    // The chunk carries the time of writing.
    sf_command(handle->file.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
}

AudioFileWriter::~AudioFileWriter() = default;

void AudioFileWriter::write(const float* interleaved, std::int64_t frames) {
    SNDFILE* const file = handle->file.get();
    std::int64_t done = 0;
    errno = 0;
    if (format.encoding == SampleEncoding::float32) {
        done = sf_writef_float(file, interleaved, frames);
    } else {
        words.resize(static_cast<std::size_t>(frames * format.channels));
        beyondFullScale += toWholeNumbers(interleaved, words.data(), words.size(),
                                          bytesPerSample(format.encoding) * bitsPerByte);
        done = sf_writef_int(file, words.data(), frames);
    }
    if (done != frames)
        throw writeError(output.target(), file, errno);
    written += frames;
}

void AudioFileWriter::finish() {
    errno = 0;
    const int closed = sf_close(handle->file.release());
    const int systemError = closed == 0 ? 0 : errno;
    // Closing writes the header's lengths and tells little of what went wrong: look at the file.
    std::error_code error;
    const auto size =
        static_cast<std::int64_t>(std::filesystem::file_size(output.temporaryPath(), error));
    if (closed != 0 || error || size <= sampleBytes(format, written))
        throw writeError(output.target(), nullptr, systemError);
}
