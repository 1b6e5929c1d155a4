// SPDX-License-Identifier: GPL-3.0-or-later
// Counts how often a component asks to be drawn.
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <utility>

class RepaintCounter final : public juce::CachedComponentImage {
public:
    /// The component takes it and owns it.
    static RepaintCounter& on(juce::Component& component) {
        auto* const counter = new RepaintCounter(component);
        component.setCachedComponentImage(counter);
        counter->repaints = 0;
        return *counter;
    }

    int take() { return std::exchange(repaints, 0); }

    void paint(juce::Graphics& g) override { drawn.paintEntireComponent(g, false); }

    bool invalidateAll() override {
        ++repaints;
        return true;
    }

    bool invalidate(const juce::Rectangle<int>&) override { return invalidateAll(); }

    void releaseResources() override {}

private:
    explicit RepaintCounter(juce::Component& component)
        : drawn(component) {}

    juce::Component& drawn;
    int repaints = 0;
};
