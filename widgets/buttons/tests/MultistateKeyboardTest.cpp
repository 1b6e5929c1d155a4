// SPDX-License-Identifier: GPL-3.0-or-later
// What the keyboard and a screen reader do with buttons of several states.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"
#include "widgets/buttons/tests/RecordingTarget.h"

namespace {

using Button = QMTrackedMultistateButtonWidget;

class MultistateKeyboardTest : public ToolkitTest {
protected:
    MultistateKeyboardTest() {
        button.setItems({"A", "B", "C"}, 0);
        button.setSize(60, 20);
        button.setParameter(0, RecordingTarget::parameter);
        button.setSlotMaximum(0, 2.0, false);
        button.addParameterTarget(&target);
        window.emplace(button);
        button.takeFocus();
    }

    bool key(int code) { return window->key(juce::KeyPress(code)); }

    RecordingTarget target;
    Button button;
    std::optional<TestWindow> window;
};

} // namespace

TEST_F(MultistateKeyboardTest, ArrowsStepWithoutGoingPastTheEnds) {
    EXPECT_TRUE(key(juce::KeyPress::upKey));
    EXPECT_TRUE(key(juce::KeyPress::rightKey));
    EXPECT_EQ(button.getState(), 2);
    EXPECT_EQ(target.takeNotes(), "begin 1 end begin 2 end ");
    EXPECT_TRUE(key(juce::KeyPress::upKey));
    EXPECT_EQ(button.getState(), 2);
    EXPECT_EQ(target.takeNotes(), "begin end ");
    EXPECT_TRUE(key(juce::KeyPress::downKey));
    EXPECT_TRUE(key(juce::KeyPress::leftKey));
    EXPECT_TRUE(key(juce::KeyPress::leftKey));
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateKeyboardTest, HomeAndEndGoToTheFirstAndTheLastState) {
    EXPECT_TRUE(key(juce::KeyPress::endKey));
    EXPECT_EQ(button.getState(), 2);
    EXPECT_TRUE(key(juce::KeyPress::homeKey));
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "begin 2 end begin 0 end ");
}

TEST_F(MultistateKeyboardTest, ReturnAdvancesAsAClickDoes) {
    int releases = 0;
    button.setReleaseCallback([&](Button&, bool pressed) { releases += pressed ? 1 : 100; });
    button.setParameterValue(0, 2.0, false);
    EXPECT_TRUE(key(juce::KeyPress::returnKey));
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "begin 0 end ");
    EXPECT_EQ(releases, 1);
    EXPECT_FALSE(button.hasPressedLook());
}

TEST_F(MultistateKeyboardTest, ALockedButtonIgnoresTheKeyboard) {
    button.setLocked(true);
    EXPECT_FALSE(key(juce::KeyPress::returnKey));
    key(juce::KeyPress::upKey);
    EXPECT_EQ(button.getState(), 0);
    button.setLocked(false);
    button.setParameterValue(0, 1.0, false);
    button.setLocked(true);
    key(juce::KeyPress::downKey);
    EXPECT_EQ(button.getState(), 1);
}

TEST_F(MultistateKeyboardTest, TheSpaceBarStaysTheHosts) {
    EXPECT_FALSE(key(juce::KeyPress::spaceKey));
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateKeyboardTest, AToggleIsSomethingThatCanBeOnToAScreenReader) {
    QMTextToggleButton toggle;
    toggle.setName("Ena");
    const auto handler = toggle.createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::toggleButton);
    EXPECT_EQ(handler->getTitle(), "Ena");
    EXPECT_TRUE(handler->getCurrentState().isCheckable());
    EXPECT_FALSE(handler->getCurrentState().isChecked());
    EXPECT_TRUE(handler->getActions().invoke(juce::AccessibilityActionType::toggle));
    EXPECT_EQ(toggle.getState(), 1);
    EXPECT_TRUE(handler->getCurrentState().isChecked());
    EXPECT_EQ(toggle.getDisplayText(), "On");
}

TEST_F(MultistateKeyboardTest, AButtonOfThreeStatesTellsAScreenReaderItsText) {
    const auto handler = button.createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::button);
    ASSERT_NE(handler->getValueInterface(), nullptr);
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "A");
    EXPECT_TRUE(handler->getActions().invoke(juce::AccessibilityActionType::press));
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "B");
}
