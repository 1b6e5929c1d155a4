// SPDX-License-Identifier: GPL-3.0-or-later
// The window that the widgets' tests use their widgets in: events must arrive as they would from a
// window system.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <string>

namespace {

class Recorder final : public juce::Component {
public:
    Recorder() {
        setSize(100, 50);
        setWantsKeyboardFocus(true);
    }

    void mouseDown(const juce::MouseEvent& event) override { note("down", event); }

    void mouseDrag(const juce::MouseEvent& event) override { note("drag", event); }

    void mouseUp(const juce::MouseEvent& event) override { note("up", event); }

    void mouseDoubleClick(const juce::MouseEvent& event) override { note("double", event); }

    void mouseWheelMove(const juce::MouseEvent& event,
                        const juce::MouseWheelDetails& details) override {
        note("wheel", event);
        wheel = details;
    }

    bool keyPressed(const juce::KeyPress& key) override {
        notes += "key" + key.getTextDescription().toStdString() + " ";
        return key.getKeyCode() == 'A';
    }

    std::string notes;
    juce::MouseWheelDetails wheel{};

private:
    void note(const char* what, const juce::MouseEvent& event) {
        notes += what + std::to_string(event.x) + "," + std::to_string(event.y);
        if (event.mods.isCtrlDown())
            notes += "ctrl";
        notes += " ";
    }
};

} // namespace

using TestWindowTest = ToolkitTest;

TEST_F(TestWindowTest, APressADragAndAReleaseReachTheComponentUnderThePointer) {
    Recorder recorder;
    TestWindow window(recorder);
    window.press({10.0f, 20.0f}, juce::ModifierKeys::ctrlModifier);
    window.dragTo({12.0f, 15.0f});
    window.holdKeys(0);
    window.dragTo({200.0f, 15.0f});
    window.release();
    EXPECT_EQ(recorder.notes, "down10,20ctrl drag12,15ctrl drag200,15 up200,15 ");
}

TEST_F(TestWindowTest, TwoQuickClicksAreADoubleClickAndTwoSlowOnesAreNot) {
    Recorder recorder;
    TestWindow window(recorder);
    window.click(recorder);
    window.click(recorder);
    EXPECT_EQ(recorder.notes.find("double"), std::string::npos);
    window.doubleClick(recorder);
    EXPECT_NE(recorder.notes.find("double"), std::string::npos);
}

TEST_F(TestWindowTest, TheWheelArrivesWithItsDeltas) {
    Recorder recorder;
    TestWindow window(recorder);
    window.wheel(recorder, 0.25f, -0.5f, 0, true);
    EXPECT_EQ(recorder.notes, "wheel50,25 ");
    EXPECT_FLOAT_EQ(recorder.wheel.deltaX, 0.25f);
    EXPECT_FLOAT_EQ(recorder.wheel.deltaY, -0.5f);
    EXPECT_TRUE(recorder.wheel.isReversed);
}

TEST_F(TestWindowTest, KeysGoToWhoeverHasTheFocusAndTellWhetherTheyWereUsed) {
    Recorder recorder;
    TestWindow window(recorder);
    recorder.grabKeyboardFocus();
    ASSERT_TRUE(recorder.hasKeyboardFocus(false));
    EXPECT_TRUE(window.key(juce::KeyPress('A', {}, 'a')));
    EXPECT_FALSE(window.key(juce::KeyPress('B', {}, 'b')));
    EXPECT_EQ(recorder.notes, "keyA keyB ");
}
