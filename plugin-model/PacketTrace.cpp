// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/PacketTrace.h"

#include "plugin-model/Packet.h"
#include "services/Log.h"

std::atomic<bool>& packetTraceSwitch() {
    static std::atomic<bool> enabled{false};
    return enabled;
}

void tracePacket(const Packet& packet) {
    if (packetTraceSwitch().load(std::memory_order_relaxed))
        QM::dumpPacket(QM::processLog(), packet.data, packet.length);
}
