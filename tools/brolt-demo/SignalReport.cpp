// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-demo/SignalReport.h"

#include "tools/brolt-demo/MonoFile.h"
#include "tools/brolt-demo/Spectrum.h"
#include "tools/brolt-host/Decibels.h"
#include "tools/brolt-host/Utf8.h"

#include <array>
#include <cstdio>

namespace {

std::string withOneDecimal(double value, const char* unit) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.1f %s", value, unit);
    return text.data();
}

} // namespace

std::vector<TextRow> signalReport(const std::vector<std::filesystem::path>& files) {
    std::vector<TextRow> rows{{"File", "Length", "Peak", "Lowest strong frequency"}};
    for (const std::filesystem::path& file : files) {
        const MonoFile signal = readMonoFile(file);
        const double seconds = static_cast<double>(signal.samples.size()) / signal.sampleRate;
        const auto lowest = lowestStrongFrequency(signal.samples, signal.sampleRate);
        rows.push_back({utf8FromPath(file.filename()), withOneDecimal(seconds, "s"),
                        peakText(static_cast<double>(signal.peak)),
                        lowest ? withOneDecimal(*lowest, "Hz") : "none"});
    }
    return rows;
}
