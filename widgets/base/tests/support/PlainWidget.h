// SPDX-License-Identifier: GPL-3.0-or-later
// A widget that adds as little as possible to the base, and shows the base's inner life.
#pragma once

#include "widgets/base/QMWidget.h"

#include <vector>

class PlainWidget : public QMWidget {
public:
    explicit PlainWidget(std::uint32_t slots = 1, bool focusable = false)
        : QMWidget(slots) {
        setSize(40, 30);
        setCanTakeFocus(focusable);
    }

    void setSlotCount(std::uint32_t count) { setNumParameterSlots(count); }

    void flushDeferredUpdates() override { ++flushes; }

    void flushPendingOutput() override { ++outputFlushes; }

    [[nodiscard]] bool isEditable() const override { return editable; }

    void stepUp(bool fine) override { steps.push_back(fine ? 0.1 : 1.0); }

    void stepDown(bool fine) override { steps.push_back(fine ? -0.1 : -1.0); }

    bool activate() override { return ++activations > 0 && activates; }

    bool beginTextEntry(juce::juce_wchar first) override {
        entered += juce::String::charToString(first);
        return true;
    }

    [[nodiscard]] double getSlotValue(std::uint32_t) const override { return shownValue; }

    [[nodiscard]] juce::String getDisplayText() const override { return "7 Hz"; }

    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::slider;
    }

    int flushes = 0;
    int outputFlushes = 0;
    bool editable = false;
    std::vector<double> steps;
    int activations = 0;
    bool activates = false;
    juce::String entered;
    double shownValue = 7.0;
};
