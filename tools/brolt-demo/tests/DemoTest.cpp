// SPDX-License-Identifier: GPL-3.0-or-later
//
// The demonstration's music and its measurements.

#include "tools/brolt-demo/BassLine.h"
#include "tools/brolt-demo/KickPattern.h"
#include "tools/brolt-demo/Pattern.h"
#include "tools/brolt-demo/Spectrum.h"
#include "tools/brolt-host/HostError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numbers>

namespace {

constexpr double rate = 44100.0;

struct Tone {
    double frequency;
    double amplitude;
};

std::vector<float> tones(const std::vector<Tone>& parts, std::size_t frames) {
    std::vector<float> samples(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        double sum = 0.0;
        for (const Tone& tone : parts) {
            const double phase =
                2.0 * std::numbers::pi * tone.frequency * static_cast<double>(i) / rate;
            sum += tone.amplitude * std::sin(phase);
        }
        samples[i] = static_cast<float>(sum);
    }
    return samples;
}

} // namespace

TEST(FourierTransform, equalsTheSumsOfItsDefinition) {
    constexpr std::size_t size = 16;
    std::vector<std::complex<double>> values;
    for (std::size_t i = 0; i < size; ++i)
        values.emplace_back(std::sin(static_cast<double>(i * i)), 0.1 * static_cast<double>(i));
    std::vector<std::complex<double>> transformed = values;
    fourierTransform(transformed);
    for (std::size_t k = 0; k < size; ++k) {
        std::complex<double> sum;
        for (std::size_t n = 0; n < size; ++n) {
            sum += values[n] *
                   std::polar(1.0, -2.0 * std::numbers::pi * static_cast<double>(k * n) / size);
        }
        EXPECT_NEAR(std::abs(transformed[k] - sum), 0.0, 1e-12) << k;
    }
}

TEST(LowestStrongFrequency, aToneIsFoundToATenthOfAHertz) {
    for (const double frequency : {35.0, 61.7, 440.0}) {
        const auto found = lowestStrongFrequency(tones({{frequency, 0.5}}, 100000), rate);
        ASSERT_TRUE(found);
        EXPECT_NEAR(*found, frequency, 0.1);
    }
}

TEST(LowestStrongFrequency, aLowerToneCountsWhenItIsAtMostTwelveDecibelsWeaker) {
    const double weaker10 = std::pow(10.0, -10.0 / 20.0);
    const double weaker14 = std::pow(10.0, -14.0 / 20.0);
    EXPECT_NEAR(*lowestStrongFrequency(tones({{200.0, 0.5}, {50.0, 0.5 * weaker10}}, 100000), rate),
                50.0, 0.1);
    EXPECT_NEAR(*lowestStrongFrequency(tones({{200.0, 0.5}, {50.0, 0.5 * weaker14}}, 100000), rate),
                200.0, 0.1);
}

TEST(LowestStrongFrequency, silenceHasNone) {
    EXPECT_FALSE(lowestStrongFrequency(std::vector<float>(50000), rate));
}

TEST(LowestStrongFrequency, aShortSignalIsMeasuredToo) {
    const auto found = lowestStrongFrequency(tones({{100.0, 0.5}}, 8000), rate);
    ASSERT_TRUE(found);
    EXPECT_NEAR(*found, 100.0, 2.0);
}

TEST(BassLine, isStereoFourBarsLongAndLeavesHeadroom) {
    const std::vector<float> line = bassLine();
    ASSERT_EQ(line.size(), 2U * static_cast<std::size_t>(Pattern::frameCount()));
    float peak = 0.0F;
    bool sidesDiffer = false;
    for (std::size_t i = 0; i < line.size(); i += 2) {
        peak = std::max({peak, std::fabs(line[i]), std::fabs(line[i + 1])});
        sidesDiffer = sidesDiffer || line[i] != line[i + 1];
    }
    EXPECT_GT(peak, 0.3F);
    EXPECT_LT(peak, 0.9F);
    EXPECT_TRUE(sidesDiffer);
}

TEST(BassLine, hasItsLowestStrongFrequencyAboveTheTonesThatAreAdded) {
    const std::vector<float> line = bassLine();
    std::vector<float> left;
    for (std::size_t i = 0; i < line.size(); i += 2)
        left.push_back(line[i]);
    EXPECT_GT(*lowestStrongFrequency(left, rate), 80.0);
}

TEST(KickPattern, aFolderWithoutRecordingsIsAnError) {
    EXPECT_THROW(kickPattern(std::filesystem::temp_directory_path() / "no-such-kit"), HostError);
}
