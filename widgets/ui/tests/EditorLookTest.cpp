// SPDX-License-Identifier: GPL-3.0-or-later
// The background of an editor, and the holder that shows it.
#include "widgets/ui/QMPlugInUIHolder.h"
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

class EditorLook : public EditorTest {
protected:
    EditorLook() {
        describe("room", ProbeTypes::label, {});
        place("room", {0, 0, 200, 100});
    }

    static juce::Image pictureOf(juce::Component& component) {
        return component.createComponentSnapshot(component.getLocalBounds());
    }

    /// Left half red, right half blue.
    static juce::Image twoColours(int width, int height) {
        juce::Image image(juce::Image::RGB, width, height, true);
        image.clear({0, 0, width / 2, height}, juce::Colours::red);
        image.clear({width / 2, 0, width - width / 2, height}, juce::Colours::blue);
        return image;
    }

    void openAtOne() {
        open().setMagnification(1.0F);
        editor->widgetOfID(fourCharCode("room"))->setVisible(false);
    }
};

TEST_F(EditorLook, shadesItsBaseColourFromTopToBottomWithoutAPicture) {
    openAtOne();
    const juce::Image picture = pictureOf(*editor);
    const float top = picture.getPixelAt(100, 0).getBrightness();
    const float middle = picture.getPixelAt(100, 50).getBrightness();
    const float bottom = picture.getPixelAt(100, 99).getBrightness();
    EXPECT_GT(top, middle);
    EXPECT_GT(middle, bottom);
    EXPECT_EQ(picture.getPixelAt(0, 50), picture.getPixelAt(199, 50));
    EXPECT_NEAR(middle, juce::Colour(87, 87, 87).getBrightness(), 0.1F);
    EXPECT_EQ(picture.getPixelAt(0, 99).getAlpha(), 255);
}

TEST_F(EditorLook, takesAnotherBaseColour) {
    openAtOne();
    editor->setBaseColour(juce::Colours::red);
    const juce::Colour middle = pictureOf(*editor).getPixelAt(100, 50);
    EXPECT_GT(middle.getRed(), 150);
    EXPECT_LT(middle.getBlue(), 80);
    EXPECT_EQ(editor->widgetOfID(fourCharCode("room"))->getBaseColour(), juce::Colours::red);
}

TEST_F(EditorLook, stretchesItsPictureOverAllOfIt) {
    openAtOne();
    for (const int width : {50, 200, 800}) {
        editor->background = twoColours(width, width / 2);
        const juce::Image picture = pictureOf(*editor);
        // The toolkit's enlarging takes a little off the last pixels.
        EXPECT_GT(picture.getPixelAt(0, 0).getRed(), 250) << width;
        EXPECT_EQ(picture.getPixelAt(95, 90), juce::Colours::red) << width;
        EXPECT_EQ(picture.getPixelAt(105, 10), juce::Colours::blue) << width;
        EXPECT_GT(picture.getPixelAt(199, 99).getBlue(), 250) << width;
        juce::ImageCache::releaseUnusedImages();
    }
}

TEST_F(EditorLook, keepsAReducedCopyOfItsPictureAndMarksItOpaque) {
    openAtOne();
    editor->background = twoColours(800, 400);
    (void)pictureOf(*editor);
    juce::Image copy =
        juce::ImageCache::getFromHashCode(juce::String("TestBackground200x100").hashCode64());
    ASSERT_TRUE(copy.isValid());
    EXPECT_TRUE(copy.getProperties()->getWithDefault("opaque", false));
    EXPECT_FALSE(editor->background.getProperties()->contains("opaque"));
}

TEST_F(EditorLook, showsItsShadingThroughAPictureThatIsNotOpaque) {
    openAtOne();
    editor->background = juce::Image(juce::Image::ARGB, 200, 100, true);
    EXPECT_EQ(pictureOf(*editor).getPixelAt(100, 50).getAlpha(), 255);
    EXPECT_GT(pictureOf(*editor).getPixelAt(100, 50).getBrightness(), 0.2F);
}

class PlugInUIHolder : public EditorLook {};

/// A panel of a colour of its own.
class Panel final : public juce::Component, public QMParentColorSource {};

int pixelsBrighterThan(float brightness, const juce::Image& picture) {
    int count = 0;
    for (int y = 0; y < picture.getHeight(); ++y) {
        for (int x = 0; x < picture.getWidth(); ++x)
            count += picture.getPixelAt(x, y).getBrightness() > brightness ? 1 : 0;
    }
    return count;
}

TEST_F(PlugInUIHolder, saysThatThereIsNone) {
    QMPlugInUIHolder holder;
    holder.setSize(300, 100);
    const juce::Image picture = pictureOf(holder);
    EXPECT_EQ(picture.getPixelAt(2, 2), juce::Colour(87, 87, 87));
    EXPECT_GT(pixelsBrighterThan(0.6F, picture), 50);
    // Centred: nothing far from the middle line.
    EXPECT_EQ(pixelsBrighterThan(0.4F, picture.getClippedImage({0, 0, 300, 30})), 0);
    EXPECT_EQ(pixelsBrighterThan(0.4F, picture.getClippedImage({0, 70, 300, 30})), 0);
    EXPECT_EQ(pixelsBrighterThan(0.4F, picture.getClippedImage({0, 0, 60, 100})), 0);
}

TEST_F(PlugInUIHolder, fillsItselfInTheColourOfItsPanel) {
    Panel panel;
    panel.setBaseColour(juce::Colours::darkblue);
    QMPlugInUIHolder holder;
    panel.addAndMakeVisible(holder);
    panel.setSize(300, 100);
    holder.setSize(300, 100);
    EXPECT_EQ(pictureOf(holder).getPixelAt(2, 2), juce::Colours::darkblue);
}

TEST_F(PlugInUIHolder, showsAUIAndTakesItAwayAgain) {
    openAtOne();
    QMPlugInUIHolder holder;
    holder.setSize(200, 100);
    holder.setUI(&*editor);
    EXPECT_EQ(holder.getUI(), &*editor);
    EXPECT_EQ(holder.getViewport().getViewedComponent(), &*editor);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_FALSE(holder.getViewport().getVerticalScrollBar().isVisible());
    holder.setUI(nullptr);
    EXPECT_EQ(holder.getViewport().getViewedComponent(), nullptr);
    EXPECT_EQ(editor->getParentComponent(), nullptr);
}

TEST_F(PlugInUIHolder, replacesAUIByAnother) {
    openAtOne();
    TableEditor other(instance.get(), &host, {});
    QMPlugInUIHolder holder;
    holder.setSize(200, 100);
    holder.setUI(&other);
    holder.setUI(&*editor);
    EXPECT_EQ(other.getParentComponent(), nullptr);
    EXPECT_EQ(holder.getViewport().getViewedComponent(), &*editor);
}

TEST_F(PlugInUIHolder, scrollsAUIThatIsLargerThanItself) {
    openAtOne();
    QMPlugInUIHolder holder;
    holder.setSize(120, 60);
    holder.setUI(&*editor);
    EXPECT_TRUE(holder.getViewport().getVerticalScrollBar().isVisible());
    EXPECT_TRUE(holder.getViewport().getHorizontalScrollBar().isVisible());
    EXPECT_EQ(editor->getWidth(), 200);
    EXPECT_EQ(editor->getHeight(), 100);
}

} // namespace
