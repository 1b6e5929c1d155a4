// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-demo/MonoFile.h"

#include "tools/brolt-host/AudioFileReader.h"
#include "tools/brolt-host/ChannelLayout.h"
#include "tools/brolt-host/PeakMagnitude.h"

MonoFile readMonoFile(const std::filesystem::path& file) {
    AudioFileReader reader(file);
    const std::int64_t frames = reader.frames();
    std::vector<float> interleaved(static_cast<std::size_t>(frames * reader.channels()));
    reader.read(interleaved.data(), frames);
    PeakMagnitude peak;
    peak.note(interleaved.data(), interleaved.size());
    ChannelBuffers mono(1, frames);
    separateChannels(interleaved.data(), reader.channels(), frames, mono);
    return {{mono.channel(0), mono.channel(0) + frames}, reader.sampleRate(), peak.value()};
}
