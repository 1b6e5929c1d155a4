// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ProgressBar.h"

#ifdef _WIN32
#    include <io.h>
#else
#    include <unistd.h>
#endif

#include <algorithm>
#include <cstdio>

namespace {

constexpr auto drawingInterval = std::chrono::milliseconds(100);

bool standardErrorIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

/// Long names keep their end, which tells files apart better than their beginning.
std::string shortened(const std::string& text) {
    constexpr std::size_t longest = 30;
    return text.size() <= longest ? text : "..." + text.substr(text.size() - longest + 3);
}

} // namespace

std::string progressLine(const std::string& label, std::int64_t done, std::int64_t total) {
    constexpr std::int64_t width = 30;
    constexpr std::int64_t percent = 100;
    const std::int64_t whole = std::max<std::int64_t>(total, 1);
    const std::int64_t part = std::clamp<std::int64_t>(done, 0, whole);
    const auto filled = static_cast<std::size_t>(part * width / whole);
    std::string number = std::to_string(part * percent / whole);
    number.insert(0, 3 - number.size(), ' ');
    return shortened(label) + " [" + std::string(filled, '#') + std::string(width - filled, ' ') +
           "] " + number + " %";
}

ProgressBar::ProgressBar(const std::string& barLabel, std::int64_t barTotal, bool wanted)
    : label(barLabel)
    , total(barTotal)
    , visible(wanted && standardErrorIsTerminal())
    , nextDrawing(Clock::now() + drawingInterval) {}

ProgressBar::~ProgressBar() {
    if (drawnWidth > 0)
        std::fprintf(stderr, "\r%s\r", std::string(drawnWidth, ' ').c_str());
}

void ProgressBar::update(std::int64_t done) {
    if (!visible || Clock::now() < nextDrawing)
        return;
    nextDrawing = Clock::now() + drawingInterval;
    const std::string line = progressLine(label, done, total);
    drawnWidth = line.size();
    std::fprintf(stderr, "\r%s", line.c_str());
    std::fflush(stderr);
}
