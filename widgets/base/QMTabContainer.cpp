// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/base/QMTabContainer.h"

#include "widgets/base/QMWidget.h"

#include <algorithm>
#include <vector>

namespace {

/// asking: one that counts whether it can take the keyboard or not; may be null.
void collect(const juce::Component& component, const QMWidget* asking,
             std::vector<QMWidget*>& found) {
    for (juce::Component* const child : component.getChildren()) {
        auto* const widget = dynamic_cast<QMWidget*>(child);
        if (widget != nullptr &&
            (widget == asking || (widget->canTakeKeyboardFocus() && widget->isEnabled() &&
                                  widget->isVisible() && widget->getNumFocusPositions() > 0)))
            found.push_back(widget);
        collect(*child, asking, found);
    }
}

std::vector<QMWidget*> inTabOrder(const juce::Component& container, const QMWidget* asking) {
    std::vector<QMWidget*> widgets;
    collect(container, asking, widgets);
    std::stable_sort(widgets.begin(), widgets.end(), [](const QMWidget* a, const QMWidget* b) {
        return a->getTabIndex() < b->getTabIndex();
    });
    return widgets;
}

/// Null when nobody else can have the keyboard.
QMWidget* neighbour(const juce::Component& container, const QMWidget& widget, bool backwards) {
    const std::vector<QMWidget*> widgets = inTabOrder(container, &widget);
    const auto here = std::find(widgets.begin(), widgets.end(), &widget);
    if (here == widgets.end() || widgets.size() < 2)
        return nullptr;
    const std::size_t count = widgets.size();
    const auto index = static_cast<std::size_t>(here - widgets.begin());
    return widgets[(index + (backwards ? count - 1 : 1)) % count];
}

} // namespace

QMWidget* QMTabContainer::firstWidgetIn(const juce::Component& component) {
    const std::vector<QMWidget*> widgets = inTabOrder(component, nullptr);
    return widgets.empty() ? nullptr : widgets.front();
}

QMWidget* QMTabContainer::widgetAfter(const QMWidget& widget) const {
    return neighbour(*this, widget, false);
}

QMWidget* QMTabContainer::widgetBefore(const QMWidget& widget) const {
    return neighbour(*this, widget, true);
}
