// SPDX-License-Identifier: GPL-3.0-or-later
// A component in which the keyboard goes from widget to widget in the order of their tab indices,
// however deep in it they are and wherever they stand. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMWidget;

class QMTabContainer : public juce::Component {
public:
    /// The first widget below a component, in the same order; null without one.
    [[nodiscard]] static QMWidget* firstWidgetIn(const juce::Component& component);

    /// The next widget that can take the keyboard and can be seen, the first one after the last.
    /// Among equal indices the order is that of the component tree. Null when there is no other.
    [[nodiscard]] QMWidget* widgetAfter(const QMWidget& widget) const;
    /// The same backwards.
    [[nodiscard]] QMWidget* widgetBefore(const QMWidget& widget) const;
};
