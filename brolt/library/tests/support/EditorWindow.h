// SPDX-License-Identifier: GPL-3.0-or-later
// A host's window for an editor, in the window system's own terms, and the events that a user's
// hands would make in the plug-in's window inside it.
#pragma once

#include "brolt/library/tests/support/EditorView.h"

#include <memory>
#include <string>
#include <vector>

/// By Windows' codes of keys; digits are their characters.
enum class EditorKey : unsigned char { enter = 0x0D, space = 0x20, up = 0x26 };

[[nodiscard]] inline EditorKey keyOfDigit(char digit) {
    return static_cast<EditorKey>(digit);
}

class EditorWindow {
public:
    enum class Button { left, right };

    struct HeardKey {
        EditorKey key;
        bool isDown;

        bool operator==(const HeardKey&) const = default;
    };

    /// Why there can be no window here; empty where there can.
    [[nodiscard]] static std::string obstacle();
    /// Why a test must not type and click here: the screen may be somebody's. Empty where it may.
    [[nodiscard]] static std::string obstacleToInput();

    /// Throws std::runtime_error where there is an obstacle.
    explicit EditorWindow(EditorSize size);
    ~EditorWindow();
    EditorWindow(const EditorWindow&) = delete;
    EditorWindow& operator=(const EditorWindow&) = delete;

    /// As the plug-in is told of it.
    [[nodiscard]] void* handle() const;
    [[nodiscard]] static Steinberg::FIDString platformType();

    /// How many windows there are in it.
    [[nodiscard]] std::size_t children() const;
    /// Whether the plug-in's is there and can be seen.
    [[nodiscard]] bool showsChild() const;
    /// Of the plug-in's.
    [[nodiscard]] EditorSize childSize() const;

    /// Whether keys that are typed would go to the plug-in's.
    [[nodiscard]] bool childHasKeyboard() const;

    // Events in the plug-in's window. They wait there until it is its turn.

    void press(EditorPoint point, Button button = Button::left);
    void drag(EditorPoint point, Button button = Button::left);
    void release(EditorPoint point, Button button = Button::left);
    /// One notch away from the user.
    void wheelUp(EditorPoint point);
    void keyDown(EditorKey key);
    void keyUp(EditorKey key);

    /// Keys that arrived at the host's window.
    [[nodiscard]] std::vector<HeardKey> heardKeys();

private:
    class Native;

    std::unique_ptr<Native> native;
};
