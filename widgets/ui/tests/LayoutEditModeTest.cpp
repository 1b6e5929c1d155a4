// SPDX-License-Identifier: GPL-3.0-or-later
// The designers' layout mode, with the mouse and the keyboard.
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

using Area = juce::Rectangle<int>;
using juce::KeyPress;
using juce::ModifierKeys;

/// Three controls in a row at magnification 2, with room around them.
class LayoutEditMode : public EditorTest {
protected:
    void SetUp() override {
        addControl("afre", {10, 10, 30, 20});
        addControl("gain", {60, 15, 20, 20});
        addControl("wetd", {100, 5, 25, 40});
        describe("room", ProbeTypes::label, {});
        place("room", {0, 0, 200, 200});
        open().widgetOfID(fourCharCode("room"))->setSelectable(false);
        editor->widgetOfID(fourCharCode("room"))->setInterceptsMouseClicks(false, false);
        editor->setMagnification(2.0F);
        editor->setLayoutPrinter([this](const std::string& text) { printed += text; });
        window.emplace(*editor);
    }

    void TearDown() override {
        window.reset();
        editor.reset();
    }

    void edit() {
        editor->setLayoutEditEnabled(true);
        editor->setLayoutEditing(true);
    }

    void lasso(juce::Point<float> from, juce::Point<float> to, int keys = 0) {
        window->press(from, keys);
        window->dragTo(to);
        window->release();
    }

    bool pressWithAlt(int key, int character = 0) {
        return window->key(KeyPress(key, ModifierKeys(ModifierKeys::altModifier),
                                    static_cast<juce::juce_wchar>(character)));
    }

    [[nodiscard]] std::string selected() const {
        std::string ids;
        for (const QMWidget* const widget : editor->selectedWidgets())
            ids += fourCharText(widget->getWidgetID()) + " ";
        return ids;
    }

    [[nodiscard]] Area areaOf(const char (&id)[5]) const {
        return editor->control(id).getDesignArea();
    }

    std::optional<TestWindow> window;
    std::string printed;
};

TEST_F(LayoutEditMode, isOffUnlessEnabled) {
    editor->setLayoutEditing(true);
    EXPECT_FALSE(editor->isLayoutEditing());
    lasso({5.0F, 5.0F}, {350.0F, 150.0F});
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(printed, "");
    EXPECT_FALSE(pressWithAlt(KeyPress::upKey));
    window->press({40.0F, 40.0F});
    EXPECT_TRUE(editor->control("afre").isTouched(0)) << "widgets work as ever";
    window->release();
}

TEST_F(LayoutEditMode, keepsTheMouseFromTheWidgets) {
    edit();
    window->press({40.0F, 40.0F});
    EXPECT_FALSE(editor->control("afre").isTouched(0));
    window->release();
    editor->setLayoutEditEnabled(false);
    EXPECT_FALSE(editor->isLayoutEditing());
    window->press({40.0F, 40.0F});
    EXPECT_TRUE(editor->control("afre").isTouched(0));
    window->release();
}

TEST_F(LayoutEditMode, selectsWhatALassoMeets) {
    edit();
    // Pixels: afre 20,20 60x40; gain 120,30 40x40; wetd 200,10 50x80.
    lasso({70.0F, 5.0F}, {130.0F, 45.0F});
    EXPECT_EQ(selected(), "afre gain ");
    EXPECT_TRUE(editor->control("gain").isSelected());
    EXPECT_FALSE(editor->control("wetd").isSelected());
}

TEST_F(LayoutEditMode, beginsAnewWithoutShiftAndAddsWithIt) {
    edit();
    lasso({90.0F, 5.0F}, {130.0F, 45.0F});
    EXPECT_EQ(selected(), "gain ");
    lasso({190.0F, 5.0F}, {210.0F, 45.0F}, ModifierKeys::shiftModifier);
    EXPECT_TRUE(editor->control("gain").isSelected());
    EXPECT_TRUE(editor->control("wetd").isSelected());
    lasso({10.0F, 5.0F}, {30.0F, 45.0F});
    EXPECT_EQ(selected(), "afre ");
    EXPECT_FALSE(editor->control("wetd").isSelected());
}

TEST_F(LayoutEditMode, clearsTheSelectionWithAPressOnTheBackground) {
    edit();
    lasso({10.0F, 5.0F}, {30.0F, 45.0F});
    window->click({300.0F, 300.0F}, ModifierKeys::shiftModifier);
    EXPECT_EQ(selected(), "afre ");
    window->click({300.0F, 300.0F});
    EXPECT_EQ(selected(), "");
    EXPECT_FALSE(editor->control("afre").isSelected());
}

