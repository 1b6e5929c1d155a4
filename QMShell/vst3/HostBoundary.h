// SPDX-License-Identifier: GPL-3.0-or-later
// Where exceptions end on their way to a host.
#pragma once

#include "services/Log.h"

#include <exception>

/// Does the work of something that a host calls. What it throws becomes a line in the log that
/// begins with the entry's name, and the answer `failure`. [any thread but audio]
template <typename Answer, typename Work>
Answer contained(const char* entry, Answer failure, Work work) noexcept {
    try {
        return work();
    } catch (const std::exception& error) {
        QM::log(QM::LogLevel::error, "%s: %s\n", entry, error.what());
    } catch (...) {
        QM::log(QM::LogLevel::error, "%s: unknown exception\n", entry);
    }
    return failure;
}
