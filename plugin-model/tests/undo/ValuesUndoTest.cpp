// SPDX-License-Identifier: GPL-3.0-or-later
// What a values object records of gestures, records, recalls and blends.
#include "plugin-model/tests/StateTestKit.h"

#include "plugin-model/undo/QMSetPluginParameterCommand.h"
#include "plugin-model/undo/QMSetPluginPresetCommand.h"
#include "plugin-model/undo/QMSetSnapshotBlendCommand.h"

#include <gtest/gtest.h>

namespace {

using namespace stateTest;

class ValuesUndo : public testing::Test {
protected:
    ZulUndoManager& history() { return state.values.undoManager(); }

    State state;
    Values& values = state.values;
    const std::vector<double> a{0.0, 2.0, 10.0, 0.1};
    const std::vector<double> b{0.0, 8.0, 200.0, 0.9};
};

TEST_F(ValuesUndo, undoReturnsToTheValueBeforeTheTouchAndRedoToTheReleasedOne) {
    values.beginTouch(levelIndex);
    values.set(levelIndex, 6.0);
    values.set(levelIndex, 7.0);
    values.endTouch(levelIndex);
    history().undo();
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    history().redo();
    EXPECT_EQ(values.getValue(levelIndex), 7.0);
    EXPECT_EQ(history().undoDescription(), "Set Level");
}

TEST_F(ValuesUndo, nestedHoldsOfOneParameterAreOneStep) {
    values.beginTouch(levelIndex);
    values.beginTouch(levelIndex);
    values.set(levelIndex, 6.0);
    values.endTouch(levelIndex);
    values.set(levelIndex, 7.0);
    values.endTouch(levelIndex);
    EXPECT_EQ(history().undoCount(), 1u);
    history().undo();
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
}

TEST_F(ValuesUndo, overlappingGesturesOfTwoParametersAreOneStep) {
    values.beginTouch(levelIndex);
    values.set(levelIndex, 6.0);
    values.beginTouch(pitchIndex);
    values.set(pitchIndex, 99.0);
    values.endTouch(levelIndex);
    values.endTouch(pitchIndex);
    EXPECT_EQ(history().undoCount(), 1u);
    history().undo();
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_EQ(values.getValue(pitchIndex), 20.0);
}

TEST_F(ValuesUndo, insideAGestureUndoTakesBackItsLastCommandAlone) {
    values.beginTouch(levelIndex);
    values.set(levelIndex, 6.0);
    values.beginTouch(pitchIndex);
    values.set(pitchIndex, 99.0);
    history().undo();
    EXPECT_EQ(values.getValue(pitchIndex), 20.0);
    EXPECT_EQ(values.getValue(levelIndex), 6.0);
    values.endTouch(pitchIndex);
    values.endTouch(levelIndex);
    EXPECT_EQ(history().undoCount(), 1u);
}

TEST_F(ValuesUndo, aNewEditAfterAnUndoForgetsTheRedo) {
    values.edit(levelIndex, 6.0);
    history().undo();
    values.edit(pitchIndex, 30.0);
    EXPECT_FALSE(history().canRedo());
}

TEST_F(ValuesUndo, whatIsSetOutsideAGestureIsNotRecorded) {
    values.set(levelIndex, 6.0);
    EXPECT_FALSE(history().canUndo());
}

TEST_F(ValuesUndo, unpairedEndsOfATouchLeaveTheGroupsBalanced) {
    values.endTouch(levelIndex);
    values.beginTouch(levelIndex);
    EXPECT_FALSE(history().canUndo()) << "the count came from below: no gesture was announced";
    values.beginTouch(levelIndex);
    values.set(levelIndex, 6.0);
    values.endTouch(levelIndex);
    EXPECT_EQ(history().undoCount(), 1u);
    values.edit(pitchIndex, 30.0);
    EXPECT_EQ(history().undoCount(), 2u);
}

TEST_F(ValuesUndo, anAppliedRecordIsOneStepThatKeepsThePresetsIdentity) {
    QMGenericPreset record = values.makeRecord(StateExtent::parameters);
    record.values[fourCharCode("levl")] = 9.0;
    record.uniqueId = 77;
    values.setCurrentPresetId(5);
    ASSERT_TRUE(values.applyRecord(record, nullptr));
    EXPECT_EQ(history().undoDescription(), "Set Preset");
    history().undo();
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_EQ(values.currentPresetId(), 5u);
    history().redo();
    EXPECT_EQ(values.getValue(levelIndex), 9.0);
    EXPECT_EQ(values.currentPresetId(), 77u);
}

TEST_F(ValuesUndo, undoingARecallRestoresTheSettingsAndTheSnapshotThatWasLeft) {
    state.fillBoth(a, b);
    values.select(1);
    ASSERT_EQ(values.all(), b);
    history().undo();
    EXPECT_EQ(values.all(), a);
    EXPECT_EQ(values.activeSnapshot(), 0);
    EXPECT_EQ(values.snapshot(0), a);
    EXPECT_EQ(values.snapshot(1), b) << "the sound of the snapshot that was left is not lost";
    history().redo();
    EXPECT_EQ(values.all(), b);
    EXPECT_EQ(values.activeSnapshot(), 1);
    EXPECT_EQ(values.snapshot(0), a);
}

TEST_F(ValuesUndo, undoingARecallFromTheBlendKeepsWhatWasChangedAfterTheBlend) {
    state.fillBoth(a, b);
    values.setBlend(0.5f, 0.5f, nullptr);
    values.set(levelIndex, 9.5);
    const std::vector<double> before = values.all();
    values.select(1);
    history().undo();
    EXPECT_EQ(values.activeSnapshot(), QM::blendOfSnapshots);
    EXPECT_EQ(values.all(), before);
    EXPECT_EQ(values.blendCoordinate(false), 0.5f);
    EXPECT_EQ(values.snapshot(0), a);
    EXPECT_EQ(values.snapshot(1), b);
}

TEST_F(ValuesUndo, aBlendGestureIsOneStepToThePositionBefore) {
    state.fillBoth(a, b);
    values.setBlend(0.25f, 0.5f, nullptr);
    const std::vector<double> quarter = values.all();
    values.beginBlendGesture();
    values.setBlend(0.5f, 0.5f, nullptr);
    values.setBlend(0.75f, 0.5f, nullptr);
    values.endBlendGesture();
    const std::vector<double> threeQuarters = values.all();
    EXPECT_EQ(history().undoCount(), 1u);
    EXPECT_EQ(history().undoDescription(), "Set Snapshot Blend Amount");
    history().undo();
    EXPECT_EQ(values.blendCoordinate(false), 0.25f);
    EXPECT_EQ(values.all(), quarter);
    history().redo();
    EXPECT_EQ(values.blendCoordinate(false), 0.75f);
    EXPECT_EQ(values.all(), threeQuarters);
}

TEST_F(ValuesUndo, aGestureWhileABlendIsInForceRestoresTheBlendNotTheParameter) {
    state.fillBoth(a, b);
    values.setBlend(0.25f, 0.5f, nullptr);
    values.edit(levelIndex, 9.5);
    EXPECT_EQ(history().undoDescription(), "Set Snapshot Blend Amount");
    values.setBlend(0.75f, 0.5f, nullptr);
    history().undo();
    EXPECT_EQ(values.blendCoordinate(false), 0.25f);
    EXPECT_NE(values.getValue(levelIndex), 9.5);
}

TEST_F(ValuesUndo, withoutAHandlerAReplayDoesNothing) {
    state.fillBoth(a, b);
    values.edit(levelIndex, 3.0);
    values.select(1);
    values.setBlend(0.25f, 0.5f, nullptr);
    values.beginBlendGesture();
    values.setBlend(0.5f, 0.5f, nullptr);
    values.endBlendGesture();
    const std::vector<double> before = values.all();
    values.setUndoHandler(nullptr);
    while (history().canUndo())
        history().undo();
    EXPECT_EQ(values.all(), before);
    EXPECT_FALSE(history().canRedo());
}

TEST(UndoCommands, describeThemselves) {
    State state;
    EXPECT_EQ(QM::QMSetPluginParameterCommand(state.values, pitchIndex, 1.0).description(),
              "Set Pitch");
    EXPECT_EQ(QM::QMSetPluginParameterCommand(state.values, pitchIndex, 1.0).redoDescription(),
              "Set Pitch");
    EXPECT_EQ(QM::QMSetPluginPresetCommand(state.values, {}, -1, 0).description(), "Set Preset");
    EXPECT_EQ(QM::QMSetSnapshotBlendCommand(state.values, 0.5f).description(),
              "Set Snapshot Blend Amount");
    EXPECT_EQ(ZulCommand(&state.values).description(), "");
}

TEST(UndoCommands, printTheirLines) {
    State state;
    testing::internal::CaptureStderr();
    QM::QMSetPluginParameterCommand(state.values, pitchIndex, 12.5).print();
    QM::QMSetPluginPresetCommand(state.values, {}, -1, 0).print();
    QM::QMSetSnapshotBlendCommand(state.values, 0.5f).print();
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "                       Set Pitch [    2] Value: 12.500000\n"
              "                      Set Preset\n"
              "       Set Snapshot Blend Amount\t0.500000\n");

    testing::internal::CaptureStderr();
    ZulCommand(&state.values).print();
    const std::string line = testing::internal::GetCapturedStderr();
    const std::string beginning = "Base ZulCommand with Direct Object ";
    EXPECT_EQ(line.substr(0, beginning.size()), beginning);
    EXPECT_GT(line.size(), beginning.size() + 1) << "the target's address follows";
    EXPECT_EQ(line.back(), '\n');
}

TEST(UndoCommands, followATargetThatIsReplaced) {
    State first;
    State second;
    first.values.edit(levelIndex, 9.0);
    first.values.undoManager().undo();
    first.values.edit(pitchIndex, 100.0);
    first.values.undoManager().retarget(&first.values, &second.values);
    second.values.set(pitchIndex, 300.0);
    first.values.undoManager().undo();
    EXPECT_EQ(second.values.getValue(pitchIndex), 20.0);
    EXPECT_EQ(first.values.getValue(pitchIndex), 100.0);
}

} // namespace
