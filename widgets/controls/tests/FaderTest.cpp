// SPDX-License-Identifier: GPL-3.0-or-later
// Faders: their travel, drags, caps, and the room they leave for a readout.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMHorizontalFaderWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"
#include "widgets/controls/tests/support/TestPictures.h"

#include <utility>

namespace {

constexpr int control = juce::ModifierKeys::ctrlModifier;

} // namespace

class FaderTest : public ToolkitTest {
protected:
    FaderTest() { fader().setBounds(50, 50, 80, 304); }

    QMFaderWidget& fader() { return shown.control; }

    TestWindow& window() { return *shown.window; }

    ControlInWindow<QMFaderWidget> shown;
};

TEST_F(FaderTest, TheCapTravelsFromTheBottomToTheTop) {
    fader().setParameterValue(0, 0.0, false);
    const juce::Rectangle<int> lowest = fader().getCapArea();
    EXPECT_EQ(lowest.getBottom(), 304);
    fader().setParameterValue(0, 1.0, false);
    const juce::Rectangle<int> highest = fader().getCapArea();
    EXPECT_EQ(highest.getY(), 0);
    EXPECT_EQ(fader().getTrackLength(), 304 - highest.getHeight());
    EXPECT_EQ(lowest.getY() - highest.getY(), fader().getTrackLength());
    EXPECT_EQ(highest.getCentreX(), 40);
}

TEST_F(FaderTest, ADragOfTheTrackLengthIsTheWholeTravel) {
    fader().setParameterValue(0, 0.0, false);
    window().press(fader());
    window().dragBy(0.0f, static_cast<float>(-fader().getTrackLength()));
    window().release();
    EXPECT_EQ(shown.target.notes, "begin 1 end");
}

TEST_F(FaderTest, WithControlItIsThreeTenthsOfIt) {
    fader().setParameterValue(0, 0.0, false);
    window().press(fader(), control);
    window().dragBy(0.0f, static_cast<float>(-fader().getTrackLength()));
    EXPECT_FLOAT_EQ(fader().getValue(), 0.3f);
    // Anchored anew.
    window().holdKeys(0);
    window().dragBy(0.0f, static_cast<float>(fader().getTrackLength()) / 10.0f);
    EXPECT_FLOAT_EQ(fader().getValue(), 0.3f);
}

TEST_F(FaderTest, MovingSidewaysDoesNothing) {
    window().press(fader());
    window().dragBy(70.0f, 0.0f);
    window().release();
    EXPECT_EQ(shown.target.notes, "begin end");
}

TEST_F(FaderTest, AReadoutInItsUpperPartHasThatToItself) {
    QMParameterReadoutWidget readout;
    shown.panel.addAndMakeVisible(readout);
    readout.setBounds(60, 62, 50, 20);
    const int before = fader().getTrackLength();
    fader().setReadout(&readout);
    // It reaches to 82, which is 32 below the fader's edge, and three pixels apart.
    EXPECT_EQ(fader().getTrackLength(), before - 35);
    fader().setParameterValue(0, 1.0, false);
    EXPECT_EQ(fader().getCapArea().getY(), 35);
    readout.setTopLeftPosition(60, 72);
    EXPECT_EQ(fader().getCapArea().getY(), 45);
    readout.setVisible(false);
    EXPECT_EQ(fader().getCapArea().getY(), 0);
    readout.setVisible(true);
    readout.setTopLeftPosition(60, 20);
    EXPECT_EQ(fader().getCapArea().getY(), 0);
    fader().setReadout(nullptr);
    EXPECT_EQ(fader().getTrackLength(), before);
}

TEST_F(FaderTest, AReadoutThatIsAPartOfItsBoundsTakesNoMoreThanThatPart) {
    QMParameterReadoutWidget readout;
    shown.panel.addAndMakeVisible(readout);
    const int before = fader().getTrackLength();
    readout.setFrameArea({0, 22, 50, 18});
    readout.setBounds(60, 62, 50, 304);
    fader().setReadout(&readout);
    // The frame reaches to 62 + 22 + 18 = 102, 52 below the fader's edge, and three pixels apart.
    EXPECT_EQ(fader().getTrackLength(), before - 55);
    // The rest of the readout's bounds is the fader's: the cap can be taken there.
    fader().setParameterValue(0, 0.5, false);
    const juce::Point<int> cap = fader().getCapArea().getCentre() + fader().getPosition();
    EXPECT_TRUE(readout.getBounds().contains(cap));
    EXPECT_EQ(shown.panel.getComponentAt(cap), &fader());
    EXPECT_EQ(shown.panel.getComponentAt(85, 93), &readout);
    EXPECT_EQ(shown.panel.getComponentAt(85, 75), &fader());
}

