// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a plug-in sees of a render, and what becomes of its refusals.

#include "tools/brolt-host/vst3/Vst3Renderer.h"

#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst3Envelope.h"
#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using Calls = std::vector<std::string>;

namespace {

constexpr std::int32_t bypassIndex = 0;
constexpr std::int32_t sustainIndex = 2;
constexpr std::int32_t gainIndex = 14;

class Vst3RendererTest : public testing::Test {
protected:
    Vst3RendererTest() { plan.blockSize = 64; }

    std::unique_ptr<Vst3Renderer> make(Vst3Mode mode = Vst3Mode::realtime, int channels = 2) {
        return std::make_unique<Vst3Renderer>(plugIn.effectClass(), messages, mode, channels,
                                              48000.0, plan);
    }

    static std::vector<float> process(Vst3Renderer& renderer, std::vector<float> audio) {
        std::vector<float> output(audio.size());
        float* inputs[] = {audio.data(), audio.data()};
        float* outputs[] = {output.data(), output.data()};
        renderer.process(inputs, outputs, static_cast<std::int32_t>(audio.size()));
        return output;
    }

    [[nodiscard]] bool wasCalled(const std::string& call) const {
        return std::find(plugIn.calls.begin(), plugIn.calls.end(), call) != plugIn.calls.end();
    }

    FakeVst3PlugIn plugIn;
    HostMessages messages;
    RenderPlan plan;
};

} // namespace

