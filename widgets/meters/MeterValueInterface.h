// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of a meter: the peak in dB. It asks when the user does; nobody wants
// to be told of every change. [message thread]
#pragma once

#include "widgets/meters/MeterData.h"

#include <juce_gui_basics/juce_gui_basics.h>

/// "-12.3 dB", and "-Inf dB" for what is below the lowest mark of a meter.
[[nodiscard]] juce::String meterLevelText(float level);

class MeterValueInterface final : public juce::AccessibilityValueInterface {
public:
    /// The data outlives the interface.
    explicit MeterValueInterface(const MeterData& shown)
        : data(shown) {}

    bool isReadOnly() const override { return true; }

    double getCurrentValue() const override;

    juce::String getCurrentValueAsString() const override { return meterLevelText(data.level[0]); }

    void setValue(double) override {}

    void setValueAsString(const juce::String&) override {}

    AccessibleValueRange getRange() const override;

private:
    const MeterData& data;
};