TEST_F(FaderTest, AReadoutLeavesAtLeastHalfOfTheFader) {
    QMParameterReadoutWidget readout;
    shown.panel.addAndMakeVisible(readout);
    readout.setBounds(60, 62, 50, 304);
    fader().setReadout(&readout);
    EXPECT_GT(fader().getTrackLength(), fader().getHeight() / 3);
}

TEST_F(FaderTest, ATinyFaderHasATravelOfAtLeastAPixel) {
    for (const auto& [width, height] : {std::pair{1, 1}, {80, 2}, {2, 80}, {0, 0}}) {
        fader().setBounds(50, 50, width, height);
        EXPECT_GE(fader().getTrackLength(), 1);
        pictureOf(shown.panel);
    }
}

TEST_F(FaderTest, TheCapIsDrawnWhereTheValueIs) {
    fader().setParameterValue(0, 0.0, false);
    const juce::Image low = pictureOf(fader());
    fader().setParameterValue(0, 1.0, false);
    const juce::Image high = pictureOf(fader());
    const juce::Rectangle<int> top = fader().getCapArea();
    // Beside the slot, where the track draws nothing.
    const juce::Point<int> onCap(top.getX() + 4, top.getCentreY() - 6);
    EXPECT_EQ(high.getPixelAt(onCap.x, onCap.y).getAlpha(), 255);
    EXPECT_EQ(low.getPixelAt(onCap.x, onCap.y).getAlpha(), 0);
}

TEST_F(FaderTest, TheSlotIsLitUpToTheValue) {
    fader().setParameterValue(0, 0.5, false);
    const juce::Image picture = pictureOf(fader());
    EXPECT_GT(picture.getPixelAt(40, 230).getGreen(), 200);
    EXPECT_LT(picture.getPixelAt(40, 60).getGreen(), 60);
}

TEST(FaderCapTest, AnImageOfTheCapIsUsedWhereThereIsOne) {
    juce::ScopedJuceInitialiser_GUI toolkit;
    TestResources resources;
    resources.add("faderknob.png", plainImage(52, 104, juce::Colours::red));
    QMFaderWidget fader;
    fader.setBounds(0, 0, 80, 304);
    fader.setParameterValue(0, 0.5, false);
    // As wide as a drawn one, and as long as the picture's shape asks for.
    EXPECT_EQ(fader.getCapArea().getWidth() * 2, fader.getCapArea().getHeight());
    const juce::Point<int> centre = fader.getCapArea().getCentre();
    EXPECT_LE(difference(pictureOf(fader).getPixelAt(centre.x, centre.y), juce::Colours::red), 2);
}

class HorizontalFaderTest : public ToolkitTest {
protected:
    HorizontalFaderTest() { fader().setBounds(50, 50, 300, 60); }

    QMHorizontalFaderWidget& fader() { return shown.control; }

    ControlInWindow<QMHorizontalFaderWidget> shown;
};

TEST_F(HorizontalFaderTest, TheCapTravelsFromTheLeftToTheRight) {
    fader().setParameterValue(0, 0.0, false);
    EXPECT_EQ(fader().getCapArea().getX(), 0);
    fader().setParameterValue(0, 1.0, false);
    EXPECT_EQ(fader().getCapArea().getRight(), 300);
    EXPECT_EQ(fader().getCapArea().getX(), fader().getTrackLength());
}

TEST_F(HorizontalFaderTest, ADragToTheRightOfTheTrackLengthIsTheWholeTravel) {
    fader().setParameterValue(0, 0.0, false);
    shown.window->press(fader());
    shown.window->dragBy(static_cast<float>(fader().getTrackLength()), 40.0f);
    EXPECT_EQ(fader().getValue(), 1.0f);
    shown.window->release();
    fader().setParameterValue(0, 0.0, false);
    shown.window->press(fader(), control);
    shown.window->dragBy(static_cast<float>(fader().getTrackLength()), 0.0f);
    EXPECT_FLOAT_EQ(fader().getValue(), 0.3f);
}
