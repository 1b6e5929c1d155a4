// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMPlugInUIHost.h"

juce::Rectangle<int> QMPlugInUIHost::availableArea() const {
    const juce::Displays& displays = juce::Desktop::getInstance().getDisplays();
    const juce::Component& view = viewOnScreen();
    const juce::Displays::Display* const display =
        view.isOnDesktop() || view.getParentComponent() != nullptr
            ? displays.getDisplayForRect(view.getScreenBounds())
            : displays.getPrimaryDisplay();
    return display == nullptr ? juce::Rectangle<int>() : display->userArea;
}
