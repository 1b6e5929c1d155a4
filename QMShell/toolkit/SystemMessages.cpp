// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/SystemMessages.h"

#ifdef _WIN32

#    include "QMShell/toolkit/ToolkitTask.h"

void SystemMessages::run(const std::function<void()>& task) {
    runOnToolkitThread(task);
}

#endif
