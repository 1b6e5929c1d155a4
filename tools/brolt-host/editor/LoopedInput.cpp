// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/LoopedInput.h"

#include <algorithm>

LoopedInput::LoopedInput(const std::optional<std::filesystem::path>& file) {
    if (file)
        reader = std::make_unique<AudioFileReader>(*file);
}

int LoopedInput::sampleRate() const {
    constexpr int standardRate = 44100;
    return reader != nullptr ? reader->sampleRate() : standardRate;
}

void LoopedInput::read(ChannelBuffers& buffers, std::int32_t frames) {
    if (reader == nullptr) {
        for (int c = 0; c < buffers.channelCount(); ++c)
            std::fill_n(buffers.channel(c), frames, 0.0F);
        return;
    }
    readInterleaved(frames);
    separateChannels(interleaved.data(), reader->channels(), frames, buffers);
}

void LoopedInput::readInterleaved(std::int64_t frames) {
    interleaved.resize(static_cast<std::size_t>(frames * reader->channels()));
    std::int64_t filled = 0;
    while (filled < frames) {
        const std::int64_t count =
            reader->read(interleaved.data() + filled * reader->channels(), frames - filled);
        if (count == 0)
            reader->rewind(); // no file without frames was opened
        filled += count;
    }
}
