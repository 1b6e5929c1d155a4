// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole renders, compared bit by bit with the processor driven directly.

#include "tools/brolt-host/FileRender.h"

#include "brolt/signal/Brolt.h"
#include "brolt/signal/CoefficientComputation.h"
#include "tools/brolt-host/ModelRendererFactory.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/RecordTrace.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

namespace fs = std::filesystem;

using testing::ElementsAre;

namespace {

constexpr int sampleRate = 48000;
constexpr std::size_t frameCount = 30001; // no multiple of any block or chunk

/// The defaults as the parameter table has them.
BroltParameters defaultParameters() {
    BroltParameters p;
    p.osc1Enable = true;
    p.osc1AttackFrequency = 100.0F;
    p.osc1SustainFrequency = 60.0F;
    p.osc1MixGain = 0.0F;
    p.osc2Enable = true;
    p.osc2AttackFrequency = 200.0F;
    p.osc2SustainFrequency = 120.0F;
    p.osc2MixGain = -12.0F;
    p.envelopeAttack = 2.0F;
    p.envelopeRelease = 140.0F;
    p.pitchAttack = 2.0F;
    p.pitchRelease = 140.0F;
    p.wetDry = 100.0F;
    p.outputGain = 0.0F;
    return p;
}

Coefficients recordOf(const BroltParameters& parameters, std::int32_t version) {
    Coefficients record;
    computeCoefficients(record, parameters);
    record.meterVersion = version;
    return record;
}

/// First frame of the first block that uses the record.
using Records = std::map<std::size_t, Coefficients>;

template <int N>
std::vector<float> directRender(const std::vector<float>& interleaved, std::size_t blockSize,
                                const Records& records) {
    const std::size_t frames = interleaved.size() / N;
    BroltState<N> state;
    std::vector<float> result(interleaved.size());
    Coefficients record;
    for (std::size_t start = 0; start < frames; start += blockSize) {
        const std::size_t count = std::min(blockSize, frames - start);
        if (records.contains(start))
            record = records.at(start);
        std::array<std::vector<float>, N> channels;
        std::array<const float*, N> inputs{};
        std::array<float*, N> outputs{};
        for (std::size_t c = 0; c < N; ++c) {
            for (std::size_t i = 0; i < count; ++i)
                channels[c].push_back(interleaved[(start + i) * N + c]);
            inputs[c] = channels[c].data();
            outputs[c] = channels[c].data();
        }
        Brolt<N, float>::process(state, inputs.data(), outputs.data(), record,
                                 static_cast<std::int32_t>(count));
        for (std::size_t c = 0; c < N; ++c) {
            for (std::size_t i = 0; i < count; ++i)
                result[(start + i) * N + c] = channels[c][i];
        }
    }
    return result;
}

std::string traceOf(const Records& records) {
    std::string text;
    for (const auto& [frame, record] : records)
        text += recordTraceLine(static_cast<std::int64_t>(frame), record);
    return text;
}

class FileRender : public testing::Test {
protected:
    FileRender() { plan.showProgress = false; }

    std::vector<float> writeInput(int channels) {
        std::vector<float> audio = testAudio(channels, frameCount);
        writeAudio(folder / "in.wav", channels, sampleRate, audio);
        return audio;
    }

    RenderSummary render() {
        return renderFile(factory, plan,
                          {folder / "in.wav", folder / "out.wav", folder / "trace.txt", {}});
    }

    TemporaryFolder folder;
    ModelRendererFactory factory;
    RenderPlan plan;
};

} // namespace

TEST_F(FileRender, aStereoFileIsTheStereoProcessorsOutputForBlocksOfAnySize) {
    const std::vector<float> audio = writeInput(2);
    const Records records{{0, recordOf(defaultParameters(), 2)}};
    for (const std::int32_t blockSize : {1, 7, 64, 512, 8192, 8193, 1 << 20}) {
        plan.blockSize = blockSize;
        const RenderSummary summary = render();
        EXPECT_EQ(summary.frames, static_cast<std::int64_t>(frameCount));
        EXPECT_EQ(summary.channels, 2);
        EXPECT_EQ(summary.sampleRate, sampleRate);
        const auto expected = directRender<2>(audio, static_cast<std::size_t>(blockSize), records);
        EXPECT_TRUE(readAudio(folder / "out.wav") == expected) << "blocks of " << blockSize;
        EXPECT_EQ(bytesOf(folder / "trace.txt"), traceOf(records));
    }
}

TEST_F(FileRender, aMonoFileIsTheMonoProcessorsOutput) {
    const std::vector<float> audio = writeInput(1);
    EXPECT_EQ(render().channels, 1);
    EXPECT_TRUE(readAudio(folder / "out.wav") ==
                directRender<1>(audio, 512, {{0, recordOf(defaultParameters(), 2)}}));
}

