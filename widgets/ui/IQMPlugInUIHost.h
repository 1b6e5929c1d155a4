// SPDX-License-Identifier: GPL-3.0-or-later
// How a plug-in UI reaches what is around it: the instance, the parameter controller, the size of
// the window, help. The shell's view is one. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>

class INoxPlugIn;
class IQMParameterController;

class IQMPlugInUIHost {
public:
    virtual ~IQMPlugInUIHost() = default;

    /// Connects an instance; the UI of the one before goes. Null shows none.
    virtual void setPlugIn(INoxPlugIn* plugIn) = 0;
    /// Takes the shown UI away.
    virtual void closeUI() = 0;
    /// What the UI needs, in pixels; answers true.
    virtual bool setUIArea(juce::Rectangle<int> area) = 0;
    /// Tooltips on or off.
    virtual void setHelpEnabled(bool on) = 0;
    /// A parameter of the instance has another value.
    virtual void parameterChanged(std::int32_t index) = 0;
    /// Pixels to add to the UI's width for the whole view.
    virtual void setExtraWidth(std::int32_t width) = 0;
    /// By the first four characters of a name; "MasterBypassID" means the bypass. Plain units. 1
    /// when the parameter was set, 0 when there is none or no instance.
    virtual std::int32_t setParameterByName(const juce::String& name, double value) = 0;

    /// Null without one.
    [[nodiscard]] virtual INoxPlugIn* plugIn() const = 0;
    /// Null without one.
    [[nodiscard]] virtual IQMParameterController* parameterController() = 0;
    /// Pixels that an editor may fill on its screen; empty when nobody knows.
    [[nodiscard]] virtual juce::Rectangle<int> availableArea() const = 0;
};
