// SPDX-License-Identifier: GPL-3.0-or-later
// What the mouse does with a button of several states.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/IQMTrackedButtonListener.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"
#include "widgets/buttons/tests/RecordingTarget.h"

#include <string>

namespace {

using Button = QMTrackedMultistateButtonWidget;

const juce::Point<float> outside(300.0f, 200.0f);
const juce::Point<float> inside(20.0f, 10.0f);

class MultistatePressTest : public ToolkitTest {
protected:
    MultistatePressTest() {
        button.setItems({"A", "B", "C"}, 0);
        button.setSize(60, 20);
        button.setParameter(0, RecordingTarget::parameter);
        button.addParameterTarget(&target);
        window.emplace(button);
    }

    RecordingTarget target;
    Button button;
    std::optional<TestWindow> window;
};

struct PressListener final : IQMTrackedButtonListener {
    bool waitsForRelease(Button&) override { return waits; }

    void buttonPressed(Button& button) override { note("pressed", button); }

    void buttonDragged(Button& button, bool isInside) override {
        note(isInside ? "in" : "out", button);
    }

    void buttonReleased(Button& button) override { note("released", button); }

    void buttonValueChanged(Button& button, double) override { note("value", button); }

    void note(const char* what, const Button& button) {
        notes += what + std::to_string(button.getState()) + " ";
    }

    bool waits = true;
    std::string notes;
};

} // namespace

TEST_F(MultistatePressTest, APressShowsTheNextStateAndTheReleaseWritesIt) {
    window->press(button);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_TRUE(button.hasPressedLook());
    EXPECT_TRUE(button.isPointerInside());
    EXPECT_EQ(target.takeNotes(), "begin ");
    EXPECT_TRUE(button.isTouched(0));
    window->release();
    EXPECT_EQ(button.getState(), 1);
    EXPECT_FALSE(button.hasPressedLook());
    EXPECT_FALSE(button.isPointerInside());
    EXPECT_EQ(target.takeNotes(), "1 end ");
    EXPECT_FALSE(button.isTouched(0));
}

TEST_F(MultistatePressTest, AfterTheLastStateComesTheFirst) {
    button.setParameterValue(0, 2.0, false);
    window->click(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "begin 0 end ");
}

TEST_F(MultistatePressTest, ShiftAndAltGoBackwards) {
    window->click(button, juce::ModifierKeys::shiftModifier);
    EXPECT_EQ(button.getState(), 2);
    window->click(button, juce::ModifierKeys::altModifier);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_EQ(target.takeNotes(), "begin 2 end begin 1 end ");
}

TEST_F(MultistatePressTest, LettingGoOutsideWritesTheOldState) {
    button.setParameterValue(0, 1.0, false);
    window->press(button);
    EXPECT_EQ(button.getState(), 2);
    window->dragTo(outside);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_FALSE(button.hasPressedLook());
    EXPECT_FALSE(button.isPointerInside());
    window->release();
    EXPECT_EQ(button.getState(), 1);
    EXPECT_EQ(target.takeNotes(), "begin 1 end ");
}

TEST_F(MultistatePressTest, ComingBackInsideShowsTheNewStateAgain) {
    window->press(button, juce::ModifierKeys::shiftModifier);
    window->dragTo(outside);
    EXPECT_EQ(button.getState(), 0);
    // The keys held at the press count, not those held now.
    window->holdKeys(0);
    window->dragTo(inside);
    EXPECT_EQ(button.getState(), 2);
    EXPECT_TRUE(button.hasPressedLook());
    window->release();
    EXPECT_EQ(target.takeNotes(), "begin 2 end ");
}

TEST_F(MultistatePressTest, TheOwnerIsToldOfTheReleaseAndWhetherItLookedPressed) {
    std::string told;
    button.setReleaseCallback([&](Button&, bool pressed) { told += pressed ? "yes " : "no "; });
    window->click(button);
    window->press(button);
    window->dragTo(outside);
    window->release();
    EXPECT_EQ(told, "yes no ");
}

TEST_F(MultistatePressTest, TheListenerFollowsThePress) {
    PressListener listener;
    button.setListener(&listener);
    window->press(button);
    window->dragTo({25.0f, 10.0f});
    window->dragTo(outside);
    window->dragTo(inside);
    window->release();
    EXPECT_EQ(listener.notes, "pressed1 out0 in1 value1 released1 ");
}

TEST_F(MultistatePressTest, AListenerThatDoesNotWaitHasThePressWritten) {
    PressListener listener;
    listener.waits = false;
    button.setListener(&listener);
    window->press(button);
    EXPECT_EQ(target.takeNotes(), "begin 1 ");
    EXPECT_EQ(listener.notes, "value1 pressed1 ");
    window->dragTo(outside);
    window->release();
    EXPECT_EQ(target.takeNotes(), "0 end ");
}

TEST_F(MultistatePressTest, AMomentaryButtonIsOnAsLongAsItIsPressed) {
    PressListener listener;
    listener.waits = false;
    button.setListener(&listener);
    button.setRevertOnRelease(true);
    window->press(button);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_EQ(target.takeNotes(), "begin 1 ");
    window->release();
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "0 end ");
}

