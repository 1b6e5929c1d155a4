// SPDX-License-Identifier: GPL-3.0-or-later
// Modes of the background: which picture, which colour for text, what is drawn.
#include "widgets/ui/appearance/EditorBackground.h"
#include "tests/support/toolkit/ToolkitTest.h"

#include <limits>

namespace {

using juce::Colour;

class EditorBackgroundTest : public ToolkitTest {
protected:
    bool setMode(std::int32_t mode) {
        return background.setMode(mode, [this](const juce::String& name) {
            loaded.add(name);
            return juce::Image(juce::Image::RGB, 3, 2, true, juce::SoftwareImageType());
        });
    }

    /// What it draws over magenta.
    juce::Image picture(int width, int height, float pixelsPerUnit = 1.0F) {
        const auto pixels = [pixelsPerUnit](int length) {
            return juce::roundToInt(pixelsPerUnit * static_cast<float>(length));
        };
        juce::Image image(juce::Image::RGB, pixels(width), pixels(height), true,
                          juce::SoftwareImageType());
        image.clear(image.getBounds(), juce::Colours::magenta);
        juce::Graphics g(image);
        g.addTransform(juce::AffineTransform::scale(pixelsPerUnit));
        background.draw(g, {0, 0, width, height});
        return image;
    }

    EditorBackground background;
    juce::StringArray loaded;
};

TEST_F(EditorBackgroundTest, hasNoModeAtFirst) {
    EXPECT_EQ(background.getMode(), -1);
    EXPECT_FALSE(background.isDrawn());
    EXPECT_TRUE(background.getImage().isNull());
}

TEST_F(EditorBackgroundTest, lightAndDarkMetalHaveTheirPictures) {
    EXPECT_TRUE(setMode(0));
    EXPECT_EQ(background.getImageName(), "UIBackground.png");
    EXPECT_EQ(background.getTag(), "uib");
    EXPECT_EQ(background.getPanelColour(), Colour::greyLevel(0.51F));
    EXPECT_TRUE(background.getImage().isValid());
    EXPECT_TRUE(setMode(1));
    EXPECT_EQ(background.getImageName(), "UIBackgroundDark.png");
    EXPECT_EQ(background.getTag(), "uibd");
    EXPECT_EQ(background.getPanelColour(), Colour::greyLevel(0.3F));
    EXPECT_EQ(loaded, (juce::StringArray{"UIBackground.png", "UIBackgroundDark.png"}));
    EXPECT_FALSE(background.isDrawn());
}

TEST_F(EditorBackgroundTest, theOthersLetGoOfThePictureAndLoadNone) {
    for (const std::int32_t mode : {2, 3, 4}) {
        setMode(1);
        loaded.clear();
        EXPECT_TRUE(setMode(mode));
        EXPECT_TRUE(background.getImage().isNull()) << mode;
        EXPECT_EQ(background.getImageName(), "");
        EXPECT_EQ(background.getTag(), "");
        EXPECT_TRUE(background.isDrawn());
        EXPECT_TRUE(loaded.isEmpty());
    }
}

TEST_F(EditorBackgroundTest, theModeItHasLoadsNothingAgain) {
    setMode(1);
    EXPECT_FALSE(setMode(1));
    EXPECT_EQ(loaded.size(), 1);
}

TEST_F(EditorBackgroundTest, aNumberThatIsNoModeChangesNothing) {
    setMode(2);
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {-1, -2, 5, 7, Limits::min(), Limits::max()}) {
        EXPECT_FALSE(EditorBackground::isMode(number));
        EXPECT_FALSE(setMode(number));
        EXPECT_EQ(background.getMode(), 2);
    }
}

TEST_F(EditorBackgroundTest, flatIsOneColourAllOver) {
    setMode(2);
    const juce::Image before = picture(30, 20);
    EXPECT_EQ(before.getPixelAt(0, 0), Colour(87, 87, 87));
    background.setBaseColour(Colour(200, 10, 60));
    const juce::Image after = picture(30, 20);
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(29, 0), std::pair(15, 10),
                               std::pair(0, 19), std::pair(29, 19)})
        EXPECT_EQ(after.getPixelAt(x, y), Colour(200, 10, 60));
    EXPECT_EQ(background.getPanelColour(), Colour(200, 10, 60));
}

// See BackgroundBrightness for 115 and 8; (115 + 8) / 2 = 61.5.
TEST_F(EditorBackgroundTest, theGradientRunsFromBrightnessToBrightness) {
    setMode(3);
    const juce::Image shown = picture(30, 201);
    EXPECT_EQ(shown.getPixelAt(15, 0), Colour(115, 115, 115));
    EXPECT_NEAR(shown.getPixelAt(15, 100).getRed(), 61.5, 1.0);
    EXPECT_EQ(shown.getPixelAt(15, 200), Colour(8, 8, 8));
    EXPECT_EQ(background.getPanelColour(), Colour(61, 61, 61));
}

