// SPDX-License-Identifier: GPL-3.0-or-later
// What stands behind a control: where its values come from and go to, and who may want a press on
// it for something else (a parameter that waits to be connected to a MIDI controller, say).
// [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"

class QMGenericParameterTarget {
public:
    virtual ~QMGenericParameterTarget() = default;

    /// Plain units; 0 for a parameter it does not know.
    [[nodiscard]] virtual double parameterValue(FourCharCode id) const = 0;
    /// Plain units; nothing for a parameter it does not know.
    virtual void setParameterValue(FourCharCode id, double value) = 0;

    /// The first gesture on the parameter has begun, the last one has ended.
    virtual void beginTouch(FourCharCode) {}

    virtual void endTouch(FourCharCode) {}

    /// Whether a press on the control is meant for the target alone.
    virtual bool takesClick(FourCharCode) { return false; }
};
