// SPDX-License-Identifier: GPL-3.0-or-later
// A folder in the system's temporary place for as long as a test needs one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <system_error>

class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::random_device random;
        do {
            const std::uint64_t number = (std::uint64_t{random()} << 32) | random();
            path_ = std::filesystem::temp_directory_path() / ("qm-test-" + std::to_string(number));
        } while (!std::filesystem::create_directory(path_));
    }

    ~TemporaryDirectory() {
        // A file that is still open cannot go on every platform; a test must not die of it.
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return path_ / name;
    }

private:
    std::filesystem::path path_;
};
