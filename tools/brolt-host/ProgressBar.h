// SPDX-License-Identifier: GPL-3.0-or-later
//
// A bar on the terminal while a render runs. It is drawn on standard error, and only where that is
// a terminal: logs and pipes stay free of it.

#pragma once

#include <chrono>
#include <cstdint>
#include <string>

class ProgressBar {
public:
    /// `total` is what update counts up to. Without `wanted`, or without a terminal, nothing is
    /// ever drawn.
    ProgressBar(const std::string& label, std::int64_t total, bool wanted);

    /// Clears the line.
    ~ProgressBar();

    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Draws at most some ten times a second. [message thread]
    void update(std::int64_t done);

private:
    using Clock = std::chrono::steady_clock;

    std::string label;
    std::int64_t total;
    bool visible;
    Clock::time_point nextDrawing;
    std::size_t drawnWidth = 0;
};

/// The bar's line: "<label> [#####     ]  50 %". [any thread]
std::string progressLine(const std::string& label, std::int64_t done, std::int64_t total);
