// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/PeakMagnitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

float peakOf(const std::vector<float>& samples) {
    PeakMagnitude peak;
    peak.note(samples.data(), samples.size());
    return peak.value();
}

} // namespace

TEST(PeakMagnitude, isZeroWithoutSamples) {
    EXPECT_EQ(peakOf({}), 0.0F);
}

TEST(PeakMagnitude, findsTheHighestMagnitudeAtEveryPlace) {
    for (std::size_t length = 1; length <= 40; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            std::vector<float> samples(length, 0.25F);
            samples[place] = -0.75F;
            ASSERT_EQ(peakOf(samples), 0.75F) << place << " of " << length;
        }
    }
}

TEST(PeakMagnitude, goesOnFromChunkToChunk) {
    PeakMagnitude peak;
    const float loud = -2.0F;
    const float soft = 1.0F;
    peak.note(&loud, 1);
    peak.note(&soft, 1);
    EXPECT_EQ(peak.value(), 2.0F);
}

TEST(PeakMagnitude, aSampleThatIsNotANumberCannotHide) {
    EXPECT_TRUE(std::isnan(peakOf({0.1F, std::nanf(""), std::numeric_limits<float>::infinity()})));
    EXPECT_TRUE(std::isinf(peakOf({0.1F, -std::numeric_limits<float>::infinity()})));
}
