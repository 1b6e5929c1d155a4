// SPDX-License-Identifier: GPL-3.0-or-later
// Counts the repaints that a component asks for.
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class RepaintCounter final : public juce::CachedComponentImage {
public:
    /// From now on, as long as the component lives.
    static RepaintCounter& on(juce::Component& component) {
        auto* const counter = new RepaintCounter;
        component.setCachedComponentImage(counter);
        // Which is one itself.
        counter->repaints = 0;
        return *counter;
    }

    void paint(juce::Graphics&) override {}

    bool invalidateAll() override {
        ++repaints;
        return true;
    }

    bool invalidate(const juce::Rectangle<int>&) override { return invalidateAll(); }

    void releaseResources() override {}

    int repaints = 0;
};
