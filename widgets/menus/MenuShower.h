// SPDX-License-Identifier: GPL-3.0-or-later
// How menus of widgets come onto the screen: without waiting for them, by the toolkit, unless a
// test wants to see and answer them itself. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

/// chosen is to be called once, with the item's identifier or with 0 for none; the widget may be
/// gone by then.
using MenuShower = std::function<void(juce::PopupMenu menu, const juce::PopupMenu::Options& options,
                                      std::function<void(int itemID)> chosen)>;

void showMenu(juce::PopupMenu menu, const juce::PopupMenu::Options& options,
              std::function<void(int itemID)> chosen);

/// What showMenu does from now on; null gives the toolkit's menus back.
void setMenuShower(MenuShower shower);
