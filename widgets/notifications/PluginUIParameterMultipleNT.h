// SPDX-License-Identifier: GPL-3.0-or-later
// The target of a control that shows several parameters, one a slot.
#pragma once

#include "widgets/notifications/PluginUIParameterTarget.h"

#include <map>
#include <utility>

class PluginUIParameterMultipleNT final : public PluginUIParameterTarget {
public:
    using SlotMap = std::map<std::uint32_t, std::uint32_t>; ///< slot to parameter index

    /// To be made with new and registered; the UI must outlive it. [message thread]
    PluginUIParameterMultipleNT(IQMPlugInUIParameters& plugInUI, SlotMap slotMap)
        : PluginUIParameterTarget(plugInUI)
        , slots_(std::move(slotMap)) {}

    [[nodiscard]] const SlotMap& slots() const { return slots_; }

private:
    SlotMap slots_;
};
