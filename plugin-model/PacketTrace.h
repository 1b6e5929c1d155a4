// SPDX-License-Identifier: GPL-3.0-or-later
// A process-wide switch for developers: flushers log every packet they deliver while it is on. It
// starts off; the log also drops the dump unless its level was raised.
#pragma once

#include <atomic>

struct Packet;

/// [any thread]
std::atomic<bool>& packetTraceSwitch();

/// Dumps the packet to the process's log when the switch is on. [any thread but audio]
void tracePacket(const Packet& packet);