TEST_F(LayoutEditMode, printsWhatTheSearchCompares) {
    edit();
    lasso({90.0F, 5.0F}, {130.0F, 45.0F});
    EXPECT_EQ(printed, "===================\n"
                       "Comp Area = 20, 20; 60, 40\n"
                       "  Drag Area = 20, 20; 60, 40\n"
                       "===================\n"
                       "Comp Area = 120, 30; 40, 40\n"
                       "* Drag Area = 120, 30; 40, 40\n"
                       "===================\n"
                       "Comp Area = 200, 10; 50, 80\n"
                       "  Drag Area = 200, 10; 50, 80\n");
}

TEST_F(LayoutEditMode, selectsAWidgetWithAPress) {
    edit();
    window->click({40.0F, 40.0F});
    EXPECT_EQ(selected(), "afre ");
    window->click({130.0F, 40.0F});
    EXPECT_EQ(selected(), "gain ");
    window->click({40.0F, 40.0F}, ModifierKeys::shiftModifier);
    EXPECT_EQ(selected(), "gain afre ");
}

TEST_F(LayoutEditMode, beginsALassoOverAWidgetWithControl) {
    edit();
    window->click({210.0F, 40.0F});
    lasso({70.0F, 40.0F}, {130.0F, 45.0F}, ModifierKeys::commandModifier);
    EXPECT_EQ(selected(), "afre gain ");
    EXPECT_EQ(areaOf("afre"), Area(10, 10, 30, 20)) << "nothing moves";
}

TEST_F(LayoutEditMode, dragsEverythingSelectedTogether) {
    edit();
    lasso({70.0F, 5.0F}, {130.0F, 45.0F});
    window->press({40.0F, 40.0F});
    window->dragTo({50.0F, 46.0F});
    window->dragTo({60.0F, 41.0F});
    window->release();
    // 20 pixels and 1 pixel: 10 units and half a unit, rounded away from nought.
    EXPECT_EQ(areaOf("afre"), Area(20, 11, 30, 20));
    EXPECT_EQ(areaOf("gain"), Area(70, 16, 20, 20));
    EXPECT_EQ(areaOf("wetd"), Area(100, 5, 25, 40));
    EXPECT_EQ(editor->control("afre").getBounds(), Area(40, 22, 60, 40));
    EXPECT_EQ(selected(), "afre gain ");
}

TEST_F(LayoutEditMode, dragsAnUnselectedWidgetAlone) {
    edit();
    lasso({90.0F, 5.0F}, {130.0F, 45.0F});
    window->press({40.0F, 40.0F});
    window->dragTo({60.0F, 40.0F});
    window->release();
    EXPECT_EQ(selected(), "afre ");
    EXPECT_EQ(areaOf("afre"), Area(20, 10, 30, 20));
    EXPECT_EQ(areaOf("gain"), Area(60, 15, 20, 20));
}

TEST_F(LayoutEditMode, growsWithWhatIsDraggedOut) {
    edit();
    window->press({210.0F, 40.0F});
    window->dragTo({410.0F, 40.0F});
    window->release();
    EXPECT_EQ(areaOf("wetd"), Area(200, 5, 25, 40));
    EXPECT_EQ(editor->getDesignSize(), Area(0, 0, 225, 200));
}

TEST_F(LayoutEditMode, linesUpTheSelectionWithSixKeys) {
    edit();
    lasso({70.0F, 5.0F}, {130.0F, 45.0F});
    EXPECT_TRUE(pressWithAlt(KeyPress::upKey));
    EXPECT_EQ(areaOf("gain"), Area(60, 10, 20, 20));
    EXPECT_EQ(editor->control("gain").getBounds(), Area(120, 20, 40, 40));
    EXPECT_TRUE(pressWithAlt(KeyPress::leftKey));
    EXPECT_EQ(areaOf("gain"), Area(10, 10, 20, 20));
    EXPECT_TRUE(pressWithAlt(KeyPress::rightKey));
    EXPECT_EQ(areaOf("gain"), Area(20, 10, 20, 20));
    // Centres across at 25 and 30: 27.
    EXPECT_TRUE(pressWithAlt('|', '|'));
    EXPECT_EQ(areaOf("afre"), Area(12, 10, 30, 20));
    EXPECT_EQ(areaOf("gain"), Area(17, 10, 20, 20));
    EXPECT_EQ(areaOf("wetd"), Area(100, 5, 25, 40)) << "not selected";
}

