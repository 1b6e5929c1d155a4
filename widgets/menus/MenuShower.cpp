// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/MenuShower.h"

#include <utility>

namespace {

MenuShower& currentShower() {
    static MenuShower shower;
    return shower;
}

} // namespace

void showMenu(juce::PopupMenu menu, const juce::PopupMenu::Options& options,
              std::function<void(int itemID)> chosen) {
    if (currentShower())
        currentShower()(std::move(menu), options, std::move(chosen));
    else
        menu.showMenuAsync(options, std::move(chosen));
}

void setMenuShower(MenuShower shower) {
    currentShower() = std::move(shower);
}
