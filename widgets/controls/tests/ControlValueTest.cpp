// SPDX-License-Identifier: GPL-3.0-or-later
// A control's value: what it shows, writes and never lets in; its range, text and keys.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/QMLogParameterTextTransformer.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"

#include <cmath>
#include <limits>
#include <memory>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Counts how often its look has changed.
class CountingControl final : public QMParameterControlWidget {
public:
    int changes = 0;

protected:
    void positionChanged(float) override { ++changes; }
};

} // namespace

class ControlValueTest : public ToolkitTest {
protected:
    void setRange(double minimum, double maximum) {
        control().setSlotMinimum(0, minimum, false);
        control().setSlotMaximum(0, maximum, false);
    }

    CountingControl& control() { return shown.control; }

    RecordingTarget& target() { return shown.target; }

    ControlInWindow<CountingControl> shown;
};

TEST_F(ControlValueTest, AFreshControlIsInTheMiddleOfZeroToOne) {
    const QMKnobWidget fresh;
    EXPECT_EQ(fresh.getValue(), 0.5f);
    EXPECT_EQ(fresh.getSlotDefault(0), 0.5);
    EXPECT_EQ(fresh.getSlotMinimum(0), 0.0);
    EXPECT_EQ(fresh.getSlotMaximum(0), 1.0);
    EXPECT_EQ(fresh.getNumParameterSlots(), 1u);
    EXPECT_TRUE(fresh.canTakeKeyboardFocus());
    EXPECT_EQ(fresh.getTaperMode(), ControlTaper::linear);
}

TEST_F(ControlValueTest, SlotsThatItHasNotAnswerAsAnyWidgets) {
    control().setSlotMinimum(1, 5.0, false);
    control().setSlotMaximum(1, 6.0, false);
    control().setSlotDefault(1, 7.0, false);
    EXPECT_EQ(control().getSlotMinimum(1), 0.0);
    EXPECT_EQ(control().getSlotMaximum(1), 1.0);
    EXPECT_EQ(control().getSlotDefault(1), 0.0);
    EXPECT_EQ(control().getSlotValue(1), 0.0);
    EXPECT_EQ(control().getSlotMaximum(0), 1.0);
}

TEST_F(ControlValueTest, AValueOfThePlugInsIsShownAndNotWritten) {
    setRange(-60.0, 6.0);
    control().setParameterValue(0, -10.5, false);
    EXPECT_FLOAT_EQ(control().getValue(), 0.75f);
    EXPECT_NEAR(control().getSlotValue(0), -10.5, 1e-5);
    EXPECT_EQ(target().notes, "");
}

TEST_F(ControlValueTest, AValueOutsideTheRangeIsShownAtItsEnd) {
    control().setParameterValue(0, 7.0, false);
    EXPECT_EQ(control().getValue(), 1.0f);
    control().setParameterValue(0, -infinity, false);
    EXPECT_EQ(control().getValue(), 0.0f);
}

TEST_F(ControlValueTest, WhatIsNotANumberIsShownAsTheMinimumAndNeverWritten) {
    control().setParameterValue(0, notANumber, false);
    EXPECT_EQ(control().getValue(), 0.0f);
    control().setParameterValue(0, 0.4, false);
    control().setParameterValue(0, notANumber, true);
    control().setValueFromUser(notANumber);
    control().nudge(notANumber);
    control().writeDisplayValue(0, notANumber, true);
    EXPECT_FLOAT_EQ(control().getValue(), 0.4f);
    control().setSlotDefault(0, notANumber, false);
    control().resetToDefault();
    EXPECT_EQ(target().notes, "begin end");
}

TEST_F(ControlValueTest, RangesThatAreNotFiniteOrHaveNoExtentDoNoHarm) {
    setRange(2.0, 2.0);
    control().setParameterValue(0, 2.0, false);
    EXPECT_EQ(control().getValue(), 0.0f);
    control().setValueFromUser(0.7);
    EXPECT_EQ(target().last(), 2.0);
    setRange(-infinity, 6.0);
    control().setValueFromUser(0.5);
    EXPECT_EQ(target().last(), 6.0);
    EXPECT_EQ(control().getSlotValue(0), 6.0);
    control().setParameterValue(0, -infinity, true);
    EXPECT_EQ(target().last(), 6.0);
    EXPECT_FALSE(std::isnan(control().getValue()));
}

TEST_F(ControlValueTest, AWriteIsLimitedToTheRange) {
    setRange(0.0, 100.0);
    control().writeDisplayValue(0, 250.0, true);
    EXPECT_EQ(target().last(), 100.0);
    EXPECT_EQ(control().getValue(), 1.0f);
    control().writeDisplayValue(0, -infinity, true);
    EXPECT_EQ(target().last(), 0.0);
}

TEST_F(ControlValueTest, AWriteThatIsNotTheUsersIsOnlyShown) {
    control().writeDisplayValue(0, 0.25, false);
    EXPECT_FLOAT_EQ(control().getValue(), 0.25f);
    EXPECT_EQ(target().notes, "");
}

TEST_F(ControlValueTest, NudgesAddToThePositionAndStopAtTheEnds) {
    setRange(0.0, 200.0);
    control().nudge(0.25);
    EXPECT_EQ(target().last(), 150.0);
    control().nudge(0.5);
    EXPECT_EQ(target().last(), 200.0);
    control().nudge(-3.0);
    EXPECT_EQ(target().last(), 0.0);
}

