// SPDX-License-Identifier: GPL-3.0-or-later
// The target of a control with one parameter.
#pragma once

#include "widgets/notifications/PluginUIParameterTarget.h"

class PluginUIParameterNT final : public PluginUIParameterTarget {
public:
    /// To be made with new and registered; the UI must outlive it. [message thread]
    PluginUIParameterNT(IQMPlugInUIParameters& plugInUI, std::uint32_t index)
        : PluginUIParameterTarget(plugInUI)
        , index_(index) {}

    [[nodiscard]] std::uint32_t parameterIndex() const { return index_; }

private:
    std::uint32_t index_;
};
