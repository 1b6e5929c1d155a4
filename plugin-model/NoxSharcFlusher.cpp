// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/NoxSharcFlusher.h"

#include "plugin-model/FlusherHost.h"
#include "plugin-model/PacketTrace.h"
#include "plugin-model/QMParameterValues.h"

void NoxSharcFlusher::flush(QM::QMParameterValues& values) {
    INoxPlugInProcessingHost* host = flusherHost(plugIn);
    if (host == nullptr)
        return;
    const std::uint64_t id = plugIn->remoteInstanceID();
    PacketList packets;
    values.generateSharcPackets(packets);
    for (const auto& packet : packets) {
        tracePacket(*packet);
        host->sendCoefficients(0, *plugIn, id, packet->wordCount(), packet->data);
    }
    values.releasePackets(packets);
}

std::uint32_t NoxSharcFlusher::hostStatus() const {
    return flusherHostStatus(plugIn);
}
