// SPDX-License-Identifier: GPL-3.0-or-later
// Repaints windows where no vertical blank is ever reported. On Windows the toolkit paints what has
// changed after a vertical blank of the display, and waits for it as long as it takes: under Wine,
// and on some remote desktops, for ever, and an editor stands still after its first picture.
//
// Fifty times a second, while anybody holds one of these, it is looked whether a blank has come in
// the last tenth of a second, and if not every window is painted. Elsewhere than on Windows the
// toolkit paints by a timer of its own, and these do nothing.
#pragma once

class RepaintWithoutVerticalBlank {
public:
    /// For each editor's view. [message thread]
    RepaintWithoutVerticalBlank();
    /// [message thread]
    ~RepaintWithoutVerticalBlank();
    RepaintWithoutVerticalBlank(const RepaintWithoutVerticalBlank&) = delete;
    RepaintWithoutVerticalBlank& operator=(const RepaintWithoutVerticalBlank&) = delete;

    /// Whether anybody looks after blanks. [message thread]
    [[nodiscard]] static bool isWatching();
};
