// SPDX-License-Identifier: GPL-3.0-or-later
// Handing a task to the toolkit's message thread and waiting for it.
#pragma once

#include <functional>

/// Runs it here when this is the message thread already. The message thread must be delivering.
/// [any thread but audio]
void runOnToolkitThread(const std::function<void()>& task);