TEST_F(FileRender, aMonoFileFeedsBothSidesOfTheStereoTypeWhenAskedTo) {
    const std::vector<float> audio = writeInput(1);
    plan.channels = 2;
    EXPECT_EQ(render().channels, 2);
    std::vector<float> doubled;
    for (const float sample : audio)
        doubled.insert(doubled.end(), 2, sample);
    EXPECT_TRUE(readAudio(folder / "out.wav") ==
                directRender<2>(doubled, 512, {{0, recordOf(defaultParameters(), 2)}}));
}

TEST_F(FileRender, aStereoFileIsAveragedForTheMonoTypeWhenAskedTo) {
    const std::vector<float> audio = writeInput(2);
    plan.channels = 1;
    EXPECT_EQ(render().channels, 1);
    std::vector<float> average;
    for (std::size_t i = 0; i < audio.size(); i += 2)
        average.push_back((audio[i] + audio[i + 1]) / 2.0F);
    EXPECT_TRUE(readAudio(folder / "out.wav") ==
                directRender<1>(average, 512, {{0, recordOf(defaultParameters(), 2)}}));
}

TEST_F(FileRender, automationChangesTheRecordsAtTheBeginningsOfItsBlocks) {
    const std::vector<float> audio = writeInput(2);
    plan.blockSize = 100;
    ProductModel product;
    plan.settings = {{2, 45.0, {}}}; // sfre
    // 48 frames a millisecond: frames 480 (block from 400), 485, 1199 (1100), 1200 (1200) and two
    // parameters at 4800, whose records are used by one block after the other.
    plan.automation =
        parseAutomation("0.010 gain -6\n0.0101 gain -3\n0.02498 wetd 50\n0.025 wetd 40\n"
                        "0.1 gain 0\n0.1 osc2 0\n0.1 gain 1\n9 gain 2\n",
                        "a", product.parameters());
    EXPECT_EQ(render().changesAfterEnd, 1U);

    BroltParameters p = defaultParameters();
    Records records;
    p.osc1SustainFrequency = 45.0F;
    records[0] = recordOf(p, 2);
    p.outputGain = -3.0F;
    records[400] = recordOf(p, 3);
    p.wetDry = 50.0F;
    records[1100] = recordOf(p, 4);
    p.wetDry = 40.0F;
    records[1200] = recordOf(p, 5);
    p.outputGain = 1.0F;
    records[4800] = recordOf(p, 6);
    p.osc2Enable = false;
    records[4900] = recordOf(p, 7);
    EXPECT_EQ(bytesOf(folder / "trace.txt"), traceOf(records));
    EXPECT_TRUE(readAudio(folder / "out.wav") == directRender<2>(audio, 100, records));
}

TEST_F(FileRender, anInputMayBeItsOwnOutput) {
    const std::vector<float> audio = writeInput(1);
    renderFile(factory, plan, {folder / "in.wav", folder / "in.wav", {}, {}});
    EXPECT_THAT(folder.names(), ElementsAre("in.wav"));
    EXPECT_TRUE(readAudio(folder / "in.wav") ==
                directRender<1>(audio, 512, {{0, recordOf(defaultParameters(), 2)}}));
}

TEST_F(FileRender, theSummaryTellsTheOutputsPeak) {
    const std::vector<float> audio = writeInput(1);
    const RenderSummary summary = render();
    float peak = 0.0F;
    for (const float sample : readAudio(folder / "out.wav"))
        peak = std::max(peak, std::fabs(sample));
    EXPECT_GT(peak, 0.0F);
    EXPECT_EQ(summary.peak, peak);
}

TEST_F(FileRender, aPlotChangesNothingAndIsAPicture) {
    writeInput(2);
    render();
    const std::string before = bytesOf(folder / "out.wav");
    renderFile(factory, plan, {folder / "in.wav", folder / "out.wav", {}, folder / "p.png"});
    EXPECT_EQ(bytesOf(folder / "out.wav"), before);
    const std::string picture = bytesOf(folder / "p.png");
    EXPECT_EQ(picture.substr(0, 8), "\x89PNG\r\n\x1a\n");
    // Width and height stand at the beginning of the first chunk: 1600 and 1000.
    EXPECT_EQ(picture.substr(16, 8), std::string("\0\0\x06\x40\0\0\x03\xe8", 8));
}

TEST_F(FileRender, whenOneOutputCannotBeMadeNoneIs) {
    writeInput(1);
    const RenderFiles files{folder / "in.wav", folder / "out.wav", folder / "trace.txt",
                            folder / "missing" / "p.png"};
    EXPECT_THAT(errorOf([&] { renderFile(factory, plan, files); }),
                testing::EndsWith("p.png: its folder does not exist"));
    EXPECT_THAT(folder.names(), ElementsAre("in.wav"));
}
