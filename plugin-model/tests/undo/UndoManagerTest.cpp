// SPDX-License-Identifier: GPL-3.0-or-later
// The history by itself: groups, stacks, replays.
#include "plugin-model/tests/undo/UndoTestCommands.h"

#include <gtest/gtest.h>

namespace {

using undoTest::Editor;
using undoTest::Failing;

class UndoManager : public testing::Test {
protected:
    [[nodiscard]] int number(const std::string& name) { return editor.document.numbers[name]; }

    ZulUndoManager manager;
    Editor editor{manager};
};

TEST_F(UndoManager, withNothingRecordedThereIsNothingToDo) {
    EXPECT_FALSE(manager.canUndo());
    EXPECT_FALSE(manager.canRedo());
    EXPECT_EQ(manager.undoDescription(), "Unknown");
    EXPECT_EQ(manager.redoDescription(), "Unknown");
    manager.undo();
    manager.redo();
    EXPECT_EQ(manager.undoCount(), 0u);
    EXPECT_EQ(manager.redoCount(), 0u);
}

TEST_F(UndoManager, undoTakesBackAndRedoMakesAgain) {
    editor.set("a", 1);
    editor.set("a", 2);
    EXPECT_EQ(manager.undoCount(), 2u);
    manager.undo();
    EXPECT_EQ(number("a"), 1);
    manager.undo();
    EXPECT_EQ(number("a"), 0);
    EXPECT_FALSE(manager.canUndo());
    EXPECT_EQ(manager.redoCount(), 2u);
    manager.redo();
    manager.redo();
    EXPECT_EQ(number("a"), 2);
    EXPECT_EQ(manager.undoCount(), 2u);
    EXPECT_FALSE(manager.canRedo());
}

TEST_F(UndoManager, aNewEditForgetsTheRedoHistory) {
    editor.set("a", 1);
    manager.undo();
    ASSERT_TRUE(manager.canRedo());
    editor.set("b", 1);
    EXPECT_FALSE(manager.canRedo());
    EXPECT_EQ(editor.document.livingCommands, 1) << "the forgotten command is destroyed";
}

TEST_F(UndoManager, aGroupIsOneStepAndReplaysInReverse) {
    manager.beginGroup();
    editor.set("a", 1);
    editor.set("a", 2);
    manager.beginGroup();
    editor.set("b", 3);
    manager.endGroup();
    EXPECT_EQ(manager.undoCount(), 1u) << "an open group counts as one step";
    manager.endGroup();
    EXPECT_EQ(manager.undoCount(), 1u);
    manager.undo();
    EXPECT_EQ(number("a"), 0) << "the older of two commands for one thing has the last word";
    EXPECT_EQ(number("b"), 0);
    manager.redo();
    EXPECT_EQ(number("a"), 2);
    EXPECT_EQ(number("b"), 3);
}

TEST_F(UndoManager, anEmptyGroupIsNoStep) {
    manager.beginGroup();
    EXPECT_FALSE(manager.canUndo());
    manager.undo();
    manager.endGroup();
    EXPECT_EQ(manager.undoCount(), 0u);
}

TEST_F(UndoManager, anEndWithoutABeginDoesNothing) {
    manager.endGroup();
    editor.set("a", 1);
    EXPECT_EQ(manager.undoCount(), 1u);
    manager.beginGroup();
    editor.set("a", 2);
    manager.endGroup();
    EXPECT_EQ(manager.undoCount(), 2u);
}

TEST_F(UndoManager, insideAnOpenGroupUndoTakesBackItsLastCommandAlone) {
    editor.set("before", 1);
    manager.beginGroup();
    editor.set("a", 1);
    editor.set("b", 2);
    manager.undo();
    EXPECT_EQ(number("b"), 0);
    EXPECT_EQ(number("a"), 1);
    EXPECT_EQ(manager.redoCount(), 1u);
    manager.endGroup();
    EXPECT_EQ(manager.undoCount(), 2u) << "the rest of the group is one step";
    manager.undo();
    EXPECT_EQ(number("a"), 0);
    EXPECT_EQ(number("before"), 1);
}

TEST_F(UndoManager, insideAnEmptyOpenGroupUndoLeavesTheStackAlone) {
    editor.set("a", 1);
    manager.beginGroup();
    manager.undo();
    manager.endGroup();
    EXPECT_EQ(number("a"), 1);
    EXPECT_EQ(manager.undoCount(), 1u);
}

TEST_F(UndoManager, aRedoInsideAnOpenGroupJoinsTheGroup) {
    editor.set("a", 1);
    manager.undo();
    manager.beginGroup();
    manager.redo();
    EXPECT_EQ(number("a"), 1);
    manager.endGroup();
    manager.undo();
    EXPECT_EQ(number("a"), 0);
}

TEST_F(UndoManager, whileSuspendedEditsLeaveNoTrace) {
    editor.set("a", 1);
    manager.undo();
    manager.suspend();
    manager.suspend();
    editor.set("b", 1);
    manager.resume();
    EXPECT_TRUE(manager.isSuspended());
    editor.set("b", 2);
    EXPECT_EQ(manager.undoCount(), 0u);
    EXPECT_EQ(manager.redoCount(), 1u) << "a dropped command does not void the redo history";
    EXPECT_EQ(editor.document.livingCommands, 1);
    manager.resume();
    editor.set("b", 3);
    EXPECT_EQ(manager.undoCount(), 1u);
}

TEST_F(UndoManager, clearsEachStackByItself) {
    editor.set("a", 1);
    editor.set("a", 2);
    manager.undo();
    manager.clearUndo();
    EXPECT_EQ(manager.undoCount(), 0u);
    EXPECT_EQ(manager.redoCount(), 1u);
    manager.clearRedo();
    EXPECT_EQ(manager.redoCount(), 0u);
    EXPECT_EQ(editor.document.livingCommands, 0);
    editor.set("a", 3);
    manager.undo();
    editor.set("a", 4);
    manager.undo();
    manager.clear();
    EXPECT_EQ(editor.document.livingCommands, 0);
}

TEST_F(UndoManager, describesTheNewestCommandOfTheOpenGroupOrTheStack) {
    editor.set("a", 1);
    EXPECT_EQ(manager.undoDescription(), "Set a");
    manager.beginGroup();
    EXPECT_EQ(manager.undoDescription(), "Unknown") << "the open group has nothing yet";
    editor.set("b", 1);
    editor.set("c", 1);
    EXPECT_EQ(manager.undoDescription(), "Set c");
    manager.endGroup();
    manager.undo();
    EXPECT_EQ(manager.redoDescription(), "Set b") << "the inverse commands lie the other way round";
}

TEST_F(UndoManager, attachesEachAddedCommand) {
    editor.set("a", 1);
    EXPECT_EQ(editor.document.attached, 1);
    manager.suspend();
    editor.set("a", 2);
    EXPECT_EQ(editor.document.attached, 1);
}

TEST_F(UndoManager, staysUsableWhenACommandThrows) {
    editor.set("a", 1);
    manager.add(std::make_unique<Failing>());
    EXPECT_THROW(manager.undo(), std::runtime_error);
    manager.undo();
    EXPECT_EQ(number("a"), 0);

    manager.beginGroup();
    manager.add(std::make_unique<Failing>());
    EXPECT_THROW(manager.undo(), std::runtime_error);
    editor.set("a", 5);
    manager.endGroup();
    manager.undo();
    EXPECT_EQ(number("a"), 0);
}

TEST(UndoManagerMemory, aGroupThatCannotBeHadDropsTheCommandWithALine) {
    class WithoutMemory : public ZulUndoManager {
        [[nodiscard]] std::unique_ptr<Group> createGroup() const override { return nullptr; }
    };

    WithoutMemory manager;
    Editor editor(manager);
    testing::internal::CaptureStderr();
    editor.set("a", 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "....Dropping command\n");
    EXPECT_EQ(editor.document.livingCommands, 0);
    EXPECT_FALSE(manager.canUndo());
}

TEST(UndoManagerMemory, dyingItDestroysEverythingRecorded) {
    undoTest::Document document;
    {
        ZulUndoManager manager;
        for (int i = 0; i < 3; ++i)
            manager.add(std::make_unique<undoTest::SetNumber>(document, "a", i));
        manager.undo();
        manager.beginGroup();
        manager.add(std::make_unique<undoTest::SetNumber>(document, "a", 9));
        EXPECT_GT(document.livingCommands, 0);
    }
    EXPECT_EQ(document.livingCommands, 0);
}

} // namespace
