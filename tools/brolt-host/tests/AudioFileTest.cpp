// SPDX-License-Identifier: GPL-3.0-or-later
//
// The reader and the writer of audio files together, and each against damaged files and folders.

#include "tools/brolt-host/AudioFileReader.h"
#include "tools/brolt-host/AudioFileWriter.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

std::string littleEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

/// A 16-bit WAV file built by hand, with `announced` bytes of samples in its header.
std::string wavBytes(std::uint32_t channels, std::uint32_t announced, const std::string& samples) {
    constexpr std::uint32_t rate = 44100;
    return "RIFF" + littleEndian(36 + announced, 4) + "WAVEfmt " + littleEndian(16, 4) +
           littleEndian(1, 2) + littleEndian(channels, 2) + littleEndian(rate, 4) +
           littleEndian(rate * channels * 2, 4) + littleEndian(channels * 2, 2) +
           littleEndian(16, 2) + "data" + littleEndian(announced, 4) + samples;
}

std::string readingError(const fs::path& file) {
    return errorOf([&] { readAudio(file); });
}

} // namespace

TEST(AudioFile, samplesComeBackBitByBit) {
    const TemporaryFolder folder;
    std::vector<float> samples = testAudio(2, 1000);
    samples[3] = 1.0e-42F;
    samples[4] = 7.5F;
    samples[5] = std::numeric_limits<float>::infinity();
    writeAudio(folder / "a.wav", 2, 96000, samples);
    EXPECT_EQ(readAudio(folder / "a.wav"), samples);
    const AudioFileReader reader(folder / "a.wav");
    EXPECT_EQ(reader.channels(), 2);
    EXPECT_EQ(reader.sampleRate(), 96000);
    EXPECT_EQ(reader.frames(), 1000);
}

TEST(AudioFile, theFileDependsOnNothingButItsSamples) {
    // Header by header: a 16-byte format chunk is followed by what a float format adds, then data.
    const TemporaryFolder folder;
    const std::vector<float> samples{0.5F, -0.25F};
    writeAudio(folder / "a.wav", 1, 44100, samples);
    const std::string bytes = bytesOf(folder / "a.wav");
    EXPECT_EQ(bytes.find("PEAK"), std::string::npos);
    EXPECT_EQ(bytes.substr(0, 4), "RIFF");
    EXPECT_EQ(bytes.substr(bytes.size() - 16),
              "data" + littleEndian(8, 4) + std::string("\0\0\0\x3f\0\0\x80\xbe", 8));
}

TEST(AudioFile, wholeNumberEncodingsHoldTheRoundedSamples) {
    const TemporaryFolder folder;
    const std::vector<float> samples{0.5F, -1.0F, 1.5F, 0.30003F};
    for (const auto& [encoding, fullScale] : {std::pair{SampleEncoding::pcm16, 32768.0F},
                                              std::pair{SampleEncoding::pcm24, 8388608.0F}}) {
        AudioFileWriter writer(folder / "a.wav", {1, 44100, encoding}, 4);
        writer.write(samples.data(), 4);
        writer.finish();
        writer.commit();
        EXPECT_EQ(writer.samplesBeyondFullScale(), 1);
        EXPECT_THAT(readAudio(folder / "a.wav"),
                    ElementsAre(0.5F, -1.0F, 1.0F - 1.0F / fullScale,
                                std::nearbyint(0.30003F * fullScale) / fullScale));
    }
}

TEST(AudioFile, withoutACommitNothingIsLeft) {
    const TemporaryFolder folder;
    {
        const std::vector<float> samples(1000);
        AudioFileWriter writer(folder / "a.wav", {1, 44100}, 1000);
        writer.write(samples.data(), 1000);
    }
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST(AudioFile, anUnusableFileIsAnError) {
    const TemporaryFolder folder;
    EXPECT_THAT(readingError(folder / "missing.wav"), EndsWith("missing.wav: no such file"));
    EXPECT_THAT(readingError(folder.path()), EndsWith(": is a folder"));
    EXPECT_THAT(readingError(folder.write("e.wav", "")), EndsWith("e.wav: is empty"));
    EXPECT_THAT(readingError(folder.write("t.wav", "this is no audio")),
                HasSubstr("t.wav: cannot be read as audio ("));
    EXPECT_THAT(readingError(folder.write("n.wav", wavBytes(1, 0, ""))),
                EndsWith("n.wav: holds no audio"));
    EXPECT_THAT(readingError(folder.write("3.wav", wavBytes(3, 12, std::string(12, '\1')))),
                EndsWith("3.wav: has 3 channels; one or two can be rendered"));
}

TEST(AudioFile, aHeaderCutAtAnyPlaceIsAnError) {
    const TemporaryFolder folder;
    const std::string whole = wavBytes(2, 8, "abcdefgh");
    for (std::size_t length = 1; length < whole.size(); ++length) {
        EXPECT_NE(readingError(folder.write("c.wav", whole.substr(0, length))), "no error")
            << length << " bytes";
    }
    EXPECT_EQ(readingError(folder.write("c.wav", whole)), "no error");
}

TEST(AudioFile, aFileThatWasCutOffIsAnError) {
    const TemporaryFolder folder;
    EXPECT_THAT(readingError(folder.write("c.wav", wavBytes(1, 100, std::string(60, 'x')))),
                EndsWith("c.wav: is damaged: it announces 100 bytes of audio and holds 60"));
    EXPECT_EQ(readingError(folder.write("s.wav", wavBytes(1, 0xffffffffU, std::string(60, 'x')))),
              "no error")
        << "a writer that could not know the length";
}

TEST(AudioFile, whatStandsBehindTheAudioDoesNotMatter) {
    const TemporaryFolder folder;
    const std::string whole = wavBytes(1, 8, "abcdefgh");
    EXPECT_EQ(readingError(folder.write("j.wav", whole + "trailing bytes")), "no error");
}
