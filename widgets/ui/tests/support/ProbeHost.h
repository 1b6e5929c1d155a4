// SPDX-License-Identifier: GPL-3.0-or-later
// What is around an editor, noting what the editor asks of it.
#pragma once

#include "plugin-model/INoxPlugIn.h"
#include "widgets/base/IQMParameterController.h"
#include "widgets/ui/IQMPlugInUIHost.h"

#include <string>
#include <vector>

/// Writes down what it is told, as "begin gain", "set gain 3", "end gain".
class ProbeController final : public IQMParameterController {
public:
    std::vector<std::string> calls;
    bool takesPresses = false;

    void updateCoefficients() override {}

    void setFlag(std::uint8_t) override {}

    std::uint8_t flag() const override { return 0; }

    bool handleParameterMouseDown(FourCharCode, const juce::ModifierKeys&) override {
        return takesPresses;
    }

    void setParameterValue(FourCharCode id, double plain) override {
        calls.push_back("set " + fourCharText(id) + " " + juce::String(plain).toStdString());
    }

    float parameterValue(FourCharCode) const override { return 0.0F; }

    void beginParameterGesture(FourCharCode id) override {
        calls.push_back("begin " + fourCharText(id));
    }

    void endParameterGesture(FourCharCode id) override {
        calls.push_back("end " + fourCharText(id));
    }
};

class ProbeHost final : public IQMPlugInUIHost {
public:
    std::vector<std::int32_t> changes;
    std::vector<juce::Rectangle<int>> areas;
    std::vector<bool> helpSettings;
    juce::Rectangle<int> available; ///< empty: nobody knows
    IQMParameterController* controller = nullptr;

    void setPlugIn(INoxPlugIn*) override {}

    void closeUI() override {}

    bool setUIArea(juce::Rectangle<int> area) override {
        areas.push_back(area);
        return true;
    }

    void setHelpEnabled(bool on) override { helpSettings.push_back(on); }

    void parameterChanged(std::int32_t index) override { changes.push_back(index); }

    void setExtraWidth(std::int32_t) override {}

    std::int32_t setParameterByName(const juce::String&, double) override { return 0; }

    INoxPlugIn* plugIn() const override { return nullptr; }

    IQMParameterController* parameterController() override { return controller; }

    juce::Rectangle<int> availableArea() const override { return available; }
};
