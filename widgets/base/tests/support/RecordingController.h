// SPDX-License-Identifier: GPL-3.0-or-later
// A host's parameter controller that writes down what it is told, in order.
#pragma once

#include "widgets/base/IQMParameterController.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <sstream>
#include <string>
#include <vector>

class RecordingController final : public IQMParameterController {
public:
    void updateCoefficients() override { calls.emplace_back("coefficients"); }

    void setFlag(std::uint8_t value) override { flag_ = value; }

    [[nodiscard]] std::uint8_t flag() const override { return flag_; }

    bool handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys&) override {
        calls.push_back("press " + fourCharText(id));
        return takesPresses;
    }

    void setParameterValue(FourCharCode id, double plain) override {
        std::ostringstream text;
        text << "set " << fourCharText(id) << " " << plain;
        calls.push_back(text.str());
    }

    [[nodiscard]] float parameterValue(FourCharCode) const override { return 0.0f; }

    void beginParameterGesture(FourCharCode id) override {
        calls.push_back("begin " + fourCharText(id));
    }

    void endParameterGesture(FourCharCode id) override {
        calls.push_back("end " + fourCharText(id));
    }

    std::vector<std::string> calls;
    bool takesPresses = false;

private:
    std::uint8_t flag_ = 0;
};
