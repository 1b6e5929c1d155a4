// SPDX-License-Identifier: GPL-3.0-or-later
// The background of an open editor: its mode, where that is kept, what is painted.
#include "widgets/ui/tests/appearance/support/AppearanceEditor.h"

#include <limits>

namespace {

using juce::Colour;

class BackgroundMode : public AppearanceTest {
protected:
    /// What an editor opens with when this is stored.
    std::int32_t opened() { return openEditor().getBackgroundMode(); }
};

TEST_F(BackgroundMode, isUnsetBeforeTheEditorIsSetUp) {
    EXPECT_EQ(make(rings()).getBackgroundMode(), -1);
    EXPECT_TRUE(editors.back()->loaded.isEmpty());
}

TEST_F(BackgroundMode, isDarkBrushedWhenNothingIsStored) {
    AppearanceEditor& ui = openEditor();
    EXPECT_EQ(ui.getBackgroundMode(), 1);
    EXPECT_EQ(ui.loaded, juce::StringArray("UIBackgroundDark.png"));
    EXPECT_EQ(stored("bknd"), "1");
    EXPECT_EQ(stored("background"), "nothing") << "nobody chose it";
    EXPECT_EQ(ui.looksChanged, 1);
}

TEST_F(BackgroundMode, isWhatItsOwnKeySays) {
    store("bknd", 3);
    AppearanceEditor& ui = openEditor();
    EXPECT_EQ(ui.getBackgroundMode(), 3);
    EXPECT_EQ(ui.item("background").integerValue(), 3) << "the panel shows it";
    EXPECT_EQ(stored("background"), "3");
    EXPECT_TRUE(ui.loaded.isEmpty()) << "no picture is read that is not shown";
}

TEST_F(BackgroundMode, isWhatTheItemSaysWhereThatKeyIsMissing) {
    store("background", 4);
    EXPECT_EQ(opened(), 4);
    EXPECT_EQ(stored("bknd"), "4");
}

TEST_F(BackgroundMode, isWhatItsOwnKeySaysWhereTheTwoDiffer) {
    store("bknd", 2);
    store("background", 4);
    EXPECT_EQ(opened(), 2);
    EXPECT_EQ(stored("background"), "2");
    EXPECT_EQ(stored("bknd"), "2");
}

TEST_F(BackgroundMode, isNoneThatThereIsNot) {
    store("bknd", 7);
    EXPECT_EQ(opened(), 1);
    EXPECT_EQ(stored("bknd"), "1");
    store("bknd", -1);
    store("background", 2);
    EXPECT_EQ(opened(), 2);
    store("bknd", 7);
    store("background", 7);
    EXPECT_EQ(opened(), 1);
    EXPECT_EQ(stored("background"), "1");
}

TEST_F(BackgroundMode, ofATextThatIsNoNumberIsLightBrushed) {
    store("background", "dark");
    EXPECT_EQ(opened(), 0);
    store("bknd", "dark");
    store("background", 3);
    EXPECT_EQ(opened(), 0);
}

TEST_F(BackgroundMode, chosenInEitherPlaceIsThereWhenTheEditorOpensAgain) {
    openEditor().setBackgroundMode(3);
    EXPECT_EQ(stored("bknd"), "3");
    EXPECT_EQ(stored("background"), "3");
    EXPECT_EQ(opened(), 3);
    editors.back()->choose("background", 0);
    EXPECT_EQ(stored("bknd"), "0");
    EXPECT_EQ(opened(), 0);
    editors.back()->setBackgroundMode(4);
    EXPECT_EQ(opened(), 4);
}

TEST_F(BackgroundMode, loadsNoPictureAgainForTheModeItHas) {
    AppearanceEditor& ui = openEditor();
    ASSERT_EQ(ui.loaded.size(), 1);
    const int looks = ui.looksChanged;
    ui.setBackgroundMode(1);
    EXPECT_EQ(ui.looksChanged, looks);
    ui.choose("background", 1);
    ui.preferenceChanged("background");
    store("something", "else");
    runPendingMessages();
    EXPECT_EQ(ui.loaded.size(), 1);
    ui.setBackgroundMode(0);
    ui.setBackgroundMode(1);
    EXPECT_EQ(ui.loaded, (juce::StringArray{"UIBackgroundDark.png", "UIBackground.png",
                                            "UIBackgroundDark.png"}));
}

TEST_F(BackgroundMode, takesNoNumberThatIsNone) {
    AppearanceEditor& ui = openEditor();
    ui.setBackgroundMode(2);
    const int looks = ui.looksChanged;
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {-1, 5, 7, Limits::max(), Limits::min()})
        ui.setBackgroundMode(number);
    EXPECT_EQ(ui.getBackgroundMode(), 2);
    EXPECT_EQ(stored("bknd"), "2");
    EXPECT_EQ(ui.looksChanged, looks);
    ui.choose("background", 7);
    EXPECT_EQ(ui.getBackgroundMode(), 2);
    EXPECT_EQ(ui.item("background").integerValue(), 2);
    EXPECT_EQ(stored("background"), "2");
    (void)pictureOf(ui);
}

