// SPDX-License-Identifier: GPL-3.0-or-later
// Letting time pass as a host does: on Windows a host's thread hands out messages meanwhile, the
// toolkit's timers among them; elsewhere the library's own thread does what there is to do.
#pragma once

#include <chrono>
#include <functional>

/// Hands out the messages that wait for this thread; nothing where there are none.
void handOutMessages();

/// Until the condition holds. False when it still does not at the limit.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition,
                             std::chrono::milliseconds limit);

/// For tests of what must not happen, and to look for something that looking at disturbs.
void letPass(std::chrono::milliseconds time);
