// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the editor's texts rely on: they would see a text that does not fit.
#include "brolt/editor/tests/support/DrawnText.h"
#include "brolt/editor/tests/support/BroltEditorTest.h"

namespace {

class DrawnText : public BroltEditorTest {
protected:
    static std::string flawsAt(int width, int height) {
        juce::Label label;
        label.setText("Oscillator Pitch History", juce::NotificationType::dontSendNotification);
        label.setFont(juce::Font(16.0F));
        label.setMinimumHorizontalScale(0.8F);
        label.setBorderSize({});
        label.setSize(width, height);
        return flawsOf(glyphsDrawnBy(label), label.getText(), label.getLocalBounds());
    }

    static int wholeWidth() {
        return juce::Font(16.0F).getStringWidth("Oscillator Pitch History") + 2;
    }
};

TEST_F(DrawnText, isWithoutFlawsWhereThereIsRoom) {
    EXPECT_EQ(flawsAt(wholeWidth(), 20), "");
    EXPECT_EQ(flawsAt(500, 40), "");
}

TEST_F(DrawnText, isSqueezedWhereThereIsALittleLess) {
    EXPECT_NE(flawsAt(wholeWidth() * 9 / 10, 20).find("squeezed to 0.9"), std::string::npos);
}

TEST_F(DrawnText, lacksLettersWhereThereIsLess) {
    EXPECT_NE(flawsAt(wholeWidth() / 2, 20).find("not all of its letters"), std::string::npos);
}

TEST_F(DrawnText, isBrokenWhereThereIsRoomForLines) {
    EXPECT_NE(flawsAt(wholeWidth() / 2, 60).find("more than one line"), std::string::npos);
}

TEST_F(DrawnText, isCutWhereItIsTooHigh) {
    EXPECT_NE(flawsAt(wholeWidth(), 8).find("cut by"), std::string::npos);
}

} // namespace
