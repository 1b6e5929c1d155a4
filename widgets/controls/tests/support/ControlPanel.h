// SPDX-License-Identifier: GPL-3.0-or-later
// What a control is in during a test: a dark panel with a window around it, and a plug-in that
// writes down what it is told.
#pragma once

#include "tests/support/toolkit/TestWindow.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/base/QMWidget.h"
#include "widgets/notifications/QMGenericParameterTarget.h"

#include <locale>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

class RecordingTarget final : public QMGenericParameterTarget {
public:
    double parameterValue(FourCharCode) const override { return values.empty() ? 0.0 : last(); }

    void setParameterValue(FourCharCode, double value) override {
        values.push_back(value);
        note(numberOf(value));
    }

    void beginTouch(FourCharCode) override { note("begin"); }

    void endTouch(FourCharCode) override { note("end"); }

    bool takesClick(FourCharCode) override { return takesClicks; }

    [[nodiscard]] double last() const { return values.back(); }

    /// "begin 0.25 end": numbers to six digits.
    std::string notes;
    std::vector<double> values;
    bool takesClicks = false;

private:
    static std::string numberOf(double value) {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << value;
        return text.str();
    }

    void note(const std::string& what) { notes += (notes.empty() ? "" : " ") + what; }
};

class ControlPanel final : public juce::Component, public QMParentColorSource {
public:
    ControlPanel() { setSize(400, 400); }

    void paint(juce::Graphics& g) override { g.fillAll(getBaseColour()); }

    void mouseWheelMove(const juce::MouseEvent&, const juce::MouseWheelDetails&) override {
        ++wheelEvents;
    }

    int wheelEvents = 0; ///< that no control wanted
};

/// A control of a parameter that goes from 0 to 1, in a window.
template <typename Control>
struct ControlInWindow {
    ControlInWindow() {
        bind(control);
        control.setBounds(100, 100, 80, 100);
        panel.addAndMakeVisible(control);
        window.emplace(panel);
    }

    void bind(QMWidget& widget) {
        widget.setParameter(0, fourCharCode("parm"));
        widget.addParameterTarget(&target);
        widget.setSlotMinimum(0, 0.0, false);
        widget.setSlotMaximum(0, 1.0, false);
        widget.setSlotDefault(0, 0.5, false);
    }

    RecordingTarget target;
    ControlPanel panel;
    Control control;
    std::optional<TestWindow> window;
};
