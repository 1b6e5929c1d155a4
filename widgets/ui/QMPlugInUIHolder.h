// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the plug-in UI of the current instance, in a view that scrolls where the window is smaller;
// without one it says so. [message thread]
#pragma once

#include "widgets/base/QMColorSource.h"

#include <juce_gui_basics/juce_gui_basics.h>

class IQMPlugInUI;

class QMPlugInUIHolder final : public juce::Component, public QMColorSource {
public:
    QMPlugInUIHolder();
    ~QMPlugInUIHolder() override;

    /// Not owned; it is taken away (null) before it goes.
    void setUI(IQMPlugInUI* newUI);

    /// Null without one.
    [[nodiscard]] IQMPlugInUI* getUI() const { return ui; }

    [[nodiscard]] juce::Viewport& getViewport() { return viewport; }

    /// That of the nearest colour source above; an editor's dark grey without one.
    [[nodiscard]] juce::Colour getBaseColour() const override;

    void paint(juce::Graphics& g) override;
    void resized() override;

private:
    IQMPlugInUI* ui = nullptr;
    juce::Viewport viewport;
};
