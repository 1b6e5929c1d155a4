// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HelpMenuItem.h"

HelpMenuItem::HelpMenuItem(const juce::String& help, int itemHeight)
    : standardHeight(itemHeight) {
    setTooltip(help);
    // The item around it speaks for it.
    setAccessible(false);
}

void HelpMenuItem::getIdealSize(int& idealWidth, int& idealHeight) {
    const juce::PopupMenu::Item* const shown = getItem();
    getLookAndFeel().getIdealPopupMenuItemSizeWithOptions(
        shown != nullptr ? shown->text : juce::String(), false, standardHeight, idealWidth,
        idealHeight, juce::PopupMenu::Options());
}

void HelpMenuItem::paint(juce::Graphics& g) {
    if (const juce::PopupMenu::Item* const shown = getItem())
        getLookAndFeel().drawPopupMenuItemWithOptions(g, getLocalBounds(), isItemHighlighted(),
                                                      *shown, juce::PopupMenu::Options());
}
