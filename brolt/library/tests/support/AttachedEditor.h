// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's editor in a host's window, on the screen and ready for the user's hands.
#pragma once

#include "brolt/library/tests/support/EditorView.h"
#include "brolt/library/tests/support/EditorWindow.h"
#include "brolt/library/tests/support/HostFrame.h"
#include "brolt/library/tests/support/LibraryInstance.h"

class AttachedEditor {
public:
    /// It is a failure of the test when the window does not appear.
    explicit AttachedEditor(LibraryInstance& instance);
    /// Takes the view out of its window, and it is a failure when anything of it stays.
    ~AttachedEditor();
    AttachedEditor(const AttachedEditor&) = delete;
    AttachedEditor& operator=(const AttachedEditor&) = delete;

    HostFrame frame;
    EditorView view;
    EditorWindow window;

    /// Lets the view do what there is to do until the condition holds.
    [[nodiscard]] bool driveUntil(const std::function<bool()>& condition,
                                  std::chrono::milliseconds limit = std::chrono::seconds(10)) {
        return frame.driveUntil(condition, limit);
    }

    /// As slowly as a hand: with the press the window gets the keyboard. False where it does not,
    /// because a window manager has just given it to some other window.
    bool click(EditorPoint point, EditorWindow::Button button = EditorWindow::Button::left);
    void type(EditorKey key);

    /// Until the picture of an area is another one than before.
    [[nodiscard]] bool changes(EditorArea area, const EditorPicture& before,
                               std::chrono::milliseconds limit = std::chrono::seconds(10)) {
        return driveUntil([&] { return view.picture(area) != before; }, limit);
    }
};
