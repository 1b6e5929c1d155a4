// SPDX-License-Identifier: GPL-3.0-or-later
// What restoring an AAX chunk needs of the adapter. [message thread]
#pragma once

#include <cstdint>

class INoxPlugInState;

class IAaxChunkAdapter {
public:
    virtual ~IAaxChunkAdapter() = default;

    /// Null before there is an instance.
    [[nodiscard]] virtual INoxPlugInState* chunkInstance() const = 0;
    /// The next coefficient request of the host is to be answered with new ones.
    virtual void markParametersChanged() = 0;
    [[nodiscard]] virtual std::int32_t parameterCount() const = 0;
    /// Tells the host the current value, so that its controls follow.
    virtual void tellHostParameterValue(std::int32_t index) = 0;
};
