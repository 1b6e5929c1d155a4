// SPDX-License-Identifier: GPL-3.0-or-later
// A control whose values are named items: menus, selectors, buttons with several states.
// [message thread]
#pragma once

#include <juce_core/juce_core.h>

class IQMItemList {
public:
    virtual ~IQMItemList() = default;

    /// Replaces the items and shows one of them, without telling anybody.
    virtual void setItems(const juce::StringArray& texts, int selected) = 0;
};