// 40 + 0.5 * 215 = 147.5; 40 * 0.75 = 30. 80 + 0.5 * 175 = 167.5; 60. 0 + 127.5; 0.
TEST_F(EditorBackgroundTest, theGradientFollowsColourAndBrightness) {
    setMode(3);
    EXPECT_TRUE(background.setBaseColour(Colour(40, 80, 0)));
    EXPECT_TRUE(background.setTopBrightness(0.5F));
    EXPECT_TRUE(background.setBottomBrightness(-0.25F));
    const juce::Image shown = picture(30, 201);
    EXPECT_EQ(shown.getPixelAt(3, 0), Colour(148, 168, 128));
    EXPECT_EQ(shown.getPixelAt(3, 200), Colour(30, 60, 0));
    EXPECT_EQ(background.getPanelColour(), Colour(89, 114, 64));
}

TEST_F(EditorBackgroundTest, highlightsComeOnTopOfTheGradient) {
    setMode(4);
    const juce::Image shown = picture(400, 400);
    EXPECT_GT(shown.getPixelAt(200, 0).getRed(), 130);
    EXPECT_LT(shown.getPixelAt(0, 399).getRed(), 25);
    EXPECT_EQ(background.getPanelColour(), Colour(61, 61, 61));
}

TEST_F(EditorBackgroundTest, aChangeThatCannotBeSeenNeedsNoPainting) {
    setMode(1);
    EXPECT_FALSE(background.setBaseColour(Colour(1, 2, 3)));
    EXPECT_FALSE(background.setTopBrightness(0.3F));
    setMode(2);
    EXPECT_FALSE(background.setTopBrightness(0.4F));
    EXPECT_FALSE(background.setBottomBrightness(0.4F));
    EXPECT_FALSE(background.setBaseColour(Colour(1, 2, 3)));
    EXPECT_TRUE(background.setBaseColour(Colour(3, 2, 1)));
    setMode(4);
    EXPECT_FALSE(background.setTopBrightness(0.4F));
    EXPECT_TRUE(background.setTopBrightness(0.5F));
}

TEST_F(EditorBackgroundTest, whatWasSetBeforeIsThereWhenTheModeComes) {
    setMode(1);
    background.setBaseColour(Colour(40, 80, 0));
    background.setTopBrightness(-1.0F);
    setMode(3);
    EXPECT_EQ(picture(10, 10).getPixelAt(5, 0), juce::Colours::black);
}

TEST_F(EditorBackgroundTest, isNeverTransparent) {
    setMode(2);
    background.setBaseColour(Colour(0x00204060));
    EXPECT_EQ(picture(10, 10).getPixelAt(5, 5), Colour(0xFF204060));
}

TEST_F(EditorBackgroundTest, brightnessBeyondItsRangeIsTheEndOfIt) {
    setMode(3);
    background.setTopBrightness(50.0F);
    background.setBottomBrightness(std::numeric_limits<float>::quiet_NaN());
    const juce::Image shown = picture(10, 50);
    EXPECT_EQ(shown.getPixelAt(5, 0), juce::Colours::white);
    EXPECT_EQ(shown.getPixelAt(5, 49), Colour(87, 87, 87));
}

TEST_F(EditorBackgroundTest, fillsEveryPixelOfTheScreenWhateverItsScale) {
    setMode(3);
    for (const float scale : {0.75F, 1.0F, 1.25F, 1.5F, 2.0F}) {
        const juce::Image shown = picture(31, 40, scale);
        const int right = shown.getWidth() - 1;
        const int bottom = shown.getHeight() - 1;
        EXPECT_EQ(shown.getPixelAt(0, 0), Colour(115, 115, 115)) << scale;
        for (const auto& [x, y] :
             {std::pair(right, 0), std::pair(right, bottom), std::pair(0, bottom)})
            EXPECT_EQ(shown.getPixelAt(x, y).getRed(), shown.getPixelAt(x, y).getBlue()) << scale;
        EXPECT_LT(shown.getPixelAt(0, bottom).getRed(), 15) << scale;
    }
}

TEST_F(EditorBackgroundTest, followsItsSize) {
    setMode(3);
    EXPECT_EQ(picture(10, 400).getPixelAt(5, 399), Colour(8, 8, 8));
    EXPECT_EQ(picture(20, 50).getPixelAt(15, 49), Colour(8, 8, 8));
    (void)picture(0, 0);
}

} // namespace
