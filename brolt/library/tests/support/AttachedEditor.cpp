// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/AttachedEditor.h"

using Steinberg::kResultOk;

AttachedEditor::AttachedEditor(LibraryInstance& instance)
    : view(instance.controller())
    , window(view.size()) {
    EXPECT_EQ(view.plugView().setFrame(&frame), kResultOk);
    EXPECT_EQ(view.plugView().attached(window.handle(), EditorWindow::platformType()), kResultOk);
    EXPECT_TRUE(driveUntil([&] { return window.showsChild(); }));
}

bool AttachedEditor::click(EditorPoint point, EditorWindow::Button button) {
    constexpr std::chrono::milliseconds patience(500);
    const auto hasKeyboard = [&] { return window.childHasKeyboard(); };
    window.press(point, button);
    (void)driveUntil(hasKeyboard, patience);
    frame.drive(); // the plug-in hears of it
    window.release(point, button);
    frame.drive();
    // Some controls take it when the button comes up.
    return driveUntil(hasKeyboard, patience);
}

void AttachedEditor::type(EditorKey key) {
    window.keyDown(key);
    frame.drive();
    window.keyUp(key);
    frame.drive();
}

AttachedEditor::~AttachedEditor() {
    EXPECT_EQ(view.plugView().removed(), kResultOk);
    EXPECT_EQ(window.children(), 0U);
    EXPECT_EQ(view.plugView().setFrame(nullptr), kResultOk);
    EXPECT_TRUE(frame.isLetGo());
}
