// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/ItemMenu.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidget.h"
#include "widgets/menus/tests/MenuRecorder.h"

#include <vector>

using ItemMenuTest = ToolkitTest;

TEST_F(ItemMenuTest, ItHasEveryItemInOrderAndATickAtThePresentOne) {
    const MenuRecorder menus;
    QMWidget widget;
    ItemMenu::show(widget, {"One", "Two", "Three"}, 1, 1, [](int) {});
    EXPECT_EQ(menus.texts, juce::StringArray("One", "Two", "Three"));
    EXPECT_EQ(menus.ticked, juce::StringArray("Two"));
    ItemMenu::show(widget, {"One", "Two", "Three"}, -1, 1, [](int) {});
    EXPECT_TRUE(menus.ticked.isEmpty());
}

TEST_F(ItemMenuTest, AHyphenIsALineThatKeepsItsIndex) {
    MenuRecorder menus;
    QMWidget widget;
    int chosen = -1;
    ItemMenu::show(widget, {"One", "-", "Three"}, 0, 1, [&](int index) { chosen = index; });
    EXPECT_EQ(menus.texts, juce::StringArray("One", "Three"));
    EXPECT_EQ(menus.lines, 1);
    menus.choose(2);
    EXPECT_EQ(chosen, 2);
}

TEST_F(ItemMenuTest, AMenuThatIsDismissedChoosesNothing) {
    MenuRecorder menus;
    QMWidget widget;
    int chosen = -1;
    ItemMenu::show(widget, {"One", "Two"}, 0, 1, [&](int index) { chosen = index; });
    menus.dismiss();
    EXPECT_EQ(chosen, -1);
}

TEST_F(ItemMenuTest, WithoutItemsThereIsNoMenu) {
    const MenuRecorder menus;
    QMWidget widget;
    ItemMenu::show(widget, {}, 0, 1, [](int) {});
    EXPECT_EQ(menus.shown, 0);
}

TEST_F(ItemMenuTest, ItBelongsToTheWidgetAndIsAtLeastAsWide) {
    const MenuRecorder menus;
    QMWidget widget;
    widget.setSize(180, 20);
    widget.setMagnification(1.5f);
    ItemMenu::show(widget, {"One", "Two"}, 1, 3, [](int) {});
    EXPECT_EQ(menus.options.getTargetComponent(), &widget);
    EXPECT_EQ(menus.options.getMinimumWidth(), 180);
    EXPECT_EQ(menus.options.getMinimumNumColumns(), 3);
    // 20 at magnification 1.
    EXPECT_EQ(menus.options.getStandardItemHeight(), 30);
    EXPECT_EQ(menus.options.getItemThatMustBeVisible(), 2);
}

TEST_F(ItemMenuTest, AChoiceAfterTheWidgetsEndDoesNothing) {
    MenuRecorder menus;
    auto widget = std::make_unique<QMWidget>();
    int chosen = -1;
    ItemMenu::show(*widget, {"One", "Two"}, 0, 1, [&](int index) { chosen = index; });
    widget.reset();
    menus.choose(1);
    EXPECT_EQ(chosen, -1);
    EXPECT_TRUE(menus.options.hasWatchedComponentBeenDeleted());
}

TEST(ItemMenuColumns, MoreThanTwoDozenItemsMakeAnotherColumn) {
    EXPECT_EQ(ItemMenu::columnsFor(0), 1);
    EXPECT_EQ(ItemMenu::columnsFor(24), 1);
    EXPECT_EQ(ItemMenu::columnsFor(25), 2);
    EXPECT_EQ(ItemMenu::columnsFor(48), 2);
    EXPECT_EQ(ItemMenu::columnsFor(128), 6);
}