TEST_F(LayoutEditMode, linesUpDownwards) {
    edit();
    lasso({190.0F, 5.0F}, {210.0F, 45.0F});
    lasso({10.0F, 5.0F}, {30.0F, 45.0F}, ModifierKeys::shiftModifier);
    // Centres down at 25 and 20: 22.
    EXPECT_TRUE(pressWithAlt('-', '-'));
    EXPECT_EQ(areaOf("afre"), Area(10, 12, 30, 20));
    EXPECT_EQ(areaOf("wetd"), Area(100, 2, 25, 40));
    EXPECT_TRUE(pressWithAlt(KeyPress::downKey));
    EXPECT_EQ(areaOf("afre"), Area(10, 22, 30, 20));
}

TEST_F(LayoutEditMode, handlesNoOtherKeyAndNoneWithoutAlt) {
    edit();
    lasso({70.0F, 5.0F}, {130.0F, 45.0F});
    EXPECT_FALSE(window->key(KeyPress(KeyPress::upKey)));
    EXPECT_FALSE(pressWithAlt('a', 'a'));
    EXPECT_EQ(areaOf("gain"), Area(60, 15, 20, 20));
}

TEST_F(LayoutEditMode, linesUpNothingWhenNothingIsSelected) {
    edit();
    window->click({300.0F, 300.0F});
    EXPECT_TRUE(pressWithAlt('|', '|'));
    EXPECT_EQ(areaOf("gain"), Area(60, 15, 20, 20));
}

TEST_F(LayoutEditMode, forgetsTheSelectionWhenItEnds) {
    edit();
    lasso({70.0F, 5.0F}, {130.0F, 45.0F});
    editor->setLayoutEditing(false);
    EXPECT_FALSE(editor->control("afre").isSelected());
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(editor->getNumChildComponents(), 4) << "nothing lies over the widgets";
}

TEST_F(LayoutEditMode, followsAMagnification) {
    edit();
    editor->setMagnification(1.0F);
    window->click({20.0F, 20.0F});
    EXPECT_EQ(selected(), "afre ");
    window->press({20.0F, 20.0F});
    window->dragTo({25.0F, 20.0F});
    window->release();
    EXPECT_EQ(areaOf("afre"), Area(15, 10, 30, 20));
}

TEST_F(LayoutEditMode, endsWithTheEditorInTheMiddleOfALasso) {
    edit();
    window->press({5.0F, 5.0F});
    window->dragTo({130.0F, 45.0F});
    editor.reset();
    window->release();
}

TEST_F(LayoutEditMode, answersItsCommands) {
    juce::Array<juce::CommandID> commands;
    editor->getAllCommands(commands);
    EXPECT_EQ(commands.size(), 2);
    const auto perform = [this](juce::CommandID command) {
        return editor->perform(juce::ApplicationCommandTarget::InvocationInfo(command));
    };
    perform(QMEditContainer::editLayout);
    EXPECT_FALSE(editor->isLayoutEditing()) << "not enabled";
    editor->setLayoutEditEnabled(true);
    EXPECT_TRUE(perform(QMEditContainer::editLayout));
    EXPECT_TRUE(editor->isLayoutEditing());
    EXPECT_TRUE(perform(QMEditContainer::selectEverything));
    EXPECT_EQ(selected(), "afre gain wetd ");
    juce::ApplicationCommandInfo info(QMEditContainer::editLayout);
    editor->getCommandInfo(QMEditContainer::editLayout, info);
    EXPECT_EQ(info.flags & juce::ApplicationCommandInfo::isTicked,
              juce::ApplicationCommandInfo::isTicked);
    EXPECT_FALSE(perform(1));
}

TEST_F(LayoutEditMode, findsSelectableWidgetsForAnyLasso) {
    QMSelectableLassoSource source(*editor);
    EXPECT_EQ(source.selectables().size(), 3U);
    juce::Array<QMSelectable*> found;
    source.findLassoItemsInArea(found, {90, 5, 40, 40});
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0]->getComponent(), &editor->control("gain"));
    source.getLassoSelection().selectOnly(found[0]);
    EXPECT_TRUE(editor->control("gain").isSelected());
    source.getLassoSelection().deselectAll();
    EXPECT_FALSE(editor->control("gain").isSelected());
}

} // namespace
