// SPDX-License-Identifier: GPL-3.0-or-later
// The part of a block transfer that both kinds of connection controller share.
#pragma once

#include "plugin-model/QMIOConnectionController.h"

class INoxPlugIn;
class INoxPlugInProcessingHost;

/// Asks the host for the stretches, each cut at the block's end, or for the whole block.
void fetchTransferWords(INoxPlugInProcessingHost& host, INoxPlugIn& plugIn, Packet& block,
                        std::int32_t pairCount, const QMTransferPair* pairs);
