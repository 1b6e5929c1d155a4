// SPDX-License-Identifier: GPL-3.0-or-later
// Automation in process calls: nothing in realtime, where changes come through the controller; in
// offline rendering the last point of each block.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <public.sdk/source/vst/hosting/parameterchanges.h>

#include <cmath>
#include <limits>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

/// Queues as a host fills them: pairs of an offset in the block and a normalised value.
class Changes : public Vst::ParameterChanges {
public:
    Changes& add(Vst::ParamID id, const std::vector<std::pair<int32, double>>& points) {
        int32 index = 0;
        Vst::IParamValueQueue* const queue = addParameterData(id, index);
        for (const auto& [offset, value] : points)
            queue->addPoint(offset, value, index);
        return *this;
    }
};

/// Says it has queues, and has none.
class HollowChanges : public HostObject<Vst::IParameterChanges> {
public:
    int32 count = 3;

    int32 PLUGIN_API getParameterCount() override { return count; }

    Vst::IParamValueQueue* PLUGIN_API getParameterData(int32) override { return nullptr; }

    Vst::IParamValueQueue* PLUGIN_API addParameterData(const Vst::ParamID&, int32&) override {
        return nullptr;
    }
};

class AutomationMode : public ::testing::Test {
protected:
    LibraryInstance instance;
    Changes changes;
    Audio input = testAudio(2, 512);

    void start(int32 mode) { instance.start({.mode = mode}); }

    /// One block with the changes.
    Audio render() { return instance.render(input, 512, &changes); }

    /// What the library prints meanwhile.
    std::string printed() {
        ::testing::internal::CaptureStdout();
        (void)render();
        return ::testing::internal::GetCapturedStdout();
    }
};

} // namespace

TEST_F(AutomationMode, inRealtimeAndPrefetchIgnoresTheQueues) {
    for (const int32 mode : {Vst::kRealtime, Vst::kPrefetch}) {
        start(mode);
        changes.add(14, {{0, 0.9}, {100, 0.1}});
        ModelTwin twin;
        EXPECT_TRUE(sameBits(render(), twin.render(input)));
        EXPECT_EQ(instance.normalised(14), 0.5);
        EXPECT_EQ(printed(), "");
        instance.stop();
        changes.clearQueue();
    }
}

TEST_F(AutomationMode, offlineAppliesTheLastPointOfEachQueue) {
    start(Vst::kOffline);
    changes.add(14, {{0, 0.9}, {100, 0.1}, {511, 0.625}}).add(3, {{5, 1.0}, {6, 0.0}});
    (void)render();
    EXPECT_EQ(instance.normalised(14), 0.625);
    EXPECT_EQ(instance.normalised(3), 0.0);
}

TEST_F(AutomationMode, offlineIsHeardFromTheBlocksBeginning) {
    start(Vst::kOffline);
    ModelTwin twin;
    Audio library = instance.render(input);
    Audio model = twin.render(input);
    changes.add(14, {{400, 0.625}});
    append(library, render());
    twin.setNormalised(14, 0.625);
    append(model, twin.render(input));
    EXPECT_TRUE(sameBits(library, model));
}

TEST_F(AutomationMode, offlinePrintsEachChange) {
    start(Vst::kOffline);
    changes.add(14, {{0, 0.1}, {511, 0.625}}).add(13, {{0, 0.123456}}).add(7, {{0, 0.0}});
    EXPECT_EQ(printed(), "QMShellVST3::process : 00000014 -> 6\n"
                         "QMShellVST3::process : 00000013 -> 12.35\n"
                         "QMShellVST3::process : 00000007 -> 0\n");
}

TEST_F(AutomationMode, offlineTakesFourCharacterIdentifiers) {
    start(Vst::kOffline);
    changes.add(fourCharCode("gain"), {{0, 0.25}});
    // 'gain' is 0x6761696E.
    EXPECT_EQ(printed(), "QMShellVST3::process : 1734437230 -> -12\n");
    EXPECT_EQ(instance.normalised(14), 0.25);
}

TEST_F(AutomationMode, offlineSkipsWhatMakesNoSense) {
    start(Vst::kOffline);
    changes.add(15, {{0, 0.9}})
        .add(0xFFFFFFFF, {{0, 0.9}})
        .add(14, {})
        .add(13, {{0, std::nan("")}})
        .add(1, {{0, 0.5}});
    const Audio output = render();
    EXPECT_EQ(instance.normalised(14), 0.5);
    EXPECT_EQ(instance.normalised(13), 1.0);
    EXPECT_NEAR(instance.normalised(1), 0.5, 1e-12);
    for (const float sample : output[0])
        ASSERT_TRUE(std::isfinite(sample));
}

TEST_F(AutomationMode, offlineClampsWhatIsOutOfRange) {
    start(Vst::kOffline);
    changes.add(14, {{0, 17.0}}).add(13, {{0, -3.0}}).add(9, {{0, 2.0}});
    (void)render();
    EXPECT_EQ(instance.normalised(14), 1.0);
    EXPECT_EQ(instance.normalised(13), 0.0);
    EXPECT_NEAR(instance.normalised(9), 1.0, 1e-12);
}

TEST_F(AutomationMode, offlineDoesWithoutQueues) {
    start(Vst::kOffline);
    for (const int32 count : {3, 0, -1}) {
        HollowChanges hollow;
        hollow.count = count;
        ModelTwin twin;
        EXPECT_TRUE(sameBits(instance.render(input, 512, &hollow), twin.render(input)));
        instance.stop();
        start(Vst::kOffline);
    }
}

// Automation belongs to audio: a call that only passes parameters along is none.
TEST_F(AutomationMode, offlineWithoutFramesAppliesNothing) {
    start(Vst::kOffline);
    changes.add(14, {{0, 0.9}});
    AudioBlock block(2, 0);
    block.data.inputParameterChanges = &changes;
    EXPECT_EQ(instance.process(block), kResultOk);
    EXPECT_EQ(instance.normalised(14), 0.5);
}

TEST_F(AutomationMode, offlineHasNoInfluenceOnTheSoundOtherwise) {
    const Audio longer = testAudio(2, 6000);
    instance.start({.mode = Vst::kOffline});
    ModelTwin twin;
    EXPECT_TRUE(sameBits(instance.render(longer), twin.render(longer)));
    ASSERT_EQ(instance.arrange(1), kResultOk);
    ModelTwin mono(1);
    const Audio other = testAudio(1, 6000);
    EXPECT_TRUE(sameBits(instance.render(other), mono.render(other)));
}

TEST_F(AutomationMode, canBeChangedBetweenActivations) {
    start(Vst::kOffline);
    changes.add(14, {{0, 0.625}});
    (void)render();
    instance.stop();
    start(Vst::kRealtime);
    changes.clearQueue();
    changes.add(14, {{0, 0.25}});
    (void)render();
    EXPECT_EQ(instance.normalised(14), 0.625);
}
