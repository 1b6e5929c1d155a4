// SPDX-License-Identifier: GPL-3.0-or-later
// The keyboard in widgets: where it goes, what keys do, which keys are left to the host.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMTabContainer.h"
#include "widgets/base/tests/support/PlainWidget.h"
#include "widgets/base/tests/support/RecordingController.h"

using juce::KeyPress;
using juce::ModifierKeys;

namespace {

class Panel : public juce::Component {
public:
    Panel() { setSize(300, 100); }
};

class WidgetKeyboard : public ToolkitTest {
protected:
    WidgetKeyboard() {
        widget.editable = true;
        widget.setParameter(0, fourCharCode("afre"));
        widget.setSlotMinimum(0, 1.0, false);
        widget.setSlotMaximum(0, 440.0, false);
        widget.setParameterController(&controller);
        widget.setUseController(true);
    }

    PlainWidget widget{1, true};
    RecordingController controller;
};

} // namespace

TEST_F(WidgetKeyboard, ArrowsAndPageKeysStepInOneGestureEach) {
    TestWindow window(widget);
    widget.takeFocus();
    ASSERT_TRUE(widget.hasKeyboardFocus(false));
    EXPECT_TRUE(window.key(KeyPress(KeyPress::upKey)));
    EXPECT_TRUE(window.key(KeyPress(KeyPress::leftKey)));
    EXPECT_TRUE(
        window.key(KeyPress(KeyPress::rightKey, ModifierKeys(ModifierKeys::ctrlModifier), 0)));
    EXPECT_TRUE(
        window.key(KeyPress(KeyPress::downKey, ModifierKeys(ModifierKeys::shiftModifier), 0)));
    EXPECT_EQ(widget.steps, (std::vector<double>{1.0, -1.0, 0.1, -0.1}));
    widget.steps.clear();
    EXPECT_TRUE(window.key(KeyPress(KeyPress::pageUpKey)));
    EXPECT_EQ(widget.steps, std::vector<double>(10, 1.0));
    EXPECT_EQ(controller.calls.size(), 10u);
    EXPECT_EQ(controller.calls.front(), "begin afre");
    EXPECT_EQ(controller.calls.back(), "end afre");
}

TEST_F(WidgetKeyboard, HomeAndEndWriteTheEndsOfTheRange) {
    TestWindow window(widget);
    widget.takeFocus();
    window.key(KeyPress(KeyPress::homeKey));
    window.key(KeyPress(KeyPress::endKey));
    EXPECT_EQ(controller.calls,
              (std::vector<std::string>{"begin afre", "set afre 1", "end afre", "begin afre",
                                        "set afre 440", "end afre"}));
}

TEST_F(WidgetKeyboard, DigitsBeginAnEntryAndLettersDoNot) {
    TestWindow window(widget);
    widget.takeFocus();
    EXPECT_TRUE(window.key(KeyPress('5', {}, '5')));
    EXPECT_TRUE(window.key(KeyPress('-', {}, '-')));
    EXPECT_TRUE(window.key(KeyPress(',', {}, ',')));
    EXPECT_FALSE(window.key(KeyPress('a', {}, 'a')));
    EXPECT_FALSE(window.key(KeyPress('5', ModifierKeys(ModifierKeys::ctrlModifier), '5')));
    EXPECT_EQ(widget.entered, "5-,");
}

TEST_F(WidgetKeyboard, TheSpaceBarAndOtherKeysAreTheHosts) {
    TestWindow window(widget);
    widget.takeFocus();
    EXPECT_FALSE(window.key(KeyPress(KeyPress::spaceKey, {}, ' ')));
    EXPECT_FALSE(window.key(KeyPress(KeyPress::F5Key)));
    EXPECT_FALSE(window.key(KeyPress('r', ModifierKeys(ModifierKeys::ctrlModifier), 'r')));
    EXPECT_FALSE(window.key(KeyPress(KeyPress::returnKey)));
    EXPECT_EQ(widget.activations, 1);
    widget.activates = true;
    EXPECT_TRUE(window.key(KeyPress(KeyPress::returnKey)));
    EXPECT_TRUE(controller.calls.empty());
}

TEST_F(WidgetKeyboard, EscapeLetsGoOfTheKeyboard) {
    TestWindow window(widget);
    widget.takeFocus();
    EXPECT_TRUE(window.key(KeyPress(KeyPress::escapeKey)));
    EXPECT_FALSE(widget.hasKeyboardFocus(true));
}

