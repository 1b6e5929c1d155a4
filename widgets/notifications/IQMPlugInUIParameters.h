// SPDX-License-Identifier: GPL-3.0-or-later
// The role of a plug-in UI towards parameters: what comes from the plug-in, what goes to it.
// [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstdint>

class IQMPlugInUIParameters {
public:
    virtual ~IQMPlugInUIParameters() = default;

    /// The plug-in has another value now; plain units.
    virtual void parameterChanged(std::int32_t index, double value) = 0;
    /// Several have, as one change.
    virtual void parametersChanged(std::int32_t count, const std::int32_t* indices,
                                   const double* values) = 0;
    /// -1 for an identifier that the plug-in does not have.
    [[nodiscard]] virtual std::int32_t parameterIndex(FourCharCode id) const = 0;
    /// Plain units; 0 out of range.
    [[nodiscard]] virtual double parameterValue(std::int32_t index) const = 0;
    /// A control writes a value; plain units.
    virtual void setParameterFromUI(std::int32_t index, double value) = 0;
};
