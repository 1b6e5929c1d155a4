// SPDX-License-Identifier: GPL-3.0-or-later
//
// A view into the processor of a renderer that shows none.

#include "tools/brolt-host/TwinRenderer.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/ProcessorInsight.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

constexpr int gain = 14;

/// The model's audio, if asked for with one bit changed, and no view into it.
class BlindRenderer : public Renderer {
public:
    BlindRenderer(const RenderPlan& plan, bool isWrong)
        : model(1, 44100.0, plan)
        , wrong(isWrong) {}

    void setParameter(std::int32_t index, double value) override {
        model.setParameter(index, value);
    }

    [[nodiscard]] double parameter(std::int32_t index) const override {
        return model.parameter(index);
    }

    void process(float** inputs, float** outputs, std::int32_t frames) override {
        model.process(inputs, outputs, frames);
        if (wrong)
            outputs[0][frames - 1] = -outputs[0][frames - 1];
    }

private:
    ModelRenderer model;
    bool wrong;
};

/// Silence, whose output is zeros: one of them negative is a difference of one bit.
struct Block {
    std::array<float, 64> samples{};
    std::array<float*, 1> channels{samples.data()};
};

RenderPlan planOfBlocks(std::int32_t frames) {
    RenderPlan plan;
    plan.blockSize = frames;
    return plan;
}

TEST(TwinRenderer, showsTheProcessorOfOneThatShowsNone) {
    const RenderPlan plan = planOfBlocks(64);
    auto blind = std::make_unique<BlindRenderer>(plan, false);
    ASSERT_EQ(blind->insight(), nullptr);
    TwinRenderer twin(std::move(blind), 1, 44100.0, plan);
    ASSERT_NE(twin.insight(), nullptr);
    EXPECT_EQ(twin.insight()->recordInUse(), nullptr);
    Block block;
    twin.process(block.channels.data(), block.channels.data(), 64);
    EXPECT_NE(twin.insight()->recordInUse(), nullptr);
}

TEST(TwinRenderer, changesBoth) {
    const RenderPlan plan = planOfBlocks(64);
    TwinRenderer twin(std::make_unique<BlindRenderer>(plan, false), 1, 44100.0, plan);
    twin.setParameter(gain, 6.0);
    EXPECT_EQ(twin.parameter(gain), 6.0);
    Block block;
    block.samples.fill(0.5F);
    twin.process(block.channels.data(), block.channels.data(), 64);
    // 6 dB are 10^(6/20) = 1.9953 times.
    EXPECT_NEAR(twin.insight()->recordInUse()->outputGain, 1.9953F, 0.0001F);
}

TEST(TwinRenderer, endsTheRenderWhereTheTwoDifferInABit) {
    const RenderPlan plan = planOfBlocks(64);
    TwinRenderer twin(std::make_unique<BlindRenderer>(plan, true), 1, 44100.0, plan);
    Block block;
    EXPECT_THROW(twin.process(block.channels.data(), block.channels.data(), 64), HostError);
}

} // namespace
