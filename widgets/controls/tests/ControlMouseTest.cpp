// SPDX-License-Identifier: GPL-3.0-or-later
// What presses, drags and the wheel do to a control, with each key that means something.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/ControlClickOptions.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"

namespace {

constexpr int control = juce::ModifierKeys::ctrlModifier;
constexpr int shift = juce::ModifierKeys::shiftModifier;
constexpr int alt = juce::ModifierKeys::altModifier;
constexpr int rightButton = juce::ModifierKeys::rightButtonModifier;
using DoubleClick = ControlClickOptions::DoubleClick;

} // namespace

class ControlMouseTest : public ToolkitTest {
protected:
    void SetUp() override { controlClickOptions() = {}; }

    void TearDown() override { controlClickOptions() = {}; }

    void showValue(double plain) { knob().setParameterValue(0, plain, false); }

    QMKnobWidget& knob() { return shown.control; }

    TestWindow& window() { return *shown.window; }

    RecordingTarget& target() { return shown.target; }

    /// Quickly: for the toolkit a double click.
    void pressTwice(int keyboard, int button = juce::ModifierKeys::leftButtonModifier) {
        for (int i = 0; i < 2; ++i) {
            window().press(knob(), keyboard, button);
            window().release();
        }
    }

    bool wheelPauses() {
        return runLoopUntil([this] { return !knob().isTouched(0); });
    }

    ControlInWindow<QMKnobWidget> shown;
};

// Drags.

TEST_F(ControlMouseTest, TwoHundredAndFiftyPixelsUpAreTheWholeTravel) {
    showValue(0.0);
    window().press(knob());
    window().dragBy(0.0f, -250.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 1.0f);
    window().release();
    EXPECT_EQ(target().notes, "begin 1 end");
}

TEST_F(ControlMouseTest, WithControlTheyAreAQuarterOfIt) {
    showValue(0.0);
    window().press(knob(), control);
    window().dragBy(0.0f, -250.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.25f);
}

TEST_F(ControlMouseTest, RightAddsAsUpDoesAndLeftAndDownTakeAway) {
    window().press(knob());
    window().dragBy(25.0f, 0.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.6f);
    window().dragBy(-50.0f, 0.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.4f);
    window().dragBy(0.0f, 25.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.3f);
    window().dragBy(25.0f, 25.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.3f);
}

TEST_F(ControlMouseTest, ADragIsOneGesture) {
    window().press(knob());
    EXPECT_TRUE(knob().isDragging());
    window().dragBy(0.0f, -25.0f);
    window().dragBy(0.0f, -25.0f);
    window().release();
    EXPECT_EQ(target().notes, "begin 0.6 0.7 end");
    EXPECT_FALSE(knob().isDragging());
}

TEST_F(ControlMouseTest, ADragStopsAtTheEndsAndComesBackFromWhereItBegan) {
    window().press(knob());
    window().dragBy(0.0f, -500.0f);
    EXPECT_EQ(knob().getValue(), 1.0f);
    window().dragBy(0.0f, 400.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.9f);
    window().dragBy(0.0f, 4000.0f);
    EXPECT_EQ(knob().getValue(), 0.0f);
}

TEST_F(ControlMouseTest, PressingControlInTheMiddleOfADragDoesNotMakeTheValueJump) {
    showValue(0.2);
    window().press(knob());
    window().dragBy(0.0f, -50.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.4f);
    window().holdKeys(control);
    window().dragBy(0.0f, -10.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.4f);
    window().dragBy(0.0f, -100.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.5f);
    window().holdKeys(0);
    window().dragBy(0.0f, -10.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.5f);
    window().dragBy(0.0f, -25.0f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.6f);
}

TEST_F(ControlMouseTest, APressThatDoesNotMoveWritesNothing) {
    showValue(0.3);
    window().press(knob());
    window().dragBy(0.0f, 0.0f);
    window().release();
    EXPECT_EQ(target().notes, "begin end");
}

TEST_F(ControlMouseTest, ADragWritesThroughTheTaper) {
    knob().setSlotMinimum(0, 10.0, false);
    knob().setSlotMaximum(0, 1000.0, false);
    knob().setTaperMode(ControlTaper::logarithmic);
    showValue(10.0);
    window().press(knob());
    window().dragBy(0.0f, -125.0f);
    ASSERT_EQ(target().values.size(), 1u);
    EXPECT_NEAR(target().last(), 100.0, 1e-4);
}

// Clicks.

