// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/QMPopupMenuWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/buttons/tests/RecordingTarget.h"
#include "widgets/buttons/tests/RepaintCounter.h"
#include "widgets/menus/MenuWidgetTypes.h"
#include "widgets/menus/QMFlatMenuGridWidget.h"
#include "widgets/menus/QMFlatPopupMenuWidget.h"
#include "widgets/menus/tests/MenuRecorder.h"
#include "widgets/statics/LabelTextColour.h"
#include "widgets/statics/tests/PictureOf.h"

#include <limits>
#include <string>

namespace {

using FirstItem = QMPopupMenuWidget::FirstItem;

class PopupMenuTest : public ToolkitTest {
protected:
    PopupMenuTest() {
        popup.setSize(120, 24);
        popup.setParameter(0, RecordingTarget::parameter);
        popup.addParameterTarget(&target);
        popup.setSlotMinimum(0, 0.0, false);
        popup.setSlotMaximum(0, 2.0, false);
        popup.setItems({"Sine", "Square", "Saw"}, 0);
    }

    RecordingTarget target;
    MenuRecorder menus;
    QMPopupMenuWidget popup;
};

} // namespace

TEST_F(PopupMenuTest, ItShowsTheNameOfItsValue) {
    popup.setParameterValue(0, 2.0, false);
    EXPECT_EQ(popup.getDisplayText(), "Saw");
    EXPECT_EQ(popup.getSlotValue(0), 2.0);
    EXPECT_EQ(target.takeNotes(), "");
    // Nearly 1, as single precision has it.
    popup.setParameterValue(0, 0.99999994, false);
    EXPECT_EQ(popup.getDisplayText(), "Square");
}

TEST_F(PopupMenuTest, AValueWithoutANameIsUnknown) {
    for (const double value : {3.0, -1.0, 1.0e300, -1.0e300}) {
        popup.setParameterValue(0, value, false);
        EXPECT_EQ(popup.getDisplayText(), "UNKNOWN") << value;
    }
    popup.setItems({"Sine", ""}, 1);
    EXPECT_EQ(popup.getDisplayText(), "UNKNOWN");
    popup.setItems({}, 0);
    EXPECT_EQ(popup.getDisplayText(), "UNKNOWN");
}

TEST_F(PopupMenuTest, WhatIsNoNumberChangesNothing) {
    popup.setParameterValue(0, 1.0, false);
    popup.setParameterValue(0, std::numeric_limits<double>::quiet_NaN(), true);
    popup.setParameterValue(1, 2.0, true);
    EXPECT_EQ(popup.getSlotValue(0), 1.0);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(PopupMenuTest, TheFirstItemNamesTheMinimum) {
    popup.setSlotMinimum(0, 5.0, false);
    popup.setParameterValue(0, 6.0, false);
    EXPECT_EQ(popup.getDisplayText(), "Square");
    popup.openMenu();
    menus.choose(2);
    EXPECT_EQ(target.takeNotes(), "begin 7 end ");
}

TEST_F(PopupMenuTest, OrItNamesZeroWhateverTheMinimum) {
    QMPopupMenuWidget fromZero(FirstItem::zero);
    fromZero.setSlotMinimum(0, 1.0, false);
    fromZero.setItems({"Sine", "Square", "Saw"}, 0);
    fromZero.setParameterValue(0, 1.0, false);
    EXPECT_EQ(fromZero.getDisplayText(), "Square");
}

TEST_F(PopupMenuTest, AClickOpensTheMenuAndAChoiceIsWritten) {
    std::vector<double> told;
    popup.setChangeCallback([&](QMPopupMenuWidget&, double value) { told.push_back(value); });
    TestWindow window(popup);
    window.click(popup);
    EXPECT_EQ(menus.texts, juce::StringArray("Sine", "Square", "Saw"));
    EXPECT_EQ(menus.ticked, juce::StringArray("Sine"));
    EXPECT_EQ(target.takeNotes(), "");
    menus.choose(1);
    EXPECT_EQ(popup.getDisplayText(), "Square");
    EXPECT_EQ(target.takeNotes(), "begin 1 end ");
    EXPECT_EQ(told, std::vector<double>{1.0});
    // Once more the same.
    window.click(popup);
    menus.choose(1);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(PopupMenuTest, DisabledOrWithTheClickTakenItStaysShut) {
    TestWindow window(popup);
    popup.setWidgetEnabled(false);
    window.click(popup);
    popup.setWidgetEnabled(true);
    target.wantsClicks = true;
    window.click(popup);
    EXPECT_EQ(menus.shown, 0);
}

TEST_F(PopupMenuTest, ReturnOpensItAndArrowsStepWithoutGoingPastTheEnds) {
    TestWindow window(popup);
    popup.takeFocus();
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::returnKey)));
    EXPECT_EQ(menus.shown, 1);
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::downKey)));
    EXPECT_EQ(popup.currentItem(), 0);
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::endKey)));
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::upKey)));
    EXPECT_EQ(popup.currentItem(), 2);
    EXPECT_EQ(target.takeNotes(), "begin end begin 1 end begin 2 end begin end ");
}

