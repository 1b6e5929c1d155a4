// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-demo/KickPattern.h"

#include "tools/brolt-demo/MonoFile.h"
#include "tools/brolt-demo/Pattern.h"
#include "tools/brolt-host/HostError.h"

#include <array>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// What a character of a bar stands for; a dot is a rest.
struct Stroke {
    char sign;
    const char* recording;
};

constexpr std::array<Stroke, 4> strokes{{
    {'s', "Kick-Soft"},
    {'m', "Kick-Med"},
    {'h', "Kick-Hard"},
    {'H', "Kick-Hardest"},
}};

// clang-format off
constexpr std::array<const char*, Pattern::barCount> bars{
    "H.....m.h.......",
    "H..s..m.h..m....",
    "H.....m.h.......",
    "H..s..m.h..m.ms.",
};
// clang-format on

/// Leaves room for the tones that come on top.
constexpr float level = 0.7F;

std::vector<float> recording(const fs::path& kit, const std::string& name) {
    for (const char* suffix : {".wav", ".flac"}) {
        const fs::path file = kit / (name + suffix);
        std::error_code ignored;
        if (!fs::exists(file, ignored))
            continue;
        const MonoFile mono = readMonoFile(file);
        if (mono.sampleRate != Pattern::sampleRate)
            throw HostError::ofFile(file,
                                    "is not at " + std::to_string(Pattern::sampleRate) + " Hz");
        return mono.samples;
    }
    throw HostError::ofFile(kit, "has no recording " + name);
}

} // namespace

std::vector<float> kickPattern(const fs::path& kit) {
    std::vector<float> result(static_cast<std::size_t>(Pattern::frameCount()));
    for (const Stroke& stroke : strokes) {
        const std::vector<float> samples = recording(kit, stroke.recording);
        for (int step = 0; step < Pattern::barCount * Pattern::stepsPerBar; ++step) {
            const char* const bar = bars[static_cast<std::size_t>(step / Pattern::stepsPerBar)];
            if (bar[step % Pattern::stepsPerBar] != stroke.sign)
                continue;
            const auto start = static_cast<std::size_t>(Pattern::frameOfStep(step));
            for (std::size_t i = 0; i < samples.size() && start + i < result.size(); ++i)
                result[start + i] += level * samples[i];
        }
    }
    return result;
}