TEST_F(ControlMouseTest, AnAltClickResetsInOneGestureAndDragsNothing) {
    knob().setSlotDefault(0, 0.25, false);
    window().press(knob(), alt);
    window().dragBy(0.0f, -50.0f);
    window().release();
    EXPECT_EQ(target().notes, "begin 0.25 end");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.25f);
}

TEST_F(ControlMouseTest, WithControlAsWellItGoesToTheMinimum) {
    knob().setSlotMinimum(0, -60.0, false);
    knob().setSlotMaximum(0, 6.0, false);
    window().click(knob(), alt | control);
    EXPECT_EQ(target().notes, "begin -60 end");
    EXPECT_EQ(knob().getValue(), 0.0f);
}

TEST_F(ControlMouseTest, WithoutTheOptionAltClicksDragLikeOthers) {
    controlClickOptions().altClickResets = false;
    window().press(knob(), alt);
    window().dragBy(0.0f, -25.0f);
    window().release();
    window().click(knob(), alt | control);
    EXPECT_EQ(target().notes, "begin 0.6 end begin end");
}

TEST_F(ControlMouseTest, ARightClickTakesTheFocusAndNothingElse) {
    window().click(knob(), 0, rightButton);
    EXPECT_TRUE(knob().hasKeyboardFocus(false));
    EXPECT_EQ(target().notes, "");
}

TEST_F(ControlMouseTest, WithoutTheOptionTheRightButtonDrags) {
    controlClickOptions().rightClickTakesFocus = false;
    window().press(knob(), 0, rightButton);
    window().dragBy(0.0f, -25.0f);
    window().release();
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
    EXPECT_EQ(target().notes, "begin 0.6 end");
}

TEST_F(ControlMouseTest, AControlClickTakesTheFocusWhereTheOptionIsOn) {
    window().click(knob(), control);
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
    EXPECT_EQ(target().notes, "begin end");
    controlClickOptions().controlClickTakesFocus = true;
    window().click(knob(), control | shift);
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
    window().click(knob(), control);
    EXPECT_TRUE(knob().hasKeyboardFocus(false));
    EXPECT_EQ(target().notes, "begin end begin end");
}

TEST_F(ControlMouseTest, APlainClickLeavesTheKeyboardToTheHost) {
    window().click(knob());
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
}

TEST_F(ControlMouseTest, ADoubleClickResetsInOneGesture) {
    showValue(0.9);
    window().doubleClick(knob());
    EXPECT_EQ(target().notes, "begin end begin end begin 0.5 end");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.5f);
}

TEST_F(ControlMouseTest, ADragFollowedByAClickIsNoDoubleClick) {
    window().press(knob());
    window().dragBy(0.0f, -25.0f);
    window().dragBy(0.0f, 20.0f);
    window().release();
    window().click(knob());
    EXPECT_FLOAT_EQ(knob().getValue(), 0.52f);
}

TEST_F(ControlMouseTest, AControlThatDoesNotResetOnDoubleClicksOnlyHasTwoClicks) {
    knob().setResetOnDoubleClick(false);
    showValue(0.9);
    window().doubleClick(knob());
    EXPECT_EQ(target().notes, "begin end begin end");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.9f);
}

TEST_F(ControlMouseTest, ADoubleClickTakesTheFocusOrDoesNothingByTheOption) {
    showValue(0.9);
    controlClickOptions().doubleClickAction = DoubleClick::nothing;
    window().doubleClick(knob());
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
    controlClickOptions().doubleClickAction = DoubleClick::takeFocus;
    window().doubleClick(knob());
    EXPECT_TRUE(knob().hasKeyboardFocus(false));
    EXPECT_FALSE(knob().isDragging());
    EXPECT_EQ(target().notes, "begin end begin end begin end begin end");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.9f);
}

TEST_F(ControlMouseTest, ASecondPressThatIsForSomethingElseIsNoDoubleClick) {
    knob().setSlotDefault(0, 0.25, false);
    pressTwice(alt | control);
    EXPECT_EQ(target().notes, "begin 0 end begin 0 end");
    pressTwice(0, rightButton);
    EXPECT_EQ(target().notes, "begin 0 end begin 0 end");
}

TEST_F(ControlMouseTest, APressThatTheTargetTakesDoesNothing) {
    target().takesClicks = true;
    window().press(knob());
    window().dragBy(0.0f, -50.0f);
    window().release();
    window().click(knob(), alt);
    window().doubleClick(knob());
    EXPECT_EQ(target().notes, "");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.5f);
}

