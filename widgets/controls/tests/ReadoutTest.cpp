// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a readout and typing a value into it.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/QMLogParameterTextTransformer.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"

#include <limits>
#include <memory>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

} // namespace

class ReadoutTest : public ToolkitTest {
protected:
    ReadoutTest() {
        readout().setBounds(50, 50, 100, 24);
        readout().setSlotMinimum(0, 0.0, false);
        readout().setSlotMaximum(0, 20000.0, false);
    }

    QMParameterReadoutWidget& readout() { return shown.control; }

    RecordingTarget& target() { return shown.target; }

    TestWindow& window() { return *shown.window; }

    juce::String textOf(double plain, double resolution = 0.01) {
        readout().setDisplayResolution(0, resolution, false);
        readout().setParameterValue(0, plain, false);
        return readout().getDisplayText();
    }

    bool pressReturn() {
        window().key(juce::KeyPress(juce::KeyPress::returnKey));
        return runPendingMessages();
    }

    /// Opens the editor by a click, types over what is there and confirms.
    void enter(const juce::String& text) {
        window().click(readout());
        window().type(text);
        pressReturn();
    }

    ControlInWindow<QMParameterReadoutWidget> shown;
};

// Text.

TEST_F(ReadoutTest, ShowsTheDecimalsOfItsSizeAndResolution) {
    EXPECT_EQ(textOf(12.345), "12.35"); // 1234.5 hundredths, halves away from zero
    EXPECT_EQ(textOf(99.994), "99.99");
    EXPECT_EQ(textOf(99.996), "100.0");
    EXPECT_EQ(textOf(123.456), "123.5");
    EXPECT_EQ(textOf(1500.0), "1.50k");
    EXPECT_EQ(textOf(12.6, 1.0), "13");
    EXPECT_EQ(textOf(150.0, 1.0), "150.0");
    EXPECT_EQ(textOf(1500.0, 1.0), "1.50k");
    EXPECT_EQ(textOf(12.34, 0.1), "12.30");
}

TEST_F(ReadoutTest, ShowsSilenceAsMinusInf) {
    EXPECT_EQ(textOf(-160.0), "-Inf");
    EXPECT_EQ(textOf(-160.004), "-Inf");
    EXPECT_EQ(textOf(-159.9), "-159.9");
    EXPECT_EQ(textOf(-160.2, 1.0), "-Inf");
}

TEST_F(ReadoutTest, ShowsASignForInfinity) {
    EXPECT_EQ(textOf(infinity), juce::String(juce::CharPointer_UTF8("\xe2\x88\x9e")));
    EXPECT_EQ(textOf(-infinity), juce::String(juce::CharPointer_UTF8("-\xe2\x88\x9e")));
}

TEST_F(ReadoutTest, SubtractsItsOffsetAndScales) {
    readout().setDisplayOffset(0, 1.0, false);
    readout().setDisplayScale(0, 100.0, false);
    EXPECT_EQ(textOf(1.5), "50.00");
}

TEST_F(ReadoutTest, ShowsDecibelsOfAnAmplitudeWithTheOtherTransformer) {
    readout().setTextTransformer(std::make_unique<QMLogParameterTextTransformer>());
    EXPECT_EQ(textOf(0.5), "-6.02");
}

TEST_F(ReadoutTest, KeepsItsValueWhenGivenNone) {
    EXPECT_EQ(textOf(3.0), "3.00");
    EXPECT_EQ(textOf(std::numeric_limits<double>::quiet_NaN()), "3.00");
}

// Entry.

TEST_F(ReadoutTest, AClickOpensAnEditorWithTheTextSelected) {
    textOf(440.0);
    window().click(readout());
    ASSERT_TRUE(readout().isEditing());
    const auto* const editor = dynamic_cast<juce::TextEditor*>(readout().getChildComponent(0));
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->getText(), "440.0");
    EXPECT_EQ(editor->getHighlightedText(), "440.0");
    EXPECT_TRUE(editor->hasKeyboardFocus(false));
}