TEST_F(BackgroundMode, givesWidgetsTheColourThatTheirTextStandsOn) {
    AppearanceEditor& ui = openEditor();
    const auto seenBy = [&ui](std::int32_t mode) {
        ui.setBackgroundMode(mode);
        return ui.knob().getBaseColour();
    };
    EXPECT_EQ(seenBy(0), Colour::greyLevel(0.51F));
    EXPECT_EQ(ui.knob().getContrastColourStrong(), juce::Colours::black);
    EXPECT_EQ(seenBy(1), Colour::greyLevel(0.3F));
    EXPECT_EQ(ui.knob().getContrastColourStrong(), juce::Colours::white);
    EXPECT_EQ(seenBy(2), Colour(87, 87, 87));
    EXPECT_EQ(seenBy(3), Colour(61, 61, 61));
    EXPECT_EQ(seenBy(4), Colour(61, 61, 61));
}

// A bright colour that darkens downwards: most of the panel is dark, and white is legible on it.
// 200 + 0.164 * 55 = 209, 200 * 0.09 = 18; (209 + 18) / 2 = 113.
TEST_F(BackgroundMode, takesTheMiddleOfAGradientForIt) {
    AppearanceEditor& ui = openEditor();
    ui.setBackgroundMode(3);
    ui.choose("base_color", QM::PreferenceColour{0xFFC8C8C8});
    EXPECT_EQ(ui.getBaseColour(), Colour(113, 113, 113));
    EXPECT_EQ(ui.knob().getContrastColourStrong(), juce::Colours::white);
}

TEST_F(BackgroundMode, showsItsPictureOverAllOfTheEditor) {
    AppearanceEditor& ui = make(rings());
    juce::Image picture(juce::Image::RGB, 400, 200, true, juce::SoftwareImageType());
    picture.clear(picture.getBounds(), Colour(20, 40, 60));
    ui.backgrounds["UIBackgroundDark.png"] = picture;
    ui.setupAfterCreation();
    ui.setMagnification(1.0F);
    ASSERT_EQ(ui.getLocalBounds(), juce::Rectangle<int>(0, 0, 200, 100));
    const juce::Image shown = backgroundOf(ui);
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(199, 0), std::pair(100, 50),
                               std::pair(0, 99), std::pair(199, 99)})
        EXPECT_EQ(shown.getPixelAt(x, y), Colour(20, 40, 60)) << x << ", " << y;
    EXPECT_TRUE(
        juce::ImageCache::getFromHashCode(juce::String("UIBackgroundDark.png200x100").hashCode64())
            .isValid());
}

TEST_F(BackgroundMode, isDrawnInItsShadeWithoutThePicture) {
    AppearanceEditor& ui = openEditor();
    for (const std::int32_t mode : {0, 1}) {
        ui.setBackgroundMode(mode);
        const juce::Image shown = backgroundOf(ui);
        EXPECT_NEAR(shown.getPixelAt(100, 50).getBrightness(), mode == 0 ? 0.51F : 0.3F, 0.1F);
        EXPECT_GT(shown.getPixelAt(100, 0).getRed(), shown.getPixelAt(100, 99).getRed());
    }
}

TEST_F(BackgroundMode, isDrawnAtTheEditorsSizeWhenThatChanges) {
    AppearanceEditor& ui = openEditor();
    ui.setBackgroundMode(3);
    for (const float magnification : {1.0F, 2.5F, 0.6F}) {
        ui.setMagnification(magnification);
        const juce::Image shown = backgroundOf(ui);
        EXPECT_EQ(shown.getPixelAt(3, 0), Colour(115, 115, 115));
        EXPECT_EQ(shown.getPixelAt(3, shown.getHeight() - 1), Colour(8, 8, 8));
    }
}

TEST_F(BackgroundMode, mayBeSetBeforeTheWidgetsAreBuilt) {
    AppearanceEditor& ui = make(rings());
    ui.setBackgroundMode(2);
    EXPECT_EQ(stored("bknd"), "2");
    ui.setupAfterCreation();
    EXPECT_EQ(ui.getBackgroundMode(), 2);
    EXPECT_EQ(stored("background"), "2");
}

} // namespace
