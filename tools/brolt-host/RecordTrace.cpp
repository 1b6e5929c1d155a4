// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/RecordTrace.h"

#include "tools/brolt-host/HostError.h"

#include <array>
#include <bit>
#include <cerrno>

namespace {

constexpr std::size_t wordCount = sizeof(Coefficients) / sizeof(std::uint32_t);

void appendHexadecimal(std::string& text, std::uint32_t word) {
    constexpr const char* digits = "0123456789abcdef";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += digits[(word >> static_cast<unsigned>(shift)) & 0xfU];
}

} // namespace

std::string recordTraceLine(std::int64_t frame, const Coefficients& record) {
    std::string line = std::to_string(frame);
    for (const std::uint32_t word : std::bit_cast<std::array<std::uint32_t, wordCount>>(record)) {
        line += ' ';
        appendHexadecimal(line, word);
    }
    return line + '\n';
}

RecordTrace::RecordTrace(const std::filesystem::path& file)
    : output(file)
    , stream(output.temporaryPath(), std::ios::binary) {
    if (!stream)
        throw HostError::ofFile(file, "cannot be written");
}

void RecordTrace::note(std::int64_t frame, const Coefficients& record) {
    // Every record that is built has a version of its own.
    if (versionInUse == record.meterVersion)
        return;
    versionInUse = record.meterVersion;
    stream << recordTraceLine(frame, record);
}

void RecordTrace::finish() {
    errno = 0;
    stream.close();
    if (!stream)
        throw HostError::ofFile(output.target(), errno != 0 ? errno : ENOSPC);
}
