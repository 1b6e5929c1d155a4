// SPDX-License-Identifier: GPL-3.0-or-later
// The way into the entry points of QMShellVST3: the lock, and the end of exceptions.
#pragma once

#include "QMShell/vst3/HostBoundary.h"
#include "QMShell/vst3/QMShellVST3.h"

#include <mutex>
#include <utility>

template <typename Answer, typename Work>
Answer QMShellVST3::guarded(const char* entry, Answer failure, Work work) noexcept {
    return contained(entry, std::move(failure), [&] {
        const std::scoped_lock lock(environment.controlLock());
        return work();
    });
}
