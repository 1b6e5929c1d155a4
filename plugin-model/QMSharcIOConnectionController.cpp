// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/QMSharcIOConnectionController.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/IOConnectionTransfer.h"

#include <array>

void QMSharcIOConnectionController::outputConnected(std::int32_t output, std::int32_t slot) {
    sendConnection(outputCode, output, slot);
}

void QMSharcIOConnectionController::inputConnected(std::int32_t input, std::int32_t slot) {
    sendConnection(inputCode, input, slot);
}

void QMSharcIOConnectionController::sendConnection(std::int32_t code, std::int32_t channel,
                                                   std::int32_t slot) {
    INoxPlugInProcessingHost* host = plugIn.processingHost();
    if (host == nullptr)
        return;
    const std::array<std::int32_t, 3> words{code, channel, slot};
    host->sendCoefficients(Packet::connectionKind, plugIn, plugIn.remoteInstanceID(),
                           static_cast<std::uint32_t>(words.size()), words.data());
}

void QMSharcIOConnectionController::transfer(Packet& block, std::int32_t pairCount,
                                             const QMTransferPair* pairs) {
    INoxPlugInProcessingHost* host = plugIn.processingHost();
    if (host == nullptr)
        return;
    host->announceTransfer(0, plugIn, plugIn.remoteInstanceID(), 1, &transferCode);
    fetchTransferWords(*host, plugIn, block, pairCount, pairs);
}