TEST_F(ControlMouseTest, ADisabledControlDoesNothing) {
    knob().setWidgetEnabled(false);
    window().press(knob());
    window().dragBy(0.0f, -50.0f);
    window().release();
    window().click(knob(), alt);
    window().click(knob(), 0, rightButton);
    window().doubleClick(knob());
    EXPECT_EQ(target().notes, "");
    EXPECT_FALSE(knob().hasKeyboardFocus(false));
}

// The wheel.

TEST_F(ControlMouseTest, ThreeWheelEventsWithoutAPauseAreOneGesture) {
    for (int i = 0; i < 3; ++i)
        window().wheel(knob(), 0.0f, 0.5f);
    EXPECT_TRUE(knob().isTouched(0));
    ASSERT_TRUE(wheelPauses());
    // 0.5 x 0.2 x 0.1 of the travel each.
    EXPECT_EQ(target().notes, "begin 0.51 0.52 0.53 end");
    window().wheel(knob(), 0.0f, -0.5f);
    ASSERT_TRUE(wheelPauses());
    EXPECT_EQ(target().notes, "begin 0.51 0.52 0.53 end begin 0.52 end");
}

TEST_F(ControlMouseTest, EachWheelEventPutsTheEndOfTheGestureOff) {
    const auto start = juce::Time::getMillisecondCounter();
    window().wheel(knob(), 0.0f, 0.5f);
    ASSERT_TRUE(runLoopUntil([&] { return juce::Time::getMillisecondCounter() - start > 150; }));
    window().wheel(knob(), 0.0f, 0.5f);
    const auto last = juce::Time::getMillisecondCounter();
    ASSERT_TRUE(wheelPauses());
    // The toolkit's timers may be a tenth of a second early.
    EXPECT_GE(juce::Time::getMillisecondCounter() - last, 190u);
}

TEST_F(ControlMouseTest, WithControlTheWheelIsATenthAsFast) {
    window().wheel(knob(), 0.0f, 0.5f, control);
    EXPECT_EQ(target().notes, "begin 0.501");
}

TEST_F(ControlMouseTest, AReversedWheelGoesTheOtherWay) {
    window().wheel(knob(), 0.0f, 0.5f, 0, true);
    EXPECT_EQ(target().notes, "begin 0.49");
}

TEST_F(ControlMouseTest, TheWheelToTheRightTakesAway) {
    window().wheel(knob(), 0.5f, 0.0f);
    EXPECT_EQ(target().notes, "begin 0.49");
}

TEST_F(ControlMouseTest, AnAxisThatIsOffChangesNothing) {
    knob().setWheelAxes(false, true);
    window().wheel(knob(), 0.5f, 0.0f);
    EXPECT_EQ(target().notes, "");
    EXPECT_FLOAT_EQ(knob().getValue(), 0.5f);
    knob().setWheelAxes(true, false);
    window().wheel(knob(), 0.0f, 0.5f);
    EXPECT_EQ(target().notes, "");
    EXPECT_EQ(shown.panel.wheelEvents, 0);
}

TEST_F(ControlMouseTest, ADisabledControlPassesTheWheelOn) {
    knob().setWidgetEnabled(false);
    window().wheel(knob(), 0.0f, 0.5f);
    EXPECT_EQ(target().notes, "");
    EXPECT_EQ(shown.panel.wheelEvents, 1);
}

TEST_F(ControlMouseTest, APressEndsTheWheelsGestureFirst) {
    window().wheel(knob(), 0.0f, 0.5f);
    window().click(knob());
    EXPECT_EQ(target().notes, "begin 0.51 end begin end");
    EXPECT_FALSE(knob().isTouched(0));
}

TEST_F(ControlMouseTest, TheWheelDuringADragBelongsToTheDrag) {
    const juce::Point<float> centre = window().centreOf(knob());
    window().press(knob());
    window().wheel(knob(), 0.0f, 0.5f);
    EXPECT_FLOAT_EQ(knob().getValue(), 0.51f);
    // The pause passes; the button is still down.
    const auto start = juce::Time::getMillisecondCounter();
    ASSERT_TRUE(runLoopUntil([&] { return juce::Time::getMillisecondCounter() - start > 400; }));
    EXPECT_TRUE(knob().isTouched(0));
    window().dragTo(centre.translated(0.0f, -25.0f));
    EXPECT_FLOAT_EQ(knob().getValue(), 0.61f);
    window().release();
    EXPECT_EQ(target().notes, "begin 0.51 0.61 end");
}
