// SPDX-License-Identifier: GPL-3.0-or-later
// Whether vertical blanks have stopped coming. Times are milliseconds of a clock that begins
// anywhere, wraps, and is the caller's.
#pragma once

#include <cstdint>

class VerticalBlankWatch {
public:
    /// A display with 24 pictures a second has two in this time.
    static constexpr std::uint32_t patienceMs = 100;

    void blankCame(std::uint32_t now) {
        lastBlank = now;
        isWaiting = true;
    }

    /// To be asked again and again. Waiting begins with the first question for which there are
    /// windows: before that none can come.
    [[nodiscard]] bool haveBlanksStopped(std::uint32_t now, bool areThereWindows) {
        if (areThereWindows && !isWaiting)
            blankCame(now);
        isWaiting = areThereWindows;
        return isWaiting && now - lastBlank >= patienceMs;
    }

private:
    std::uint32_t lastBlank = 0; ///< or when waiting for one began
    bool isWaiting = false;
};