TEST_F(ControlValueTest, AResetIsOneGesture) {
    setRange(-60.0, 6.0);
    control().setSlotDefault(0, -12.0, false);
    control().resetToDefault();
    EXPECT_EQ(target().notes, "begin -12 end");
}

TEST_F(ControlValueTest, DeferredValuesAreTakenAtOnceAndShownTogether) {
    control().setDeferUpdates(true);
    control().setParameterValue(0, 0.1, false);
    control().setParameterValue(0, 0.2, false);
    EXPECT_FLOAT_EQ(control().getValue(), 0.2f);
    EXPECT_EQ(control().changes, 0);
    control().setDeferUpdates(false);
    EXPECT_EQ(control().changes, 1);
    control().setParameterValue(0, 0.2, false);
    EXPECT_EQ(control().changes, 1);
}

// Text.

TEST_F(ControlValueTest, TheTextAddsTheOffsetScalesAndRounds) {
    control().setParameterValue(0, 0.25, false);
    EXPECT_EQ(control().getDisplayText(), "0.25");
    control().setDisplayOffset(0, 1.0, false);
    control().setDisplayScale(0, 100.0, false);
    EXPECT_EQ(control().getDisplayText(), "125.00");
    control().setDisplayResolution(0, 0.5, false);
    EXPECT_EQ(control().getDisplayText(), "125.0");
    control().setDisplayResolution(0, 10.0, false);
    EXPECT_EQ(control().getDisplayText(), "130");
    control().setDisplayScale(0, 12000.0, false);
    EXPECT_EQ(control().getDisplayText(), "15k");
}

TEST_F(ControlValueTest, TheTextIsTheTransformers) {
    control().setParameterValue(0, 0.5, false);
    control().setTextTransformer(std::make_unique<QMLogParameterTextTransformer>());
    EXPECT_EQ(control().getDisplayText(), "-6.02");
    control().setTextTransformer(nullptr);
    EXPECT_EQ(control().getDisplayText(), "0.50");
}

// Keys.

TEST_F(ControlValueTest, ArrowsStepByTheKeyStepAndFinelyByATenth) {
    setRange(0.0, 100.0);
    control().setParameterValue(0, 50.0, false);
    control().takeFocus();
    shown.window->key(juce::KeyPress(juce::KeyPress::upKey));
    EXPECT_EQ(target().notes, "begin 55 end");
    shown.window->key(juce::KeyPress(juce::KeyPress::downKey, juce::ModifierKeys::ctrlModifier, 0));
    EXPECT_NEAR(target().last(), 54.5, 1e-4);
    control().setKeyStep(0, 2.0, false);
    shown.window->key(juce::KeyPress(juce::KeyPress::downKey));
    EXPECT_NEAR(target().last(), 52.5, 1e-4);
}

TEST_F(ControlValueTest, StepsStopAtTheEnds) {
    setRange(0.0, 100.0);
    control().setParameterValue(0, 98.0, false);
    control().stepUp(false);
    EXPECT_EQ(target().last(), 100.0);
    control().setParameterValue(0, 0.2, false);
    control().stepDown(true);
    EXPECT_EQ(target().last(), 0.0);
}

TEST_F(ControlValueTest, HomeAndEndGoToTheEndsOfTheRange) {
    setRange(-24.0, 24.0);
    control().takeFocus();
    shown.window->key(juce::KeyPress(juce::KeyPress::homeKey));
    shown.window->key(juce::KeyPress(juce::KeyPress::endKey));
    EXPECT_EQ(target().notes, "begin -24 end begin 24 end");
}

TEST_F(ControlValueTest, TheSpaceBarIsTheHosts) {
    control().takeFocus();
    EXPECT_FALSE(shown.window->key(juce::KeyPress(juce::KeyPress::spaceKey, {}, ' ')));
}

// The readout of a control.

TEST_F(ControlValueTest, ItsReadoutShowsWhateverItShows) {
    QMParameterReadoutWidget readout;
    setRange(0.0, 200.0);
    control().setParameterValue(0, 50.0, false);
    control().setReadout(&readout);
    EXPECT_EQ(control().readout(), &readout);
    EXPECT_EQ(readout.getOwner(), &control());
    EXPECT_EQ(readout.getDisplayText(), "50.00");
    control().setParameterValue(0, 60.0, false);
    EXPECT_EQ(readout.getDisplayText(), "60.00");
    control().setValueFromUser(0.05);
    EXPECT_EQ(readout.getDisplayText(), "10.00");
    control().writeDisplayValue(0, 500.0, true);
    EXPECT_EQ(readout.getDisplayText(), "200.0");
    control().setReadout(nullptr);
    EXPECT_EQ(readout.getOwner(), nullptr);
    control().setParameterValue(0, 1.0, false);
    EXPECT_EQ(readout.getDisplayText(), "200.0");
}

TEST_F(ControlValueTest, ControlAndReadoutMayGoInAnyOrder) {
    {
        QMParameterReadoutWidget readout;
        control().setReadout(&readout);
    }
    EXPECT_EQ(control().readout(), nullptr);
    control().setParameterValue(0, 0.1, false);
    QMParameterReadoutWidget readout;
    {
        QMKnobWidget knob;
        knob.setReadout(&readout);
    }
    EXPECT_EQ(readout.getOwner(), nullptr);
}

TEST_F(ControlValueTest, WithoutAReadoutThereIsNoTextEntry) {
    control().takeFocus();
    EXPECT_FALSE(shown.window->key(juce::KeyPress('1', {}, '1')));
    EXPECT_FALSE(shown.window->key(juce::KeyPress(juce::KeyPress::returnKey)));
}
