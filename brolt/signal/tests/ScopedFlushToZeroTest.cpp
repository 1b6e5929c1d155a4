// SPDX-License-Identifier: GPL-3.0-or-later
//
// The floating-point control word: set inside, the caller's own again outside.

#include "brolt/signal/ScopedFlushToZero.h"

#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

/// Control words a caller may have: the default; both bits set; one each; all exceptions masked
/// with rounding towards zero; sticky flags raised.
constexpr unsigned int callersWords[] = {0x1f80, 0x9fc0, 0x9f80, 0x1fc0, 0x7f80, 0x1fbf, 0x3f80};

/// Sets a control word for a test and puts back the old one.
class ControlWord {
public:
    explicit ControlWord(unsigned int word)
        : saved(_mm_getcsr()) {
        _mm_setcsr(word);
    }

    ~ControlWord() { _mm_setcsr(saved); }

    ControlWord(const ControlWord&) = delete;
    ControlWord& operator=(const ControlWord&) = delete;

private:
    unsigned int saved;
};

[[gnu::noinline]] float product(const volatile float& a, const volatile float& b) {
    return a * b;
}

} // namespace

TEST(ScopedFlushToZero, addsItsTwoBitsAndRestoresTheWholeWord) {
    for (const unsigned int word : callersWords) {
        unsigned int inside = 0;
        unsigned int outside = 0;
        {
            const ControlWord callers(word);
            {
                const ScopedFlushToZero flush;
                inside = _mm_getcsr();
            }
            outside = _mm_getcsr();
        }
        EXPECT_EQ(inside, word | 0x8040U);
        EXPECT_EQ(outside, word);
    }
}

TEST(ScopedFlushToZero, flushesResultsAndArguments) {
    const float smallest = std::numeric_limits<float>::min();
    const float subnormal = std::numeric_limits<float>::denorm_min();
    const float half = 0.5F;
    const float huge = 0x1p100F;
    ASSERT_NE(product(smallest, half), 0.0F);
    ASSERT_NE(product(subnormal, huge), 0.0F);

    float flushedResult = 1.0F;
    float flushedArgument = 1.0F;
    {
        const ScopedFlushToZero flush;
        flushedResult = product(smallest, half);
        flushedArgument = product(subnormal, huge);
    }
    EXPECT_EQ(flushedResult, 0.0F);
    EXPECT_EQ(flushedArgument, 0.0F);
    EXPECT_NE(product(smallest, half), 0.0F);
}

TEST(Brolt, restoresTheCallersControlWordAfterEveryBlock) {
    const Coefficients record = recordOf(defaultParameters());
    for (const unsigned int word : callersWords) {
        for (const int frames : {0, 1, 100}) {
            TestProcessor<2> processor;
            unsigned int after = 0;
            {
                // Subnormal input and inexact arithmetic raise sticky flags on the way.
                const ControlWord callers(word);
                processor.hold(1e-40F, frames, record);
                after = _mm_getcsr();
            }
            EXPECT_EQ(after, word);
        }
    }
}

TEST(Brolt, doesItsArithmeticWithSubnormalsFlushed) {
    // Dry signal through a gain of 1/2: the smallest normal number would give a subnormal one.
    TestProcessor<1> processor;
    Coefficients record = simpleRecord();
    record.wetMix = 0.0F;
    record.outputGain = 0.5F;
    const std::vector<float> output =
        processor.hold(std::numeric_limits<float>::min(), 300, record);
    for (const float sample : output)
        ASSERT_EQ(sample, 0.0F);
}
