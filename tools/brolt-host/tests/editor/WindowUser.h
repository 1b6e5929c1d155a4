// SPDX-License-Identifier: GPL-3.0-or-later
//
// The user of a window, and the window manager between the two: sees the title and the size, drags
// edges, clicks on the close button. Over a connection of its own where there are connections.

#pragma once

#include "tools/brolt-host/editor/EditorWindow.h"

#include <memory>
#include <string>

class WindowUser {
public:
    virtual ~WindowUser() = default;

    [[nodiscard]] virtual std::string title() const = 0;
    [[nodiscard]] virtual ViewSize contentSize() const = 0;
    [[nodiscard]] virtual bool seesWindow() const = 0;
    /// Whether there is an edge to drag.
    [[nodiscard]] virtual bool mayResize() const = 0;
    virtual void drag(ViewSize size) = 0;
    virtual void clickClose() = 0;
};

std::unique_ptr<WindowUser> makeWindowUser(const EditorWindow& window);
