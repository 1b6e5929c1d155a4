// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/IOConnectionTransfer.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInProcessingHost.h"

#include <algorithm>

void fetchTransferWords(INoxPlugInProcessingHost& host, INoxPlugIn& plugIn, Packet& block,
                        std::int32_t pairCount, const QMTransferPair* pairs) {
    const std::uint64_t id = plugIn.remoteInstanceID();
    auto* words = static_cast<std::uint32_t*>(block.data);
    if (pairCount <= 0) {
        host.fetchInputCopy(plugIn, id, 0, block.wordCount(), words);
        return;
    }
    for (std::int32_t i = 0; i < pairCount; ++i) {
        const std::uint32_t offset = std::min(pairs[i].offset, block.wordCount());
        const std::uint32_t count = std::min(pairs[i].count, block.wordCount() - offset);
        if (count > 0)
            host.fetchInputCopy(plugIn, id, offset, count, words + offset);
    }
}
