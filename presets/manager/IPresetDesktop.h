// SPDX-License-Identifier: GPL-3.0-or-later
// What the preset manager asks of the user's desktop. Tests hand in one of their own, so that no
// window opens and no recycle bin fills.
#pragma once

#include <string>

class IPresetDesktop {
public:
    IPresetDesktop() = default;
    virtual ~IPresetDesktop() = default;
    IPresetDesktop(const IPresetDesktop&) = delete;
    IPresetDesktop& operator=(const IPresetDesktop&) = delete;

    /// Moves a file, or a folder with everything in it, where the user can get it back from. False
    /// leaves it where it is. (path in UTF-8) [message thread]
    virtual bool moveToTrash(const std::string& path) = 0;
    /// Opens the system's file browser with a file selected. [message thread]
    virtual void reveal(const std::string& path) = 0;
};
