// SPDX-License-Identifier: GPL-3.0-or-later
//
// What several of the tool's tests need: a folder of their own, files in it, audio to render.

#pragma once

#include "tools/brolt-host/AudioFileWriter.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// A folder that goes with the test. Its name is not ASCII: nothing may depend on that.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return folder; }

    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return folder / name;
    }

    /// Names of everything in it, sorted.
    [[nodiscard]] std::vector<std::string> names() const;

    /// Answers the file's path.
    std::filesystem::path write(const std::string& name, const std::string& bytes) const;

private:
    std::filesystem::path folder;
};

std::string bytesOf(const std::filesystem::path& file);

/// The message of the HostError that `action` throws; "no error" when it throws none.
std::string errorOf(const std::function<void()>& action);

/// Strokes of noise that die away: frames of `channels` interleaved channels within -1..1, the same
/// on every platform.
std::vector<float> testAudio(int channels, std::size_t frames);

/// Writes interleaved samples as a 32-bit float file.
void writeAudio(const std::filesystem::path& file, int channels, int sampleRate,
                const std::vector<float>& interleaved);

/// All samples of an audio file.
std::vector<float> readAudio(const std::filesystem::path& file);