TEST_F(WidgetKeyboard, ADisabledWidgetLeavesAllButTabAndEscapeToTheHost) {
    TestWindow window(widget);
    widget.takeFocus();
    widget.setWidgetEnabled(false);
    EXPECT_FALSE(widget.keyPressed(KeyPress(KeyPress::upKey)));
    EXPECT_FALSE(widget.keyPressed(KeyPress(KeyPress::returnKey)));
    EXPECT_TRUE(widget.steps.empty());
}

TEST_F(WidgetKeyboard, AMereClickDoesNotTakeTheKeyboard) {
    TestWindow window(widget);
    window.click(widget);
    EXPECT_FALSE(widget.hasKeyboardFocus(true));
}

TEST_F(WidgetKeyboard, AmongSiblingsTheKeyboardSkipsWhoCannotHaveIt) {
    Panel panel;
    PlainWidget first(1, true);
    PlainWidget label(0, false);
    PlainWidget disabled(1, true);
    PlainWidget last(1, true);
    disabled.setWidgetEnabled(false);
    for (juce::Component* const child :
         std::initializer_list<juce::Component*>{&first, &label, &disabled, &last})
        panel.addAndMakeVisible(child);
    TestWindow window(panel);
    first.takeFocus();
    // Forwards is towards the front of the list of children, backwards away from it.
    first.focusNext(true);
    EXPECT_TRUE(last.hasKeyboardFocus(false));
    last.focusNext(true);
    EXPECT_TRUE(first.hasKeyboardFocus(false));
    first.focusNext(false);
    EXPECT_TRUE(last.hasKeyboardFocus(false));
    last.focusNext(false);
    EXPECT_TRUE(first.hasKeyboardFocus(false));
}

TEST_F(WidgetKeyboard, TheOnlyWidgetKeepsTheKeyboard) {
    Panel panel;
    PlainWidget only(1, true);
    PlainWidget label(0, false);
    panel.addAndMakeVisible(only);
    panel.addAndMakeVisible(label);
    TestWindow window(panel);
    only.takeFocus();
    only.focusNext(false);
    EXPECT_TRUE(only.hasKeyboardFocus(false));
    only.focusNext(true);
    EXPECT_TRUE(only.hasKeyboardFocus(false));
}

TEST_F(WidgetKeyboard, InATabContainerTheOrderIsThatOfTheTabIndices) {
    QMTabContainer container;
    container.setSize(300, 100);
    Panel inner;
    PlainWidget third(1, true);
    PlainWidget first(1, true);
    PlainWidget second(1, true);
    third.setTabIndex(3);
    first.setTabIndex(1);
    second.setTabIndex(2);
    container.addAndMakeVisible(third);
    container.addAndMakeVisible(inner);
    inner.addAndMakeVisible(first);
    inner.addAndMakeVisible(second);
    TestWindow window(container);
    first.takeFocus();
    window.key(KeyPress(KeyPress::tabKey));
    EXPECT_TRUE(second.hasKeyboardFocus(false));
    window.key(KeyPress(KeyPress::tabKey));
    EXPECT_TRUE(third.hasKeyboardFocus(false));
    window.key(KeyPress(KeyPress::tabKey));
    EXPECT_TRUE(first.hasKeyboardFocus(false));
    window.key(KeyPress(KeyPress::tabKey, ModifierKeys(ModifierKeys::shiftModifier), 0));
    EXPECT_TRUE(third.hasKeyboardFocus(false));
    second.setVisible(false);
    first.takeFocus();
    first.focusNext(false);
    EXPECT_TRUE(third.hasKeyboardFocus(false));
    third.setWidgetEnabled(false);
    first.takeFocus();
    first.focusNext(false);
    EXPECT_TRUE(first.hasKeyboardFocus(false));
}

TEST_F(WidgetKeyboard, TakingTheFocusScrollsTheWidgetIntoView) {
    juce::Viewport viewport;
    viewport.setSize(100, 100);
    viewport.setScrollBarsShown(false, false);
    Panel large;
    large.setSize(500, 600);
    PlainWidget far(1, true);
    far.setBounds(300, 400, 40, 30);
    large.addAndMakeVisible(far);
    viewport.setViewedComponent(&large, false);
    TestWindow window(viewport);
    far.takeFocus();
    EXPECT_EQ(viewport.getViewPosition(), juce::Point<int>(240, 330)) << "by the overhang, no more";
    viewport.setViewPosition(390, 450);
    far.takeFocus();
    EXPECT_EQ(viewport.getViewPosition(), juce::Point<int>(300, 400));
    far.setCanTakeFocus(false);
    viewport.setViewPosition(0, 0);
    far.takeFocus();
    EXPECT_EQ(viewport.getViewPosition(), juce::Point<int>(0, 0));
}
