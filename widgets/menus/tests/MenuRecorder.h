// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the menus that widgets open, so that a test can look at them and choose.
#pragma once

#include "widgets/menus/MenuShower.h"

#include <string>

class MenuRecorder {
public:
    MenuRecorder() {
        setMenuShower([this](juce::PopupMenu menu, const juce::PopupMenu::Options& shownWith,
                             std::function<void(int)> toldOfChoice) {
            ++shown;
            options = shownWith;
            chosen = std::move(toldOfChoice);
            texts = {};
            ticked = {};
            lines = 0;
            for (juce::PopupMenu::MenuItemIterator i(menu); i.next();) {
                const juce::PopupMenu::Item& item = i.getItem();
                if (item.isSeparator) {
                    ++lines;
                    continue;
                }
                texts.add(item.text);
                if (item.isTicked)
                    ticked.add(item.text);
            }
        });
    }

    ~MenuRecorder() { setMenuShower(nullptr); }

    MenuRecorder(const MenuRecorder&) = delete;
    MenuRecorder& operator=(const MenuRecorder&) = delete;

    /// As somebody who clicks the item of this index.
    void choose(int index) { chosen(index + 1); }

    void dismiss() { chosen(0); }

    // The last menu.

    int shown = 0; ///< how many there were
    juce::StringArray texts;
    juce::StringArray ticked;
    int lines = 0;
    juce::PopupMenu::Options options;

private:
    std::function<void(int)> chosen;
};
