// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMLabelWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/statics/LabelTextColour.h"
#include "widgets/statics/tests/LinkRecorder.h"
#include "widgets/statics/tests/PictureOf.h"

#include <cstdlib>

namespace {

class Panel final : public juce::Component, public QMParentColorSource {};

class LabelTest : public ToolkitTest {
protected:
    void TearDown() override { LabelTextColour::setOverride({}); }

    /// The brightest pixel is about the ink's colour: stems of glyphs nearly fill theirs.
    static juce::Colour inkColour(const juce::Image& picture) {
        juce::Colour brightest = juce::Colours::black;
        for (int y = 0; y < picture.getHeight(); ++y) {
            for (int x = 0; x < picture.getWidth(); ++x) {
                const juce::Colour pixel = picture.getPixelAt(x, y);
                if (pixel.getBrightness() > brightest.getBrightness())
                    brightest = pixel;
            }
        }
        return brightest;
    }

    /// Sum of the differences between an upright picture and a lying one that has been turned.
    static int differenceWhenTurned(const juce::Image& upright, const juce::Image& lying,
                                    bool counterClockwise) {
        int sum = 0;
        for (int y = 0; y < upright.getHeight(); ++y) {
            for (int x = 0; x < upright.getWidth(); ++x) {
                const juce::Colour turned = counterClockwise
                                                ? lying.getPixelAt(upright.getHeight() - 1 - y, x)
                                                : lying.getPixelAt(y, upright.getWidth() - 1 - x);
                sum += std::abs(int{upright.getPixelAt(x, y).getRed()} - int{turned.getRed()});
            }
        }
        return sum;
    }

    QMLabelWidget label;
};

} // namespace

TEST_F(LabelTest, ItsNameIsCentredInItsBounds) {
    label.setName("HHHH");
    label.setTextColour(juce::Colours::white);
    label.setSize(124, 16);
    const juce::Rectangle<int> ink = inkOf(pictureOf(label));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.toFloat().getCentreX(), 62.0f, 1.5f);
    EXPECT_NEAR(ink.toFloat().getCentreY(), 8.0f, 2.0f);
}

TEST_F(LabelTest, ItsJustificationMovesTheText) {
    label.setName("HH");
    label.setTextColour(juce::Colours::white);
    label.setSize(124, 16);
    label.setJustification(juce::Justification::centredLeft);
    EXPECT_LE(inkOf(pictureOf(label)).getX(), 3);
    label.setJustification(juce::Justification::centredRight);
    EXPECT_GE(inkOf(pictureOf(label)).getRight(), 121);
}

TEST_F(LabelTest, AnUprightLabelIsCentredAlongItsLength) {
    label.setName("HHHH");
    label.setTextColour(juce::Colours::white);
    label.setVertical(true);
    // Of no account for an upright one.
    label.setJustification(juce::Justification::centredLeft);
    label.setSize(16, 124);
    const juce::Rectangle<int> ink = inkOf(pictureOf(label));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.toFloat().getCentreY(), 62.0f, 1.5f);
    EXPECT_NEAR(ink.toFloat().getCentreX(), 8.0f, 2.0f);
    EXPECT_GT(ink.getHeight(), 2 * ink.getWidth());
}

TEST_F(LabelTest, AnUprightLabelReadsFromBottomToTop) {
    // A text that is not the same when it stands on its head.
    label.setName("LLLL77");
    label.setTextColour(juce::Colours::white);
    label.setSize(124, 16);
    const juce::Image lying = pictureOf(label);
    label.setVertical(true);
    label.setSize(16, 124);
    const juce::Image upright = pictureOf(label);
    EXPECT_LT(differenceWhenTurned(upright, lying, true) * 2,
              differenceWhenTurned(upright, lying, false));
}

