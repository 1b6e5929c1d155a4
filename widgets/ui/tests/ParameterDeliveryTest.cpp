// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of parameters on their way from the plug-in to the widgets.
#include "widgets/ui/tests/support/TableEditor.h"

#include <thread>

namespace {

class ParameterDelivery : public EditorTest {
protected:
    void SetUp() override {
        addControl("afre", {0, 30, 80, 100}, ProbeTypes::knob);
        addControl("gain", {100, 0, 80, 100});
        describe("curv", ProbeTypes::threeSlots,
                 {fourCharCode("gain"), fourCharCode("attk"), fourCharCode("rlse")});
        place("curv", {200, 0, 100, 100});
        open();
        gain = &editor->control("gain");
        curve = &editor->control("curv");
        gain->forget();
        curve->forget();
    }

    ProbeControl* gain = nullptr;
    ProbeControl* curve = nullptr;
};

TEST_F(ParameterDelivery, bringsAChangeToEveryWidgetThatShowsTheParameter) {
    instance.set("gain", 3.0);
    EXPECT_EQ(gain->values[0], 3.0);
    EXPECT_EQ(curve->values, (std::vector<double>{3.0, 2.0, 140.0}));
    instance.set("afre", 55.0);
    EXPECT_EQ(editor->control("afre").values[0], 55.0);
    EXPECT_EQ(editor->widget<ProbeReadout>("Afre").values[0], 55.0);
}

TEST_F(ParameterDelivery, tellsTheHostOnceForEachChange) {
    instance.set("gain", 3.0);
    instance.set("rlse", 20.0);
    instance.set("mbyp", 1.0);
    EXPECT_EQ(host.changes, (std::vector<std::int32_t>{14, 10, 0}));
}

TEST_F(ParameterDelivery, letsWidgetsTakeTheValueBeforeTheyDraw) {
    instance.set("gain", 3.0);
    EXPECT_EQ(gain->shown, 1);
    EXPECT_EQ(gain->shownUndeferred, 0);
    EXPECT_EQ(gain->flushes, 1);
    EXPECT_FALSE(gain->isDeferringUpdates());
}

TEST_F(ParameterDelivery, drawsAWidgetOnceForABatch) {
    const std::array<std::int32_t, 3> indices{14, 9, 10};
    const std::array<double, 3> values{0.0, 2.0, 140.0};
    editor->parametersChanged(3, indices.data(), values.data());
    EXPECT_EQ(curve->shown, 3);
    EXPECT_EQ(curve->flushes, 1);
    EXPECT_EQ(host.changes, (std::vector<std::int32_t>{14, 9, 10}));
}

TEST_F(ParameterDelivery, showsWhatTheParameterIsNowAndNotAnOlderNotice) {
    instance.set("gain", 3.0);
    editor->parameterChanged(14, -5.0);
    EXPECT_EQ(gain->values[0], 3.0);
}

TEST_F(ParameterDelivery, showsTheNoticeOfAnInstanceThatIsGone) {
    instance.remove();
    editor->parameterChanged(14, -5.0);
    EXPECT_EQ(gain->values[0], -5.0);
}

TEST_F(ParameterDelivery, leavesAHeldSlotAloneAndCatchesUpWhenItIsLetGo) {
    gain->beginTouch(0);
    instance.set("gain", 3.0);
    EXPECT_EQ(gain->values[0], 0.0);
    EXPECT_EQ(curve->values[0], 3.0) << "shows the same parameter, and nobody holds it";
    gain->endTouch(0);
    EXPECT_EQ(gain->values[0], 3.0);
    EXPECT_EQ(gain->shownUndeferred, 0);
    EXPECT_EQ(gain->flushes, 1);
}

TEST_F(ParameterDelivery, leavesTheHeldSlotAloneButNotTheOthersOfTheWidget) {
    curve->beginTouch(0);
    instance.set("gain", 3.0);
    instance.set("rlse", 20.0);
    EXPECT_EQ(curve->values, (std::vector<double>{0.0, 2.0, 20.0}));
    curve->endTouch(0);
    EXPECT_EQ(curve->values, (std::vector<double>{3.0, 2.0, 20.0}));
}

TEST_F(ParameterDelivery, doesNothingAtTheEndOfAGestureThatMissedNothing) {
    gain->beginTouch(0);
    gain->endTouch(0);
    EXPECT_EQ(gain->shown, 0);
    EXPECT_EQ(gain->flushes, 0);
}

TEST_F(ParameterDelivery, bringsChangesOfOtherThreadsAsOneBatch) {
    std::thread([this] {
        for (int i = 1; i <= 100; ++i)
            instance.set("gain", i * 0.1);
        instance.set("attk", 7.0);
    }).join();
    EXPECT_EQ(gain->shown, 0) << "not on that thread";
    EXPECT_TRUE(runLoopUntil([this] { return gain->shown > 0; }));
    EXPECT_EQ(gain->shown, 1);
    EXPECT_EQ(gain->values[0], 10.0);
    EXPECT_EQ(curve->shown, 2);
    EXPECT_EQ(curve->flushes, 1);
    EXPECT_EQ(host.changes, (std::vector<std::int32_t>{9, 14}));
}

TEST_F(ParameterDelivery, ignoresParametersThatThereAreNot) {
    editor->parameterChanged(-1, 1.0);
    editor->parameterChanged(15, 1.0);
    EXPECT_EQ(gain->shown, 0);
}

TEST_F(ParameterDelivery, hearsNothingMoreWhenTheEditorHasGone) {
    editor.reset();
    instance.set("gain", 3.0);
    std::thread([this] { instance.set("gain", 4.0); }).join();
    EXPECT_TRUE(runPendingMessages());
    EXPECT_TRUE(host.changes.empty());
}

TEST_F(ParameterDelivery, answersQuestionsFromTheInstance) {
    instance.set("gain", 3.0);
    EXPECT_TRUE(editor->belongsTo(&instance.get()));
    EXPECT_FALSE(editor->belongsTo(nullptr));
    EXPECT_EQ(editor->plugInName(), instance.get().displayName());
    EXPECT_EQ(editor->parameterCount(), 15);
    EXPECT_EQ(editor->parameterID(14), fourCharCode("gain"));
    EXPECT_EQ(editor->parameterIndex(fourCharCode("gain")), 14);
    EXPECT_EQ(editor->parameterName(14), "Output Gain");
    EXPECT_EQ(editor->parameterUnit(14), "dB");
    EXPECT_EQ(editor->parameterText(3, 1.0), "Enabled");
    EXPECT_EQ(editor->parameterValue(14), 3.0);
    EXPECT_EQ(editor->parameterMinimum(9), 1.0);
    EXPECT_EQ(editor->parameterMaximum(9), 100.0);
    EXPECT_EQ(editor->parameterDefault(9), 2.0);
}

TEST_F(ParameterDelivery, answersNeutrallyOutOfRange) {
    EXPECT_EQ(editor->parameterID(15), 0U);
    EXPECT_EQ(editor->parameterID(-1), 0U);
    EXPECT_EQ(editor->parameterIndex(fourCharCode("what")), -1);
    EXPECT_EQ(editor->parameterName(15), "");
    EXPECT_EQ(editor->parameterText(-1, 1.0), "");
    EXPECT_EQ(editor->parameterValue(15), 0.0);
}

TEST_F(ParameterDelivery, answersNeutrallyWhenTheInstanceIsGone) {
    instance.remove();
    EXPECT_FALSE(editor->belongsTo(nullptr));
    EXPECT_EQ(editor->plugInName(), "");
    EXPECT_EQ(editor->parameterCount(), 0);
    EXPECT_EQ(editor->parameterID(0), 0U);
    EXPECT_EQ(editor->parameterIndex(fourCharCode("gain")), -1);
    EXPECT_EQ(editor->parameterName(0), "");
    EXPECT_EQ(editor->parameterUnit(1), "");
    EXPECT_EQ(editor->parameterText(3, 1.0), "");
    EXPECT_EQ(editor->parameterValue(14), 0.0);
    EXPECT_EQ(editor->parameterMaximum(14), 0.0);
    editor->setParameterFromUI(14, 1.0);
    editor->tick();
    EXPECT_TRUE(editor->writtenByUI.empty());
}

TEST_F(ParameterDelivery, findsTheParameterUnderAPoint) {
    describe("osl1", ProbeTypes::label, {});
    place("osl1", {0, 200, 50, 50});
    open();
    editor->setMagnification(1.0F);
    editor->setVisible(true);
    EXPECT_EQ(editor->parameterAt({140, 50}), 14);
    EXPECT_EQ(editor->parameterAt({40, 80}), 1);
    EXPECT_EQ(editor->parameterAt({40, 20}), 1) << "its readout";
    EXPECT_EQ(editor->parameterAt({250, 50}), 14) << "slot 0 of several";
    EXPECT_EQ(editor->parameterAt({25, 225}), -1) << "a label";
    EXPECT_EQ(editor->parameterAt({90, 50}), -1);
    EXPECT_EQ(editor->parameterAt({-10, -10}), -1);
    juce::Component inside;
    inside.setBounds(10, 10, 20, 20);
    editor->control("gain").addAndMakeVisible(inside);
    EXPECT_EQ(editor->parameterAt({120, 20}), 14) << "a child of the control";
}

} // namespace
