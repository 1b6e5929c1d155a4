// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/DspIOConnectionController.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/IOConnectionTransfer.h"

#include <cstring>

void DspIOConnectionController::transfer(Packet& block, std::int32_t pairCount,
                                         const QMTransferPair* pairs) {
    INoxPlugInProcessingHost* host = plugIn.processingHost();
    if (host == nullptr)
        return;
    host->announceTransfer(0, plugIn, plugIn.remoteInstanceID(), 0, nullptr);
    if (pairCount > 0)
        std::memset(block.data, 0, std::size_t{block.wordCount()} * sizeof(std::uint32_t));
    fetchTransferWords(*host, plugIn, block, pairCount, pairs);
}
