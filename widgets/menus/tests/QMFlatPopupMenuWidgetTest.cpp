// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/QMFlatPopupMenuWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/tests/RecordingTarget.h"
#include "widgets/menus/QMFlatMenuGridWidget.h"
#include "widgets/menus/tests/MenuRecorder.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

using Horizontal = FlatMenuOptions::Horizontal;

class FlatMenuTest : public ToolkitTest {
protected:
    FlatMenuTest() {
        menu.setItems({"60%", "100%", "120%"}, 1);
        menu.setSize(200, 20);
        menu.setParameter(0, RecordingTarget::parameter);
        menu.setSlotMaximum(0, 2.0, false);
        menu.addParameterTarget(&target);
    }

    RecordingTarget target;
    MenuRecorder menus;
    QMFlatPopupMenuWidget menu;
};

} // namespace

TEST_F(FlatMenuTest, AClickOpensTheMenuOfItsItems) {
    TestWindow window(menu);
    window.click(menu);
    EXPECT_EQ(menus.shown, 1);
    EXPECT_EQ(menus.texts, juce::StringArray("60%", "100%", "120%"));
    EXPECT_EQ(menus.ticked, juce::StringArray("100%"));
    // Nothing has happened yet.
    EXPECT_EQ(menu.getState(), 1);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(FlatMenuTest, AChoiceIsWrittenAsAGestureAndTold) {
    std::vector<double> told;
    menu.setChangeCallback(
        [&](QMTrackedMultistateButtonWidget&, double value) { told.push_back(value); });
    TestWindow window(menu);
    window.click(menu);
    menus.choose(2);
    EXPECT_EQ(menu.getDisplayText(), "120%");
    EXPECT_EQ(target.takeNotes(), "begin 2 end ");
    EXPECT_EQ(told, std::vector<double>{2.0});
    window.click(menu);
    menus.dismiss();
    window.click(menu);
    menus.choose(2);
    EXPECT_EQ(target.takeNotes(), "");
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(FlatMenuTest, AChoiceGoesThroughItsMap) {
    menu.setValueMap(
        {[](int state) { return state == 0 ? 60.0 : 80.0 + 20.0 * state; },
         [](double value) { return value < 80.0 ? 0 : (static_cast<int>(value) - 80) / 20; }});
    menu.openMenu();
    menus.choose(0);
    EXPECT_EQ(target.takeNotes(), "begin 60 end ");
    EXPECT_EQ(menu.getState(), 0);
}

TEST_F(FlatMenuTest, ItMayGoWhileItsMenuIsOpenOrWhenItsOwnerIsTold) {
    auto shortLived = std::make_unique<QMFlatPopupMenuWidget>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->openMenu();
    shortLived.reset();
    menus.choose(1);

    shortLived = std::make_unique<QMFlatPopupMenuWidget>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->setChangeCallback(
        [&](QMTrackedMultistateButtonWidget&, double) { shortLived.reset(); });
    shortLived->openMenu();
    menus.choose(1);
    EXPECT_EQ(shortLived, nullptr);
}

TEST_F(FlatMenuTest, AChoiceMadeTooLateDoesNothing) {
    menu.openMenu();
    menu.setWidgetEnabled(false);
    menus.choose(0);
    EXPECT_EQ(menu.getState(), 1);
    menu.setWidgetEnabled(true);
    menu.openMenu();
    menu.setItems({"A"}, 0);
    menus.choose(2);
    EXPECT_EQ(menu.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(FlatMenuTest, DisabledLockedOrWithTheClickTakenItStaysShut) {
    TestWindow window(menu);
    menu.setWidgetEnabled(false);
    window.click(menu);
    menu.setWidgetEnabled(true);
    menu.setLocked(true);
    window.click(menu);
    menu.setLocked(false);
    target.wantsClicks = true;
    window.click(menu);
    target.wantsClicks = false;
    menu.setClickHandler(
        [](QMTrackedMultistateButtonWidget&, const juce::MouseEvent&) { return true; });
    window.click(menu);
    EXPECT_EQ(menus.shown, 0);
}

TEST_F(FlatMenuTest, ReturnOpensItAndArrowsStepThroughTheItems) {
    TestWindow window(menu);
    menu.takeFocus();
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::returnKey)));
    EXPECT_EQ(menus.shown, 1);
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_EQ(menu.getState(), 2);
    EXPECT_FALSE(window.key(juce::KeyPress(juce::KeyPress::spaceKey)));
    EXPECT_EQ(menus.shown, 1);
}

TEST_F(FlatMenuTest, TheArrowIsThereWhenThereIsSomethingToChoose) {
    EXPECT_TRUE(menu.isArrowActive());
    menu.setItems({"Only"}, 0);
    EXPECT_FALSE(menu.isArrowActive());
    FlatMenuOptions options;
    options.forceArrow = true;
    menu.setOptions(options);
    EXPECT_TRUE(menu.isArrowActive());
    menu.setWidgetEnabled(false);
    EXPECT_FALSE(menu.isArrowActive());
    menu.setWidgetEnabled(true);
    options.forceArrow = false;
    options.showArrow = false;
    menu.setOptions(options);
    menu.setItems({"One", "Two"}, 0);
    EXPECT_FALSE(menu.isArrowActive());
}

TEST_F(FlatMenuTest, ItsFontIsSevenTenthsOfItsHeightUnlessItHasItsOwn) {
    // 0.7 x 20 = 14, the arrow 1.1 times that.
    EXPECT_NEAR(menu.currentLayout().arrow.getWidth(), 15.4f, 0.01f);
    menu.setOwnFont(juce::Font(10.0f));
    EXPECT_NEAR(menu.currentLayout().arrow.getWidth(), 11.0f, 0.01f);
}

TEST_F(FlatMenuTest, TextAndArrowAreDrawnWhereTheLayoutHasThem) {
    menu.setOwnColour(juce::Colours::white);
    menu.setItems({"HHHH", "I"}, 0);
    FlatMenuOptions options;
    options.horizontalPlacement = Horizontal::right;
    menu.setOptions(options);
    const juce::Image picture = pictureOf(menu);
    const juce::Rectangle<int> arrow = menu.currentLayout().arrow.toNearestInt();
    EXPECT_FALSE(inkOf(picture.getClippedImage(arrow)).isEmpty());
    const juce::Rectangle<int> text = inkOf(picture.getClippedImage({0, 0, arrow.getX(), 20}));
    // Right up to where the arrow begins.
    EXPECT_NEAR(text.getRight(), arrow.getX(), 3);

    options.horizontalPlacement = Horizontal::left;
    options.showArrow = false;
    menu.setOptions(options);
    EXPECT_LE(inkOf(pictureOf(menu)).getX(), 3);
    EXPECT_LT(inkOf(pictureOf(menu)).getRight(), 100);
    options.showItemText = false;
    menu.setOptions(options);
    EXPECT_TRUE(inkOf(pictureOf(menu)).isEmpty());
}

TEST_F(FlatMenuTest, ItsNameIsDrawnAtTheLeftUnlessHidden) {
    menu.setOwnColour(juce::Colours::white);
    menu.setName("HHHH");
    FlatMenuOptions options;
    options.horizontalPlacement = Horizontal::right;
    menu.setOptions(options);
    EXPECT_LE(inkOf(pictureOf(menu)).getX(), 3);
    options.hideLabel = true;
    menu.setOptions(options);
    EXPECT_GT(inkOf(pictureOf(menu)).getX(), 100);
}

TEST_F(FlatMenuTest, ABackgroundIsDrawnBehindEverything) {
    FlatMenuOptions options;
    menu.setOwnColour(juce::Colours::white);
    menu.setOptions(options);
    expectPixel(pictureOf(menu), 5, 10, juce::Colours::black, 0);
    options.drawBackground = true;
    menu.setOptions(options);
    EXPECT_GT(pictureOf(menu).getPixelAt(5, 10).getBrightness(), 0.05f);
}

TEST_F(FlatMenuTest, AScreenReaderTakesItForSomethingThatOpens) {
    menu.setName("Size");
    const auto handler = menu.createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::comboBox);
    EXPECT_EQ(handler->getTitle(), "Size");
    EXPECT_TRUE(handler->getCurrentState().isExpandable());
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "100%");
    EXPECT_TRUE(handler->getActions().invoke(juce::AccessibilityActionType::showMenu));
    EXPECT_EQ(menus.shown, 1);
}

TEST_F(FlatMenuTest, TheItemsOfAGridStandInAboutAsManyColumnsAsRows) {
    QMFlatMenuGridWidget grid;
    const auto columnsOf = [&](int items) {
        juce::StringArray texts;
        for (int i = 0; i < items; ++i)
            texts.add(juce::String(i));
        grid.setItems(texts, 0);
        grid.openMenu();
        return menus.options.getMaximumNumColumns();
    };
    EXPECT_EQ(columnsOf(1), 1);
    EXPECT_EQ(columnsOf(4), 2);
    EXPECT_EQ(columnsOf(5), 3);
    EXPECT_EQ(columnsOf(16), 4);
}