TEST_F(Vst3RendererTest, theCallsComeInAWorkstationsOrder) {
    plan.settings = {{gainIndex, -6.0, {}}};
    make().reset();
    EXPECT_EQ(plugIn.calls,
              (Calls{"initialize", "setComponentHandler some", "setBusArrangements 3 3",
                     "activateBus 0 0 1", "activateBus 1 0 1",
                     // Realtime, 32-bit samples, frames a block, rate.
                     "setupProcessing 0 0 64 48000", "setState", "setComponentState", "setActive 1",
                     "setProcessing 1", "setProcessing 0", "setActive 0",
                     "setComponentHandler none", "terminate"}));
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST_F(Vst3RendererTest, withoutSettingsThePlugInKeepsItsOwn) {
    make().reset();
    EXPECT_FALSE(wasCalled("setState"));
}

TEST_F(Vst3RendererTest, recordsAndSettingsReachThePlugInAsAProjectsState) {
    QMGenericPreset record;
    record.manufacturerCode = fourCharCode("QML ");
    record.productCode = fourCharCode("BRLT");
    record.values = {{fourCharCode("sfre"), 33.0}, {fourCharCode("gain"), 12.0}};
    plan.records = {record};
    plan.settings = {{gainIndex, -6.0, {}}};
    make(Vst3Mode::realtime, 1);

    StateMemoryStream stream(plugIn.state);
    const auto state = readVst3Envelope(stream);
    ASSERT_TRUE(state.has_value());
    EXPECT_EQ(state->values.at(fourCharCode("sfre")), 33.0);
    EXPECT_EQ(state->values.at(fourCharCode("gain")), -6.0);
    EXPECT_EQ(state->values.at(fourCharCode("afre")), 100.0); // its default
}

TEST_F(Vst3RendererTest, theBypassIsSetThroughTheControllerBeforeActivation) {
    plan.settings = {{bypassIndex, 1.0, {}}};
    make();
    const auto set = std::find(plugIn.calls.begin(), plugIn.calls.end(),
                               "setParamNormalized 100 0.01"); // the fake's range is 0 to 100
    const auto active = std::find(plugIn.calls.begin(), plugIn.calls.end(), "setActive 1");
    ASSERT_NE(set, plugIn.calls.end());
    EXPECT_LT(set, active);
    EXPECT_EQ(std::count_if(
                  plugIn.calls.begin(), plugIn.calls.end(),
                  [](const std::string& call) { return call.starts_with("setParamNormalized"); }),
              1);
}

TEST_F(Vst3RendererTest, inRealtimeModeAChangeGoesToTheControllerAtOnce) {
    const auto renderer = make();
    renderer->setParameter(sustainIndex, 50.0);
    EXPECT_EQ(plugIn.calls.back(), "setParamNormalized 102 0.5");
    EXPECT_EQ(renderer->parameter(sustainIndex), 50.0);
    process(*renderer, {1.0F});
    EXPECT_EQ(plugIn.blocks.at(0).changes, std::vector<FakeChange>{});
    EXPECT_EQ(plugIn.blocks.at(0).mode, 0);
}

TEST_F(Vst3RendererTest, inOfflineModeTheNextBlockCarriesTheChangesAtItsFirstFrame) {
    const auto renderer = make(Vst3Mode::offline);
    EXPECT_TRUE(wasCalled("setupProcessing 2 0 64 48000"));
    renderer->setParameter(gainIndex, 25.0);
    renderer->setParameter(sustainIndex, 50.0);
    process(*renderer, {1.0F});
    process(*renderer, {1.0F});
    EXPECT_EQ(plugIn.blocks.at(0).mode, 2);
    EXPECT_EQ(plugIn.blocks.at(0).changes,
              (std::vector<FakeChange>{{114, 0, 0.25}, {102, 0, 0.5}}));
    EXPECT_EQ(plugIn.blocks.at(1).changes, std::vector<FakeChange>{});
    EXPECT_FALSE(wasCalled("setParamNormalized 102 0.5"));
}

TEST_F(Vst3RendererTest, blocksFollowEachOtherInAPlayingProject) {
    const auto renderer = make(Vst3Mode::realtime, 1);
    EXPECT_EQ(process(*renderer, {1.0F, -0.5F}), (std::vector<float>{0.5F, -0.25F}));
    process(*renderer, {0.0F});
    EXPECT_EQ(plugIn.blocks.at(0).frames, 2);
    EXPECT_EQ(plugIn.blocks.at(0).channels, 1);
    EXPECT_EQ(plugIn.blocks.at(0).position, 0);
    EXPECT_EQ(plugIn.blocks.at(0).tempo, 120.0);
    EXPECT_EQ(plugIn.blocks.at(1).position, 2);
}

TEST_F(Vst3RendererTest, everyRefusalEndsTheRenderWithOneLineAndInOrder) {
    plan.settings = {{bypassIndex, 1.0, {}}};
    for (const char* operation :
         {"setComponentHandler", "setBusArrangements", "activateBus", "setupProcessing",
          "getParameterInfo", "setState", "setComponentState", "setParamNormalized", "setActive",
          "setProcessing", "process"}) {
        plugIn = {};
        plugIn.refused = operation;
        EXPECT_EQ(errorOf([&] { process(*make(), {1.0F}); }),
                  "the VST3 plug-in answers " + std::string(operation) + " with 'false'");
        EXPECT_EQ(plugIn.calls.back(), "terminate") << operation;
        EXPECT_EQ(plugIn.livingObjects, 0) << operation;
        const bool wasActive = wasCalled("setActive 1") && plugIn.refused != "setActive";
        EXPECT_EQ(wasCalled("setActive 0"), wasActive) << operation;
    }
}

TEST_F(Vst3RendererTest, aParameterThatThePlugInLacksIsRefused) {
    const auto renderer = make();
    EXPECT_EQ(errorOf([&] { renderer->setParameter(15, 0.0); }),
              "the VST3 plug-in has 15 parameters and none of index 15");
}

TEST_F(Vst3RendererTest, editsOfTheControllerGoIntoTheNextBlockOnce) {
    const auto renderer = make();
    std::vector<Vst3Edit> told;
    renderer->observeEdits([&](const Vst3Edit& edit) { told.push_back(edit); });
    plugIn.handler->beginEdit(103);
    plugIn.handler->performEdit(103, 0.25);
    plugIn.handler->performEdit(103, 0.5);
    plugIn.handler->performEdit(104, 1.0);
    plugIn.handler->endEdit(103);
    process(*renderer, {0.0F});
    process(*renderer, {0.0F});
    ASSERT_EQ(plugIn.blocks.size(), 2U);
    EXPECT_EQ(plugIn.blocks[0].changes, (std::vector<FakeChange>{{103, 0, 0.5}, {104, 0, 1.0}}));
    EXPECT_TRUE(plugIn.blocks[1].changes.empty());
    EXPECT_EQ(told.size(), 5U);
    EXPECT_EQ(told[2], (Vst3Edit{Vst3Edit::Kind::perform, 103, 0.5}));
}

TEST_F(Vst3RendererTest, editsThatNobodyObservesAreAccepted) {
    const auto renderer = make();
    EXPECT_EQ(plugIn.handler->performEdit(103, 0.25), Steinberg::kResultOk);
    process(*renderer, {0.0F});
    EXPECT_TRUE(plugIn.blocks.at(0).changes.empty());
}
