// SPDX-License-Identifier: GPL-3.0-or-later
// A GUI holder over a hosted instance that writes down what it is told.
#pragma once

#include "QMShell/gui/QMShell_GUI.h"
#include "QMShell/gui/tests/support/HostedPlugIn.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <sstream>
#include <string>
#include <vector>

class TestHolder final : public QMShell_GUI {
public:
    TestHolder(HostedPlugIn& plugInOfHost, QMPlugInUIFactory factory)
        : QMShell_GUI(std::move(factory))
        , hosted(plugInOfHost) {}

    ~TestHolder() override { setView(nullptr); }

    [[nodiscard]] std::recursive_mutex* controlLock() override {
        return &hosted.environment.controlLock();
    }

    [[nodiscard]] INoxPlugIn* plugIn() override { return hosted.get(); }

    void updateCoefficients() override { calls.emplace_back("coefficients"); }

    bool setViewContainerSize(std::int32_t height, std::int32_t width) override {
        note("size", height, width);
        return true;
    }

    void setHelpEnabled(bool on) override { calls.emplace_back(on ? "help on" : "help off"); }

    [[nodiscard]] double sampleRate() override { return 48000.0; }

    [[nodiscard]] double tempo() override { return 120.0; }

    [[nodiscard]] std::int32_t inputFormat() override { return 3; }

    [[nodiscard]] std::int32_t outputFormat() override { return 3; }

    bool handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys& modifiers) override {
        calls.push_back("press " + fourCharText(id) +
                        (modifiers.isRightButtonDown() ? " right" : " left"));
        return takesPresses;
    }

    void setParameterValue(FourCharCode id, double plain) override {
        note("set", fourCharText(id), plain);
    }

    void parameterChanged(FourCharCode id) override { note("changed", fourCharText(id), ""); }

    [[nodiscard]] float parameterValue(FourCharCode) override { return 0.25f; }

    void beginParameterGesture(FourCharCode id) override { note("begin", fourCharText(id), ""); }

    void endParameterGesture(FourCharCode id) override { note("end", fourCharText(id), ""); }

    std::vector<std::string> calls;
    bool takesPresses = false;

private:
    template <typename A, typename B>
    void note(const char* what, const A& a, const B& b) {
        std::ostringstream text;
        text << what << " " << a;
        if (std::ostringstream second; second << b, !second.str().empty())
            text << " " << second.str();
        calls.push_back(text.str());
    }

    HostedPlugIn& hosted;
};
