// SPDX-License-Identifier: GPL-3.0-or-later
// How every flusher reaches the processing host of its instance.
#pragma once

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInProcessingHost.h"

/// Null without an instance or a host.
inline INoxPlugInProcessingHost* flusherHost(const INoxPlugIn* plugIn) {
    return plugIn != nullptr ? plugIn->processingHost() : nullptr;
}

/// The host's status word; 0 without one.
inline std::uint32_t flusherHostStatus(const INoxPlugIn* plugIn) {
    const INoxPlugInProcessingHost* host = flusherHost(plugIn);
    return host != nullptr ? host->hostWord() : 0;
}