TEST_F(ReadoutTest, ReturnWritesWhatWasTypedAsOneGesture) {
    enter("1,5k");
    EXPECT_EQ(target().notes, "begin 1500 end");
    EXPECT_EQ(readout().getDisplayText(), "1.50k");
    EXPECT_FALSE(readout().isEditing());
    EXPECT_FALSE(readout().hasKeyboardFocus(true));
}

TEST_F(ReadoutTest, EscapeLeavesTheValueAlone) {
    window().click(readout());
    window().type("7");
    window().key(juce::KeyPress(juce::KeyPress::escapeKey));
    ASSERT_TRUE(runPendingMessages());
    EXPECT_FALSE(readout().isEditing());
    EXPECT_EQ(target().notes, "");
}

TEST_F(ReadoutTest, LosingTheKeyboardLeavesTheValueAlone) {
    QMKnobWidget other;
    other.setBounds(200, 200, 50, 50);
    shown.panel.addAndMakeVisible(other);
    window().click(readout());
    window().type("7");
    other.grabKeyboardFocus();
    ASSERT_TRUE(runLoopUntil([this] { return !readout().isEditing(); }));
    EXPECT_EQ(target().notes, "");
    EXPECT_TRUE(other.hasKeyboardFocus(false));
}

TEST_F(ReadoutTest, ATextThatBeginsWithNoNumberChangesNothing) {
    for (const char* const text : {"abc", "-", "k5"})
        enter(text);
    EXPECT_EQ(target().notes, "");
    EXPECT_FALSE(readout().isEditing());
}

TEST_F(ReadoutTest, AnEmptyTextChangesNothing) {
    window().click(readout());
    window().key(juce::KeyPress(juce::KeyPress::backspaceKey));
    ASSERT_TRUE(pressReturn());
    EXPECT_EQ(target().notes, "");
}

TEST_F(ReadoutTest, WhatIsTypedIsLimitedToTheRange) {
    enter("99k");
    EXPECT_EQ(target().last(), 20000.0);
    enter("-5");
    EXPECT_EQ(target().last(), 0.0);
    enter("-inf");
    EXPECT_EQ(target().last(), 0.0);
    enter("nan");
    EXPECT_EQ(target().values.size(), 3u);
}

TEST_F(ReadoutTest, WithoutARangeInfinityIsNotWritten) {
    ControlInWindow<QMParameterReadoutWidget> free;
    QMParameterReadoutWidget unlimited;
    unlimited.setParameter(0, fourCharCode("parm"));
    unlimited.addParameterTarget(&target());
    unlimited.setBounds(0, 0, 80, 20);
    shown.panel.addAndMakeVisible(unlimited);
    window().click(unlimited);
    window().type("1e999");
    ASSERT_TRUE(pressReturn());
    EXPECT_EQ(target().notes, "");
    window().click(unlimited);
    window().type("2kk");
    ASSERT_TRUE(pressReturn());
    EXPECT_EQ(target().last(), 2000000.0);
}

TEST_F(ReadoutTest, WhatIsTypedIsWhatWouldBeShown) {
    readout().setDisplayOffset(0, 1.0, false);
    readout().setDisplayScale(0, 100.0, false);
    enter("50");
    EXPECT_EQ(target().last(), 1.5);
    EXPECT_EQ(readout().getDisplayText(), "50.00");
    readout().setDisplayOffset(0, 0.0, false);
    readout().setDisplayScale(0, 1.0, false);
    readout().setTextTransformer(std::make_unique<QMLogParameterTextTransformer>());
    enter("20");
    EXPECT_DOUBLE_EQ(target().last(), 10.0);
}

TEST_F(ReadoutTest, TheEditorHasTheSpaceBarWhileItIsOpen) {
    window().click(readout());
    EXPECT_TRUE(window().key(juce::KeyPress(juce::KeyPress::spaceKey, {}, ' ')));
    window().type("5 ");
    ASSERT_TRUE(pressReturn());
    EXPECT_EQ(target().last(), 5.0);
}

