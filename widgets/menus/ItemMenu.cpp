// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/ItemMenu.h"

#include "widgets/base/QMWidget.h"
#include "widgets/menus/MenuShower.h"

#include <memory>
#include <utility>

namespace {

/// Shuts the menu when its widget goes or loses its window: the toolkit would leave it standing.
class MenuCloser final : private juce::ComponentListener {
public:
    explicit MenuCloser(QMWidget& owner)
        : widget(&owner) {
        owner.addComponentListener(this);
    }

    ~MenuCloser() override {
        if (widget != nullptr)
            widget->removeComponentListener(this);
    }

    MenuCloser(const MenuCloser&) = delete;
    MenuCloser& operator=(const MenuCloser&) = delete;

    [[nodiscard]] bool widgetIsThere() const { return widget != nullptr; }

private:
    void componentParentHierarchyChanged(juce::Component& component) override {
        if (component.getPeer() == nullptr)
            juce::PopupMenu::dismissAllActiveMenus();
    }

    void componentBeingDeleted(juce::Component&) override {
        widget = nullptr;
        juce::PopupMenu::dismissAllActiveMenus();
    }

    QMWidget* widget;
};

} // namespace

namespace ItemMenu {

juce::PopupMenu build(const juce::StringArray& items, int current) {
    juce::PopupMenu menu;
    for (int i = 0; i < items.size(); ++i) {
        if (items[i] == "-")
            menu.addSeparator();
        else
            menu.addItem(i + 1, items[i], true, i == current);
    }
    return menu;
}

void show(QMWidget& widget, const juce::StringArray& items, int current, int columns,
          std::function<void(int index)> chosen) {
    if (items.isEmpty())
        return;
    constexpr float designItemHeight = 20.0f;
    juce::PopupMenu menu = build(items, current);
    menu.setLookAndFeel(&widget.getLookAndFeel());
    const auto options = juce::PopupMenu::Options()
                             .withTargetComponent(widget)
                             .withDeletionCheck(widget)
                             .withMinimumWidth(widget.getWidth())
                             .withMinimumNumColumns(columns)
                             .withMaximumNumColumns(columns)
                             .withStandardItemHeight(juce::roundToInt(
                                 designItemHeight * juce::jmax(0.8f, widget.getMagnification())))
                             .withItemThatMustBeVisible(current + 1)
                             .withInitiallySelectedItem(current + 1);
    // It goes with the function, which goes with the menu.
    const auto closer = std::make_shared<MenuCloser>(widget);
    showMenu(std::move(menu), options, [closer, then = std::move(chosen)](int itemID) {
        if (closer->widgetIsThere() && itemID > 0)
            then(itemID - 1);
    });
}

} // namespace ItemMenu
