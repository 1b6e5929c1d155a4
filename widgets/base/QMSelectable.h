// SPDX-License-Identifier: GPL-3.0-or-later
// What the designers' layout mode can pick up and move. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMSelectable {
public:
    virtual ~QMSelectable() = default;

    [[nodiscard]] virtual bool isSelectable() const = 0;
    [[nodiscard]] virtual bool isSelected() const = 0;
    /// Repaints when it changes.
    virtual void setSelected(bool flag) = 0;

    virtual void toggleSelected() { setSelected(!isSelected()); }

    [[nodiscard]] virtual juce::Component* getComponent() = 0;
};
