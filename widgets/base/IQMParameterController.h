// SPDX-License-Identifier: GPL-3.0-or-later
// The way from a control to the host: gestures and values of parameters, named by their
// four-character identifiers. In a plug-in editor the shell's controller passes everything on to
// the adapter that the host has loaded. [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstdint>

namespace juce {
class ModifierKeys;
}

class IQMParameterController {
public:
    virtual ~IQMParameterController() = default;

    /// Computes coefficients at once where the host's interface puts that off.
    virtual void updateCoefficients() = 0;

    /// A note that users of the controller leave one another; it changes nothing.
    virtual void setFlag(std::uint8_t value) = 0;
    [[nodiscard]] virtual std::uint8_t flag() const = 0;

    /// True when the host has taken the press: its own menu of the parameter, say. The control then
    /// does nothing with it.
    virtual bool handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys& modifiers) = 0;

    /// Plain units.
    virtual void setParameterValue(FourCharCode id, double plain) = 0;
    /// In the units that the host's interface answers in: see QMShell_GUI.
    [[nodiscard]] virtual float parameterValue(FourCharCode id) const = 0;

    virtual void beginParameterGesture(FourCharCode id) = 0;
    virtual void endParameterGesture(FourCharCode id) = 0;
};
