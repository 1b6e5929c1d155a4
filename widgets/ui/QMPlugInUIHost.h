// SPDX-License-Identifier: GPL-3.0-or-later
// What every host of a plug-in UI does alike. [message thread]
#pragma once

#include "widgets/ui/IQMPlugInUIHost.h"

class QMPlugInUIHost : public IQMPlugInUIHost {
public:
    /// The screen that the view is on, less what the system keeps for itself.
    [[nodiscard]] juce::Rectangle<int> availableArea() const override;

protected:
    /// The component whose screen counts.
    [[nodiscard]] virtual const juce::Component& viewOnScreen() const = 0;
};
