// SPDX-License-Identifier: GPL-3.0-or-later
// What the view asks of the bar above a plug-in's editor, where a product has one. Its height is
// its own business. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>

class INoxPlugIn;
class IQMPlugInUI;

class QMShellViewHeader : public juce::Component {
public:
    /// Pixels below which its contents do not fit.
    [[nodiscard]] virtual std::int32_t minimumWidth() const = 0;
    /// Null for none.
    virtual void setPlugIn(INoxPlugIn* plugIn) = 0;
    /// Null for none.
    virtual void setUI(IQMPlugInUI* ui) = 0;
    /// Of the instance: its bypass, its blend, or whether its preset is modified.
    virtual void parameterChanged(std::int32_t index) = 0;
};
