// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/QMShellFlusher.h"

#include "plugin-model/FlusherHost.h"
#include "plugin-model/PacketTrace.h"
#include "plugin-model/QMParameterValues.h"

void QMShellFlusher::flush(QM::QMParameterValues& values) {
    if (plugIn == nullptr)
        return;
    PacketList packets;
    values.generatePackets(packets);
    for (const auto& packet : packets) {
        tracePacket(*packet);
        if (packet->kind == Packet::coefficientKind)
            plugIn->pushCoefficients(*packet);
        else
            plugIn->handleMessage(*packet);
    }
    values.releasePackets(packets);
}

std::uint32_t QMShellFlusher::hostStatus() const {
    return flusherHostStatus(plugIn);
}