TEST_F(PopupMenuTest, ItMayGoWhileItsMenuIsOpenOrWhenItsOwnerIsTold) {
    auto shortLived = std::make_unique<QMPopupMenuWidget>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->openMenu();
    shortLived.reset();
    menus.choose(1);

    shortLived = std::make_unique<QMPopupMenuWidget>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->setChangeCallback([&](QMPopupMenuWidget&, double) { shortLived.reset(); });
    shortLived->openMenu();
    menus.choose(1);
    EXPECT_EQ(shortLived, nullptr);
}

TEST_F(PopupMenuTest, ThePicturesOfTheFrameAreUsedWhenAllAreThere) {
    popup.setFramePictures(imageOf(juce::Colours::red, 6, 12), imageOf(juce::Colours::blue, 4, 12),
                           imageOf(juce::Colours::lime, 6, 12));
    const juce::Image picture = pictureOf(popup);
    // Twice as high, so each cap is 12 wide.
    expectPixel(picture, 1, 1, juce::Colours::red);
    expectPixel(picture, 10, 22, juce::Colours::red);
    expectPixel(picture, 14, 1, juce::Colours::blue);
    expectPixel(picture, 118, 1, juce::Colours::lime);
    popup.setFramePictures({}, imageOf(juce::Colours::blue, 4, 12), {});
    EXPECT_FALSE(isNear(pictureOf(popup).getPixelAt(60, 1), juce::Colours::blue, 60));
}

TEST_F(PopupMenuTest, ItsTextIsLegibleOnTheDarkWindowAndFaintWhenDisabled) {
    popup.setItems({"HHHH"}, 0);
    const auto brightest = [this] {
        const juce::Image picture = pictureOf(popup);
        float found = 0.0f;
        for (int x = 5; x < 100; ++x)
            found = juce::jmax(found, picture.getPixelAt(x, 12).getBrightness());
        return found;
    };
    EXPECT_GT(brightest(), 0.7f);
    popup.setWidgetEnabled(false);
    EXPECT_LT(brightest(), 0.62f);
    popup.setWidgetEnabled(true);
    popup.setTextColour(juce::Colour(0, 60, 0));
    EXPECT_LT(brightest(), 0.5f);
    // The colour of all labels goes before its own.
    LabelTextColour::setOverride(juce::Colours::white);
    EXPECT_GT(brightest(), 0.7f);
    LabelTextColour::setOverride({});
}

TEST_F(PopupMenuTest, DeferredUpdatesArePaintedTogether) {
    popup.setVisible(true);
    RepaintCounter& counter = RepaintCounter::on(popup);
    popup.setDeferUpdates(true);
    popup.setParameterValue(0, 1.0, false);
    popup.setParameterValue(0, 2.0, false);
    EXPECT_EQ(counter.repaints, 0);
    popup.setDeferUpdates(false);
    EXPECT_EQ(counter.repaints, 1);
    popup.setParameterValue(0, 2.0, false);
    EXPECT_EQ(counter.repaints, 1);
}

TEST_F(PopupMenuTest, EachCodeMakesItsClassAndHasItsItems) {
    using Items = QMWidgetFactory::Items;
    QMWidgetFactory factory;
    addMenuWidgetTypes(factory);
    const auto make = [&](std::uint32_t code) {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        return factory.create(descriptor);
    };
    for (const std::uint32_t code : {8U, 16U, 47U})
        EXPECT_NE(dynamic_cast<QMPopupMenuWidget*>(make(code).get()), nullptr) << code;
    for (const std::uint32_t code : {22U, 23U})
        EXPECT_NE(dynamic_cast<QMFlatPopupMenuWidget*>(make(code).get()), nullptr) << code;
    EXPECT_NE(dynamic_cast<QMFlatMenuGridWidget*>(make(54).get()), nullptr);
    EXPECT_EQ(factory.typeOf(8)->items, Items::named);
    EXPECT_EQ(factory.typeOf(16)->items, Items::named);
    EXPECT_EQ(factory.typeOf(47)->items, Items::fromZero);
    EXPECT_EQ(factory.typeOf(22)->items, Items::fromZero);
    EXPECT_EQ(factory.typeOf(23)->items, Items::fromZero);
    EXPECT_EQ(factory.typeOf(54)->items, Items::fromZero);
}
