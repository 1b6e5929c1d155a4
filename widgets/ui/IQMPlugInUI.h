// SPDX-License-Identifier: GPL-3.0-or-later
// A plug-in's editor as the shell around it and the parameter handler see it. Questions about
// parameters go to the plug-in instance; with the instance gone they get neutral answers.
// [message thread]
#pragma once

#include "widgets/notifications/IQMPlugInUIParameters.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <string>

class INoxPlugIn;

class IQMPlugInUI : public IQMPlugInUIParameters {
public:
    /// What is to be shown.
    [[nodiscard]] virtual juce::Component& component() = 0;

    /// Whether it shows this very instance, and that is still there.
    [[nodiscard]] virtual bool belongsTo(const INoxPlugIn* plugIn) const = 0;

    // The plug-in instance. Parameters by index, values in plain units.

    [[nodiscard]] virtual std::string plugInName() const = 0;
    [[nodiscard]] virtual std::int32_t parameterCount() const = 0;
    /// 0 out of range.
    [[nodiscard]] virtual FourCharCode parameterID(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::string parameterName(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::string parameterUnit(std::int32_t index) const = 0;
    /// The text of a value, without its unit.
    [[nodiscard]] virtual std::string parameterText(std::int32_t index, double value) const = 0;
    [[nodiscard]] virtual double parameterMinimum(std::int32_t index) const = 0;
    [[nodiscard]] virtual double parameterMaximum(std::int32_t index) const = 0;
    [[nodiscard]] virtual double parameterDefault(std::int32_t index) const = 0;

    /// The index of the parameter that is shown at a point of the component; -1 where none is.
    [[nodiscard]] virtual std::int32_t parameterAt(juce::Point<int> position) const = 0;

    // Size.

    /// In design units, from 0, 0.
    [[nodiscard]] virtual juce::Rectangle<int> getDesignSize() const = 0;
    /// In pixels, from 0, 0.
    [[nodiscard]] virtual juce::Rectangle<int> getScaledSize() const = 0;
    /// Stores it; applies it when it changed.
    virtual void setScalePercent(std::int32_t percent) = 0;
    /// Pixels per design unit, cut to what the screen can show. Not stored.
    virtual void setMagnification(float factor) = 0;
    [[nodiscard]] virtual float getMagnification() const = 0;

    /// Tooltips on or off.
    virtual void setHelpEnabled(bool on) = 0;
    /// An appearance preference of this key has another value.
    virtual void preferenceChanged(const juce::String& key) = 0;
    /// The product's own step, once, after the UI was made.
    virtual void setupAfterCreation() = 0;

    /// Lets displays follow the sound; called every 30 ms.
    virtual void tick() = 0;
};
