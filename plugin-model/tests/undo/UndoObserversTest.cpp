// SPDX-License-Identifier: GPL-3.0-or-later
// Who is told of an undo and a redo, and what a replay may do.
#include "plugin-model/tests/undo/UndoTestCommands.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using undoTest::Editor;

class Observer : public ZulUndoObserver {
public:
    Observer(std::vector<std::string>& eventList, Editor& watchedEditor)
        : events(eventList)
        , editor(watchedEditor) {}

    void undoWillStart() override { note("undo starts"); }

    void undoDone() override { note("undo done"); }

    void redoWillStart() override { note("redo starts"); }

    void redoDone() override {
        note("redo done");
        whenRedone();
    }

    std::function<void()> whenRedone = [] {};

private:
    void note(const std::string& text) {
        events.push_back(text + " at " + std::to_string(editor.document.numbers["a"]));
    }

    std::vector<std::string>& events;
    Editor& editor;
};

class UndoObservers : public testing::Test {
protected:
    using Events = std::vector<std::string>;

    ZulUndoManager manager;
    Editor editor{manager};
    Events events;
    Observer observer{events, editor};
};

TEST_F(UndoObservers, areToldBeforeAndAfterEachUndoAndRedo) {
    manager.addObserver(observer);
    editor.set("a", 1);
    manager.undo();
    manager.redo();
    EXPECT_EQ(events,
              (Events{"undo starts at 1", "undo done at 0", "redo starts at 0", "redo done at 1"}));
}

TEST_F(UndoObservers, areToldOfAnUndoInsideAGroup) {
    manager.addObserver(observer);
    manager.beginGroup();
    manager.undo();
    EXPECT_TRUE(events.empty()) << "nothing was undone";
    editor.set("a", 1);
    manager.undo();
    EXPECT_EQ(events, (Events{"undo starts at 1", "undo done at 0"}));
}

TEST_F(UndoObservers, hearNothingWhenThereIsNothingToUndo) {
    manager.addObserver(observer);
    manager.undo();
    manager.redo();
    EXPECT_TRUE(events.empty());
}

TEST_F(UndoObservers, areToldOnceAndNotAfterTheyLeft) {
    manager.addObserver(observer);
    manager.addObserver(observer);
    observer.whenRedone = [&] { manager.removeObserver(observer); };
    editor.set("a", 1);
    manager.undo();
    manager.redo();
    manager.undo();
    EXPECT_EQ(events.size(), 4u);
}

TEST_F(UndoObservers, aCommandCannotUndoWhileItIsReplayed) {
    class UndoesAgain : public ZulCommand {
    public:
        UndoesAgain()
            : ZulCommand(nullptr) {}

        void execute(ZulUndoManager& manager) override {
            manager.undo();
            manager.redo();
        }
    };

    editor.set("a", 1);
    manager.add(std::make_unique<UndoesAgain>());
    manager.undo();
    EXPECT_EQ(editor.document.numbers["a"], 1) << "only the newest step was taken back";
    EXPECT_EQ(manager.undoCount(), 1u);
}

} // namespace
