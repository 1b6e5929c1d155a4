// SPDX-License-Identifier: GPL-3.0-or-later
//
// How large an editor is.

#pragma once

/// In the window system's pixels.
struct ViewSize {
    int width;
    int height;

    bool operator==(const ViewSize&) const = default;
};