TEST_F(LabelTest, TheTextGrowsWithTheMagnificationAndStaysInItsBounds) {
    label.setName("H");
    label.setTextColour(juce::Colours::white);
    label.setSize(100, 40);
    const int small = inkOf(pictureOf(label)).getHeight();
    label.setMagnification(2.0f);
    const int large = inkOf(pictureOf(label)).getHeight();
    EXPECT_NEAR(large, 2 * small, 2);
    label.setSize(100, 12);
    EXPECT_LT(inkOf(pictureOf(label)).getHeight(), 12);
}

TEST_F(LabelTest, WithoutAColourOfItsOwnItTakesTheStrongContrastOfThePanel) {
    Panel panel;
    panel.setBaseColour(juce::Colour(20, 20, 20));
    panel.setSize(60, 16);
    panel.addAndMakeVisible(label);
    label.setName("HHH");
    label.setBounds(panel.getLocalBounds());
    EXPECT_GT(inkColour(pictureOf(panel)).getBrightness(), 0.75f);
    panel.setBaseColour(juce::Colour(240, 240, 240));
    EXPECT_LT(inkColour(pictureOf(panel)).getBrightness(), 0.1f);
}

TEST_F(LabelTest, ItsOwnColourGoesBeforeThePanelsAndTheOverrideBeforeBoth) {
    label.setName("HHH");
    label.setSize(60, 16);
    label.setTextColour(juce::Colour(0, 255, 0));
    EXPECT_TRUE(isNear(inkColour(pictureOf(label)), juce::Colour(0, 255, 0), 60));
    LabelTextColour::setOverride(juce::Colour(255, 0, 255));
    EXPECT_TRUE(isNear(inkColour(pictureOf(label)), juce::Colour(255, 0, 255), 60));
    LabelTextColour::setOverride({});
    EXPECT_TRUE(isNear(inkColour(pictureOf(label)), juce::Colour(0, 255, 0), 60));
}

TEST_F(LabelTest, AnAddressOfElectronicMailOpensAMailLink) {
    const LinkRecorder links;
    label.setName("help@example.org");
    label.setSize(100, 16);
    TestWindow window(label);
    window.click(label);
    EXPECT_EQ(links.opened, juce::StringArray("mailto:help@example.org"));
}

TEST_F(LabelTest, ATextWithAColonIsNoAddressAndTakesNoClicks) {
    const LinkRecorder links;
    label.setName("Write to: help@example.org");
    label.setSize(100, 16);
    TestWindow window(label);
    EXPECT_EQ(window.getComponentAt(50, 8), &window);
    window.click(label);
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(LabelTest, AnOrdinaryLabelLeavesClicksToWhatIsBehind) {
    label.setName("Osc 1");
    label.setSize(100, 16);
    TestWindow window(label);
    EXPECT_EQ(window.getComponentAt(50, 8), &window);
}

TEST_F(LabelTest, ItsLinkIsOpenedInsteadOfItsText) {
    const LinkRecorder links;
    label.setName("Support");
    label.setSize(100, 16);
    label.setLink("https://example.org/a@b");
    TestWindow window(label);
    window.click(label);
    label.setLink("help@example.org");
    window.click(label);
    label.setLink({});
    window.click(label);
    EXPECT_EQ(links.opened,
              juce::StringArray("https://example.org/a@b", "mailto:help@example.org"));
}

TEST_F(LabelTest, LettingGoBesideItOpensNothing) {
    const LinkRecorder links;
    label.setName("help@example.org");
    label.setSize(100, 16);
    TestWindow window(label);
    window.press(label);
    window.dragTo({150.0f, 50.0f});
    window.release();
    window.click(label, 0, juce::ModifierKeys::rightButtonModifier);
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(LabelTest, WithoutASizeNothingIsDrawnAndNothingGoesWrong) {
    label.setName("Osc 1");
    const juce::Image picture = imageOf(juce::Colours::black, 4, 4);
    juce::Graphics g(picture);
    label.paint(g);
    expectPixel(picture, 0, 0, juce::Colours::black, 0);
}
