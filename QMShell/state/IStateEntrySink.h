// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the parameter values of a state that is no settings record, one by one.
#pragma once

#include "plugin-model/FourCharCode.h"

class IStateEntrySink {
public:
    virtual ~IStateEntrySink() = default;

    /// Sets the parameter with this identifier and tells the host of it as of an edit. The value is
    /// as it was stored: any number, or none. [message thread]
    virtual void restoreParameter(FourCharCode identifier, double storedValue) = 0;
};
