// SPDX-License-Identifier: GPL-3.0-or-later
// A value that floats beside a control while it is moved and fades away afterwards. Nobody owns it:
// it deletes itself when it has faded, or when the component that it was shown in is gone; what is
// still there when the toolkit ends goes with that. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMEphemeralReadout final : public juce::Component,
                                 private juce::DeletedAtShutdown,
                                 private juce::Timer {
public:
    /// Made with new, into the control's parent, which there must be. magnification: pixels per
    /// design unit.
    QMEphemeralReadout(const juce::Component& control, float magnification, bool below);
    ~QMEphemeralReadout() override;

    void showText(const juce::String& newText, const juce::Component& control);

    [[nodiscard]] const juce::String& getText() const { return text; }

    /// It is on its own from here.
    void startFading();

    /// Where one of this size belongs: centred on the control, two pixels below or above it.
    [[nodiscard]] static juce::Rectangle<int> placement(juce::Rectangle<int> control, int width,
                                                        int height, bool below);

    void paint(juce::Graphics& g) override;
    void parentHierarchyChanged() override;

private:
    void timerCallback() override;

    juce::String text;
    float scale;
    bool isBelow;
    juce::uint32 fadeStart = 0; ///< milliseconds
    bool isFading = false;
};
