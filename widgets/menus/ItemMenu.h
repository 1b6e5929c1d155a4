// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of a widget's items, below the widget: a tick at the present item, columns where there
// are many. An item "-" is a line. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

class QMWidget;

namespace ItemMenu {

/// More items than this make another column.
constexpr int itemsInAColumn = 24;

[[nodiscard]] constexpr int columnsFor(int items) {
    return items <= itemsInAColumn ? 1 : (items + itemsInAColumn - 1) / itemsInAColumn;
}

/// Identifiers are the items' indices and 1. current: no tick when there is no such item.
[[nodiscard]] juce::PopupMenu build(const juce::StringArray& items, int current);

/// chosen is told the index of what is chosen, as long as the widget is there; nothing happens
/// without items.
void show(QMWidget& widget, const juce::StringArray& items, int current, int columns,
          std::function<void(int index)> chosen);

} // namespace ItemMenu
