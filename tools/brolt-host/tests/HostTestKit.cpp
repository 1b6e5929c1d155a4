// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/tests/HostTestKit.h"

#include "tools/brolt-host/AudioFileReader.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        folder = fs::temp_directory_path() /
                 pathFromUtf8("brolt-host-t\xc3\xa9st-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

std::vector<std::string> TemporaryFolder::names() const {
    std::vector<std::string> result;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        result.push_back(utf8FromPath(entry.path().filename()));
    std::sort(result.begin(), result.end());
    return result;
}

fs::path TemporaryFolder::write(const std::string& name, const std::string& bytes) const {
    fs::path file = folder / name;
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    return file;
}

std::string bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const HostError& error) {
        return error.what();
    }
    return "no error";
}

std::vector<float> testAudio(int channels, std::size_t frames) {
    constexpr std::size_t strokeLength = 9000;
    std::uint32_t state = 12345;
    std::vector<float> samples;
    float amplitude = 0.0F;
    for (std::size_t i = 0; i < frames; ++i) {
        amplitude = i % strokeLength == 100 ? 0.9F : amplitude * 0.9995F;
        for (int c = 0; c < channels; ++c) {
            state = state * 1664525U + 1013904223U;
            const auto number = static_cast<std::int32_t>(state >> 8U) - (1 << 23);
            samples.push_back(amplitude * (static_cast<float>(number) / 8388608.0F));
        }
    }
    return samples;
}

void writeAudio(const fs::path& file, int channels, int sampleRate,
                const std::vector<float>& interleaved) {
    const auto frames = static_cast<std::int64_t>(interleaved.size()) / channels;
    AudioFileWriter writer(file, {channels, sampleRate}, frames);
    writer.write(interleaved.data(), frames);
    writer.finish();
    writer.commit();
}

std::vector<float> readAudio(const fs::path& file) {
    AudioFileReader reader(file);
    std::vector<float> samples(static_cast<std::size_t>(reader.frames() * reader.channels()));
    reader.read(samples.data(), reader.frames());
    return samples;
}