TEST_F(MultistatePressTest, RevertingWritesTheStateFromBeforeThePress) {
    button.setRevertOnRelease(true);
    window->click(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "begin 0 end ");
}

TEST_F(MultistatePressTest, AStaticStateStaysAndIsNotWritten) {
    int releases = 0;
    button.setStaticState(true);
    button.setReleaseCallback([&](Button&, bool pressed) { releases += pressed ? 1 : 100; });
    window->press(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_TRUE(button.hasPressedLook());
    window->dragTo(outside);
    EXPECT_FALSE(button.hasPressedLook());
    window->dragTo(inside);
    EXPECT_EQ(button.getState(), 0);
    window->release();
    EXPECT_FALSE(button.hasPressedLook());
    EXPECT_EQ(target.takeNotes(), "begin end ");
    EXPECT_EQ(releases, 1);
}

TEST_F(MultistatePressTest, AVetoedPressComesToNothing) {
    bool told = false;
    button.setPressVeto([](Button&) { return false; });
    button.setChangeCallback([&](Button&, double) { told = true; });
    window->press(button);
    EXPECT_FALSE(button.hasPressedLook());
    EXPECT_EQ(button.getState(), 0);
    window->dragTo(outside);
    window->dragTo(inside);
    EXPECT_FALSE(button.hasPressedLook());
    EXPECT_EQ(button.getState(), 0);
    window->release();
    EXPECT_EQ(target.takeNotes(), "begin end ");
    EXPECT_FALSE(told);
    button.setPressVeto([](Button&) { return true; });
    window->click(button);
    EXPECT_EQ(button.getState(), 1);
}

TEST_F(MultistatePressTest, ALockedOrDisabledButtonIgnoresTheMouse) {
    bool asked = false;
    button.setClickHandler([&](Button&, const juce::MouseEvent&) { return asked = true; });
    button.setLocked(true);
    window->click(button);
    button.setLocked(false);
    button.setWidgetEnabled(false);
    window->click(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_FALSE(asked);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(MultistatePressTest, AButtonLockedWhilePressedEndsItsGestureAndKeepsItsState) {
    for (const bool byLock : {true, false}) {
        window->press(button);
        if (byLock)
            button.setLocked(true);
        else
            button.setWidgetEnabled(false);
        window->release();
        EXPECT_EQ(button.getState(), 0);
        EXPECT_FALSE(button.isTouched(0));
        EXPECT_FALSE(button.hasPressedLook());
        EXPECT_EQ(target.takeNotes(), "begin end ");
        button.setLocked(false);
        button.setWidgetEnabled(true);
    }
}

TEST_F(MultistatePressTest, AClickThatTheTargetTakesIsNotTheButtons) {
    target.wantsClicks = true;
    window->click(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(MultistatePressTest, AClickHandlerMayTakeTheClick) {
    bool takes = true;
    int asked = 0;
    int releases = 0;
    button.setClickHandler([&](Button&, const juce::MouseEvent& event) {
        asked += event.mods.isLeftButtonDown() ? 1 : 0;
        return takes;
    });
    button.setReleaseCallback([&](Button&, bool) { ++releases; });
    window->click(button);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "");
    takes = false;
    window->click(button);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(releases, 1);
}

TEST_F(MultistatePressTest, AMapsValueIsWhatTheReleaseWrites) {
    button.setValueMap({[](int state) { return 100.0 + state; },
                        [](double value) { return static_cast<int>(value) - 100; }});
    double told = 0.0;
    button.setChangeCallback([&](Button&, double value) { told = value; });
    window->click(button);
    EXPECT_EQ(target.takeNotes(), "begin 101 end ");
    EXPECT_EQ(told, 101.0);
}

TEST_F(MultistatePressTest, AButtonWithoutStatesTellsOfItsReleaseAlone) {
    int releases = 0;
    button.setItems({}, 0);
    button.setReleaseCallback([&](Button&, bool) { ++releases; });
    window->click(button);
    EXPECT_EQ(releases, 1);
    EXPECT_EQ(target.takeNotes(), "begin end ");
}

TEST_F(MultistatePressTest, AButtonMayGoInAnyOfItsCallbacks) {
    struct Killer final : IQMTrackedButtonListener {
        explicit Killer(std::string which)
            : at(std::move(which)) {}

        bool waitsForRelease(Button&) override { return at != "commit"; }

        void buttonPressed(Button&) override { kill("pressed"); }

        void buttonReleased(Button&) override { kill("released"); }

        void buttonValueChanged(Button&, double) override {
            kill(at == "commit" ? "commit" : "value");
        }

        void kill(const std::string& now) {
            if (now == at)
                button.reset();
        }

        std::string at;
        std::unique_ptr<Button> button = std::make_unique<Button>();
    };

    for (const char* const at : {"commit", "pressed", "value", "released"}) {
        Killer killer(at);
        killer.button->setItems({"A", "B"}, 0);
        killer.button->setListener(&killer);
        killer.button->activate();
        EXPECT_EQ(killer.button, nullptr) << at;
    }
}