TEST_F(ReadoutTest, ArrowsInTheEditorMoveNoValueBehindIt) {
    window().click(readout());
    for (const int key : {juce::KeyPress::upKey, juce::KeyPress::downKey, juce::KeyPress::homeKey,
                          juce::KeyPress::pageUpKey})
        window().key(juce::KeyPress(key));
    EXPECT_EQ(target().notes, "");
    EXPECT_TRUE(readout().isEditing());
}

TEST_F(ReadoutTest, ADragIsNoClick) {
    window().press(readout());
    window().dragBy(20.0f, 0.0f);
    window().release();
    EXPECT_FALSE(readout().isEditing());
}

TEST_F(ReadoutTest, AClickThatTheTargetTakesOrWithTheRightButtonOpensNothing) {
    window().click(readout(), 0, juce::ModifierKeys::rightButtonModifier);
    EXPECT_FALSE(readout().isEditing());
    target().takesClicks = true;
    window().click(readout());
    EXPECT_FALSE(readout().isEditing());
}

TEST_F(ReadoutTest, ADisabledReadoutOpensNothingAndClosesWhatIsOpen) {
    window().click(readout());
    ASSERT_TRUE(readout().isEditing());
    readout().setWidgetEnabled(false);
    EXPECT_FALSE(readout().isEditing());
    window().click(readout());
    EXPECT_FALSE(readout().isEditing());
}

TEST_F(ReadoutTest, AHiddenReadoutClosesItsEditor) {
    window().click(readout());
    readout().setVisible(false);
    EXPECT_FALSE(readout().isEditing());
}

TEST_F(ReadoutTest, AReadoutThatGoesWithItsEditorOpenLeavesNothingBehind) {
    auto going = std::make_unique<QMParameterReadoutWidget>();
    going->setBounds(200, 200, 80, 20);
    shown.panel.addAndMakeVisible(*going);
    window().click(*going);
    ASSERT_TRUE(going->isEditing());
    window().type("5");
    window().key(juce::KeyPress(juce::KeyPress::returnKey));
    going.reset();
    EXPECT_TRUE(runPendingMessages());
}

TEST_F(ReadoutTest, ArrowsStepAReadoutThatStandsAlone) {
    textOf(10.0);
    readout().setKeyStep(0, 5.0, false);
    readout().takeFocus();
    window().key(juce::KeyPress(juce::KeyPress::upKey));
    window().key(juce::KeyPress(juce::KeyPress::downKey, juce::ModifierKeys::shiftModifier, 0));
    EXPECT_EQ(target().notes, "begin 15 end begin 14.5 end");
}

// Of a control.

TEST_F(ReadoutTest, DigitsAndReturnOnTheControlOpenItAndTheKeyboardComesBack) {
    QMKnobWidget knob;
    shown.bind(knob);
    knob.setBounds(200, 200, 80, 80);
    knob.setSlotMaximum(0, 100.0, false);
    shown.panel.addAndMakeVisible(knob);
    knob.setReadout(&readout());
    EXPECT_FALSE(readout().canTakeKeyboardFocus());
    knob.takeFocus();
    window().type("42");
    ASSERT_TRUE(readout().isEditing());
    EXPECT_EQ(target().notes, "");
    ASSERT_TRUE(pressReturn());
    EXPECT_EQ(target().notes, "begin 42 end");
    EXPECT_FLOAT_EQ(knob.getValue(), 0.42f);
    EXPECT_TRUE(knob.hasKeyboardFocus(false));

    window().key(juce::KeyPress(juce::KeyPress::returnKey));
    ASSERT_TRUE(readout().isEditing());
    window().type("5");
    window().key(juce::KeyPress(juce::KeyPress::escapeKey));
    ASSERT_TRUE(runPendingMessages());
    EXPECT_FLOAT_EQ(knob.getValue(), 0.42f);
    EXPECT_TRUE(knob.hasKeyboardFocus(false));
}
