// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/ReplacementFile.h"

#include "presets/manager/PresetFileNames.h"

#include <cstdint>
#include <random>
#include <system_error>
#include <utility>

namespace {

std::uint64_t randomNumber() {
    constexpr int bitsOfOne = 32;
    std::random_device random;
    return std::uint64_t{random()} << bitsOfOne | random();
}

} // namespace

ReplacementFile::ReplacementFile(std::filesystem::path toReplace)
    : target(std::move(toReplace)) {}

ReplacementFile::~ReplacementFile() {
    file.reset(); // an open file cannot go everywhere
    std::error_code ignored;
    if (!path.empty())
        std::filesystem::remove(path, ignored);
}

ReplacementFile::Answer ReplacementFile::create() {
    const auto candidate = target.parent_path() / PresetFileNames::temporary(randomNumber());
    std::FILE* handle = nullptr;
    const Answer answer = FileReplacement::create(candidate, handle);
    if (answer == Answer::Done) {
        file.reset(handle);
        path = candidate;
    }
    return answer;
}

ReplacementFile::Answer ReplacementFile::copyRights() {
    return FileReplacement::copyRights(file.get(), target);
}

ReplacementFile::Answer ReplacementFile::write(std::span<const std::byte> bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    return written ? Answer::Done : Answer::Failed;
}

ReplacementFile::Answer ReplacementFile::close(bool flushToMedium) {
    const bool flushed = !flushToMedium || FileReplacement::flushToMedium(file.get());
    // What the C runtime still holds back may fail only now.
    const bool closed = std::fclose(file.release()) == 0;
    return flushed && closed ? Answer::Done : Answer::Failed;
}

ReplacementFile::Answer ReplacementFile::replaceTarget() {
    const Answer answer = FileReplacement::replace(path, target);
    if (answer == Answer::Done)
        path.clear();
    return answer;
}
