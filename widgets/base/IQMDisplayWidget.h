// SPDX-License-Identifier: GPL-3.0-or-later
// A widget that shows what the sound is doing: meters, histories. [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"
#include "plugin-model/NoxMeterRecord.h"

#include <cstdint>

class IQMDisplayWidget {
public:
    virtual ~IQMDisplayWidget() = default;

    /// Binds a display slot to a meter record of the plug-in. The record is refreshed before each
    /// tick and outlives the widget; null unbinds. kind: see NoxMeterDescriptor.
    virtual void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t kind,
                                 const NoxMeterRecord* record) = 0;

    /// Follows the record; called every 30 ms while the editor is open. Repaints what changed.
    virtual void tick() = 0;
};
