// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/ModelRenderer.h"

#include "tools/brolt-host/RecordTrace.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int32_t sustainIndex = 2;
constexpr std::int32_t osc2EnableIndex = 7;
constexpr std::int32_t gainIndex = 14;

RenderPlan planOf(std::int32_t blockSize, std::vector<ParameterSetting> settings = {}) {
    RenderPlan plan;
    plan.blockSize = blockSize;
    plan.settings = std::move(settings);
    return plan;
}

void processSilence(ModelRenderer& renderer, int blocks, std::int32_t frames) {
    std::vector<float> silence(static_cast<std::size_t>(frames));
    std::vector<float> output(silence.size());
    float* input[] = {silence.data(), silence.data()};
    float* outputs[] = {output.data(), output.data()};
    for (int i = 0; i < blocks; ++i)
        renderer.process(input, outputs, frames);
}

} // namespace

TEST(ModelRenderer, theFirstBlockUsesTheFirstRecordAndThisHasVersionTwo) {
    for (const int channels : {1, 2}) {
        ModelRenderer renderer(channels, 44100.0, planOf(64));
        EXPECT_EQ(renderer.recordInUse(), nullptr);
        processSilence(renderer, 1, 64);
        ASSERT_NE(renderer.recordInUse(), nullptr);
        EXPECT_EQ(recordTraceLine(0, *renderer.recordInUse()),
                  "0 3f800000 3f800000 3f800000 3e809bcc 472c4400 00000002 3f7ffdfd 3f7fe931 "
                  "3f7ffbfa 3a83126f 3cd318a1 39c37efd 3cd318a1 39c37efd 3f7de425 3f7ebc49 "
                  "3f7bc6df 3f7d7809\n");
    }
}

TEST(ModelRenderer, settingsAreInTheFirstRecordHoweverManyThereAre) {
    ModelRenderer renderer(1, 48000.0,
                           planOf(64, {{sustainIndex, 45.0, {}},
                                       {gainIndex, -20.0, {}},
                                       {gainIndex, 0.0, {}},
                                       {osc2EnableIndex, 0.0, {}},
                                       {gainIndex, -6.0, {}}}));
    processSilence(renderer, 1, 64);
    EXPECT_EQ(renderer.recordInUse()->meterVersion, 2);
    EXPECT_EQ(renderer.recordInUse()->osc2Gain, 0.0F);
    EXPECT_FLOAT_EQ(renderer.recordInUse()->outputGain, 0.50118723F);
    EXPECT_EQ(renderer.parameter(sustainIndex), 45.0);
}

TEST(ModelRenderer, recordsAreAppliedBeforeTheSettingsAndMakeNoRecordOfTheirOwn) {
    RenderPlan plan = planOf(64, {{gainIndex, -6.0, {}}});
    QMGenericPreset record;
    record.manufacturerCode = fourCharCode("QML ");
    record.productCode = fourCharCode("BRLT");
    record.values = {{fourCharCode("sfre"), 33.0}, {fourCharCode("gain"), 12.0}};
    plan.records = {record};
    ModelRenderer renderer(1, 44100.0, plan);
    processSilence(renderer, 1, 64);
    EXPECT_EQ(renderer.recordInUse()->meterVersion, 2);
    EXPECT_EQ(renderer.parameter(sustainIndex), 33.0);
    EXPECT_EQ(renderer.parameter(gainIndex), -6.0);
}

TEST(ModelRenderer, aChangeWhileItRunsIsUsedByTheNextBlock) {
    ModelRenderer renderer(1, 44100.0, planOf(64));
    processSilence(renderer, 3, 64);
    renderer.setParameter(gainIndex, 20.0);
    processSilence(renderer, 1, 64);
    EXPECT_EQ(renderer.recordInUse()->meterVersion, 3);
    EXPECT_EQ(renderer.recordInUse()->outputGain, 10.0F);
}

TEST(ModelRenderer, changesBeforeTheFirstBlockDoNotQueueUpBehindTheFirstRecord) {
    ModelRenderer renderer(1, 44100.0, planOf(64));
    renderer.setParameter(gainIndex, 20.0);
    processSilence(renderer, 1, 64);
    EXPECT_EQ(renderer.recordInUse()->meterVersion, 3);
    EXPECT_EQ(renderer.recordInUse()->outputGain, 10.0F);
}

TEST(ModelRenderer, aChangeIsRoundedToTheParametersStepsAsInAWorkstation) {
    ModelRenderer renderer(1, 44100.0, planOf(64, {{gainIndex, 0.123, {}}}));
    EXPECT_EQ(renderer.parameter(gainIndex), 0.123); // a setting is not
    renderer.setParameter(gainIndex, 0.123);
    EXPECT_EQ(renderer.parameter(gainIndex), 0.12); // steps of 0.01 dB
}

TEST(ModelRenderer, oscillatorsAtRestReadTheirSustainFrequency) {
    ModelRenderer renderer(2, 44100.0, planOf(64));
    processSilence(renderer, 4, 64);
    const OscillatorReading reading = renderer.readOscillators();
    EXPECT_NEAR(reading.frequency[0], 60.0, 0.5);
    EXPECT_NEAR(reading.frequency[1], 120.0, 0.5);
    EXPECT_EQ(reading.level[0], 0.0);
    EXPECT_EQ(reading.level[1], 0.0);
}

TEST(ModelRenderer, frequenciesAreReadAsTheySoundAtTheHostsRate) {
    // Coefficients are those of 44.1 kHz at every rate: at twice the rate the tones are an octave
    // up.
    ModelRenderer renderer(1, 88200.0, planOf(64));
    processSilence(renderer, 4, 64);
    EXPECT_NEAR(renderer.readOscillators().frequency[0], 120.0, 1.0);
}

TEST(ModelRenderer, aDisabledOscillatorReadsNoLevel) {
    ModelRenderer renderer(1, 44100.0, planOf(4096, {{osc2EnableIndex, 0.0, {}}}));
    std::vector<float> noise = testAudio(1, 4096);
    float* channels[] = {noise.data()};
    renderer.process(channels, channels, 4096);
    EXPECT_GT(renderer.readOscillators().level[0], 0.0);
    EXPECT_EQ(renderer.readOscillators().level[1], 0.0);
}
