// SPDX-License-Identifier: GPL-3.0-or-later
// What each item of the preferences does to an editor, and that it does nothing else.
#include "widgets/ui/tests/appearance/support/AppearanceEditor.h"

#include <limits>

namespace {

using juce::Colour;
using QM::PreferenceColour;
using QM::PreferenceItem;
using QM::PreferenceValue;

/// Everything that a preference may change.
struct Looks {
    Colour readoutText;
    juce::Image label;
    bool bevelShown;
    std::int32_t knobType;
    bool ringsShown;
    double ringWidth;
    std::int32_t mode;
    Colour panel;
    juce::Image background;

    /// Names of what is not the same.
    [[nodiscard]] std::vector<std::string> differences(const Looks& other) const {
        std::vector<std::string> found;
        const auto compare = [&found](const char* name, bool same) {
            if (!same)
                found.emplace_back(name);
        };
        compare("readout", readoutText == other.readoutText);
        compare("label", samePixels(label, other.label));
        compare("bevel", bevelShown == other.bevelShown);
        compare("knob", knobType == other.knobType);
        compare("rings", ringsShown == other.ringsShown);
        compare("width", ringWidth == other.ringWidth);
        compare("mode", mode == other.mode);
        compare("panel", panel == other.panel);
        compare("background", samePixels(background, other.background));
        return found;
    }

    static bool samePixels(const juce::Image& one, const juce::Image& other) {
        if (one.getBounds() != other.getBounds())
            return false;
        for (int y = 0; y < one.getHeight(); ++y) {
            for (int x = 0; x < one.getWidth(); ++x) {
                if (one.getPixelAt(x, y) != other.getPixelAt(x, y))
                    return false;
            }
        }
        return true;
    }
};

using Names = std::vector<std::string>;

class AppearanceItems : public AppearanceTest {
protected:
    static Looks looksOf(AppearanceEditor& ui) {
        return {.readoutText = ui.readout().getTextColour().value_or(Colour()),
                .label = pictureOf(ui.label()),
                .bevelShown = ui.bevel().isVisible(),
                .knobType = ui.knob().getKnobType(),
                .ringsShown = ui.knob().getShowRings(),
                .ringWidth = ui.knob().getRingWidth(),
                .mode = ui.getBackgroundMode(),
                .panel = ui.getBaseColour(),
                .background = backgroundOf(ui)};
    }

    /// What a choice in the panel changes in an editor with this background mode.
    Names changedBy(const char* key, const PreferenceValue& value, std::int32_t mode = 1) {
        AppearanceEditor& ui = openEditor(everything());
        ui.setBackgroundMode(mode);
        const Looks before = looksOf(ui);
        ui.choose(key, value);
        return before.differences(looksOf(ui));
    }

    /// The strongest colour in the text of a label.
    static Colour inkOf(QMLabelWidget& label) {
        const juce::Image picture = pictureOf(label);
        Colour ink;
        for (int y = 0; y < picture.getHeight(); ++y) {
            for (int x = 0; x < picture.getWidth(); ++x) {
                if (picture.getPixelAt(x, y).getBrightness() > ink.getBrightness())
                    ink = picture.getPixelAt(x, y);
            }
        }
        return ink;
    }
};

TEST_F(AppearanceItems, theTextColourIsThatOfReadoutsAndLabels) {
    EXPECT_EQ(changedBy("text_color", PreferenceColour{0xFFFF0000}), (Names{"readout", "label"}));
    AppearanceEditor& ui = *editors.back();
    EXPECT_EQ(ui.getTextColour(), Colour(0xFFFF0000));
    EXPECT_EQ(ui.readout().getTextColour(), Colour(0xFFFF0000));
    EXPECT_GT(inkOf(ui.label()).getRed(), 100);
    EXPECT_EQ(inkOf(ui.label()).getGreen(), 0);
}

TEST_F(AppearanceItems, labelsAreWhatIsLegibleUntilATextColourIsChosen) {
    AppearanceEditor& ui = openEditor(everything());
    EXPECT_EQ(ui.readout().getTextColour(), Colour(0xFF00FF00));
    EXPECT_GT(inkOf(ui.label()).getRed(), 200);
    ui.choose("text_color", PreferenceColour{0xFF0000FF});
    EXPECT_EQ(inkOf(ui.label()).getRed(), 0);
    ui.resetToDefaults();
    EXPECT_EQ(ui.readout().getTextColour(), Colour(0xFF00FF00));
    EXPECT_GT(inkOf(ui.label()).getRed(), 200);
}

TEST_F(AppearanceItems, theBackgroundIsItsMode) {
    // Without its pictures: the shade of the metal, and what is legible on it.
    EXPECT_EQ(changedBy("background", 0), (Names{"label", "mode", "panel", "background"}));
    EXPECT_EQ(editors.back()->getBackgroundMode(), 0);
    EXPECT_EQ(changedBy("background", 2), (Names{"mode", "panel", "background"}));
    EXPECT_EQ(changedBy("background", 4, 3), (Names{"mode", "background"}));
}

TEST_F(AppearanceItems, theBaseColourIsThatOfTheModesWithoutPictures) {
    const PreferenceValue blue = PreferenceColour{0xFF0000FF};
    EXPECT_EQ(changedBy("base_color", blue, 0), Names{});
    EXPECT_EQ(changedBy("base_color", blue, 1), Names{});
    for (const std::int32_t mode : {2, 3, 4}) {
        emptyShellStore();
        EXPECT_EQ(changedBy("base_color", blue, mode), (Names{"panel", "background"})) << mode;
    }
    EXPECT_EQ(changedBy("base_color", PreferenceColour{0xFF404040}, 2),
              (Names{"panel", "background"}));
    EXPECT_EQ(editors.back()->getBaseColour(), Colour(0xFF404040));
    EXPECT_EQ(backgroundOf(*editors.back()).getPixelAt(7, 7), Colour(0xFF404040));
}

// 87 + 168 / 2 = 171 at the top, 8 at the bottom.
TEST_F(AppearanceItems, theTopBrightnessIsThatOfTheGradients) {
    for (const std::int32_t mode : {0, 1, 2}) {
        emptyShellStore();
        EXPECT_EQ(changedBy("top_brightness", 0.5F, mode), Names{}) << mode;
    }
    emptyShellStore();
    EXPECT_EQ(changedBy("top_brightness", 0.5F, 3), (Names{"panel", "background"}));
    const juce::Image picture = backgroundOf(*editors.back());
    EXPECT_EQ(topOf(picture), Colour(171, 171, 171));
    EXPECT_EQ(bottomOf(picture), Colour(8, 8, 8));
    EXPECT_EQ(changedBy("top_brightness", 0.25F, 4), (Names{"panel", "background"}));
}

// 115 at the top, 87 / 2 = 43.5 at the bottom.
TEST_F(AppearanceItems, theBottomBrightnessIsThatOfTheGradients) {
    for (const std::int32_t mode : {0, 1, 2}) {
        emptyShellStore();
        EXPECT_EQ(changedBy("bot_brightness", -0.5F, mode), Names{}) << mode;
    }
    emptyShellStore();
    EXPECT_EQ(changedBy("bot_brightness", -0.5F, 3), (Names{"panel", "background"}));
    const juce::Image picture = backgroundOf(*editors.back());
    EXPECT_EQ(topOf(picture), Colour(115, 115, 115));
    EXPECT_EQ(bottomOf(picture), Colour(44, 44, 44));
}

TEST_F(AppearanceItems, bevelsAreHiddenAndShown) {
    EXPECT_EQ(changedBy("show_bevels", false), Names{"bevel"});
    EXPECT_FALSE(editors.back()->bevel().isVisible());
    EXPECT_TRUE(editors.back()->innerBevel.isVisible());
    editors.back()->choose("show_bevels", true);
    EXPECT_TRUE(editors.back()->bevel().isVisible());
}

TEST_F(AppearanceItems, theKnobTypeIsThatOfEveryStrip) {
    EXPECT_EQ(changedBy("knob_type", 8), Names{"knob"});
    AppearanceEditor& ui = *editors.back();
    EXPECT_EQ(ui.knob().getKnobType(), 8);
    EXPECT_EQ(ui.widget<QMKnobStripWidget>("afre").getKnobType(), 8);
    EXPECT_EQ(ui.innerKnob.getKnobType(), 7) << "its own";
}

TEST_F(AppearanceItems, noKnobAndTheSeparatorTakeItsPictureAway) {
    for (const std::int32_t type : {-1, -2}) {
        emptyShellStore();
        AppearanceEditor& ui = openEditor(everything());
        ui.knob().setKnobImage(juce::Image(juce::Image::ARGB, 160, 170, true), 271);
        ASSERT_TRUE(ui.knob().getFrames().hasImage());
        ui.choose("knob_type", type);
        EXPECT_EQ(ui.knob().getKnobType(), -1);
        EXPECT_FALSE(ui.knob().getFrames().hasImage());
    }
}

TEST_F(AppearanceItems, ringsAreHiddenAndShown) {
    EXPECT_EQ(changedBy("show_rings", false), Names{"rings"});
    AppearanceEditor& ui = *editors.back();
    EXPECT_FALSE(ui.widget<QMKnobStripWidget>("afre").getShowRings());
    EXPECT_TRUE(ui.innerKnob.getShowRings());
    ui.choose("show_rings", true);
    EXPECT_TRUE(ui.knob().getShowRings());
}

TEST_F(AppearanceItems, theRingWidthIsThatOfEveryKnob) {
    EXPECT_EQ(changedBy("ring_width", 2.5F), Names{"width"});
    AppearanceEditor& ui = *editors.back();
    EXPECT_EQ(ui.knob().getRingWidth(), 2.5);
    EXPECT_EQ(ui.widget<QMKnobStripWidget>("afre").getRingWidth(), 2.5);
    EXPECT_EQ(ui.innerKnob.getRingWidth(), 4.0);
}

TEST_F(AppearanceItems, ringWidthsBeyondWhatCanBeDrawnAreTheNearestThatCan) {
    AppearanceEditor& ui = openEditor();
    ui.choose("ring_width", -5.0F);
    EXPECT_EQ(ui.knob().getRingWidth(), 0.0);
    ui.choose("ring_width", 1e9F);
    EXPECT_EQ(ui.knob().getRingWidth(), 12.0);
    EXPECT_EQ(ui.item("ring_width").floatValue(), 1e9F) << "the user's own";
    (void)pictureOf(ui);
}

TEST_F(AppearanceItems, whatAProductDoesNotOfferIsAsItsTablesSay) {
    store("knob_type", 1);
    store("show_rings", false);
    store("ring_width", 9.0);
    store("show_bevels", false);
    AppearanceEditor& ui = openEditor({.hideColourOptions = true});
    EXPECT_EQ(ui.knob().getKnobType(), 7);
    EXPECT_TRUE(ui.knob().getShowRings());
    EXPECT_EQ(ui.knob().getRingWidth(), 4.0);
    EXPECT_TRUE(ui.bevel().isVisible());
}

TEST_F(AppearanceItems, openingAppliesEveryItem) {
    AppearanceEditor& ui = make(everything());
    ui.atFirst = [](AppearanceEditor& built) {
        built.setTextColour(juce::Colours::red);
        built.bevel().setVisible(false);
        built.knob().setShowRings(false);
        built.knob().setRingWidth(9.0);
    };
    ui.setupAfterCreation();
    EXPECT_EQ(ui.readout().getTextColour(), Colour(0xFF00FF00));
    EXPECT_TRUE(ui.bevel().isVisible());
    EXPECT_TRUE(ui.knob().getShowRings());
    EXPECT_EQ(ui.knob().getRingWidth(), 4.0);
    EXPECT_EQ(ui.knob().getKnobType(), 6);
    EXPECT_EQ(ui.getBackgroundMode(), 1);
    EXPECT_EQ(ui.getBaseColour(), Colour::greyLevel(0.3F));
}

// Later, only what differs from what was applied.
TEST_F(AppearanceItems, aChangeLeavesAloneWhatWasAppliedBefore) {
    AppearanceEditor& ui = openEditor(everything());
    ui.knob().setRingWidth(9.0);
    ui.bevel().setVisible(false);
    ui.choose("show_rings", false);
    EXPECT_EQ(ui.knob().getRingWidth(), 9.0);
    EXPECT_FALSE(ui.bevel().isVisible());
}

TEST_F(AppearanceItems, aKeyTellsTheEditorToLookAtItsItem) {
    AppearanceEditor& ui = openEditor();
    ui.item("ring_width").setValue(7.0F);
    ui.item("show_rings").setValue(false);
    ui.preferenceChanged("ring_width");
    EXPECT_EQ(ui.knob().getRingWidth(), 7.0);
    EXPECT_TRUE(ui.knob().getShowRings());
    const int before = ui.looksChanged;
    ui.preferenceChanged("knob_type");
    ui.preferenceChanged("no_such_key");
    ui.preferenceChanged("");
    EXPECT_EQ(ui.looksChanged, before);
}

TEST_F(AppearanceItems, anItemOfAnotherTypeCountsAsNothing) {
    AppearanceEditor& ui = openEditor(everything());
    for (PreferenceItem& item : ui.preferenceGroups().front().items()) {
        item = PreferenceItem(item.key(), item.label(), std::string("text"));
        ui.preferenceChanged(item.key());
    }
    EXPECT_EQ(ui.getBackgroundMode(), 0);
    EXPECT_EQ(ui.getTextColour(), Colour(0x00000000));
    EXPECT_FALSE(ui.bevel().isVisible());
    EXPECT_FALSE(ui.knob().getShowRings());
    EXPECT_EQ(ui.knob().getRingWidth(), 0.0);
    EXPECT_EQ(ui.knob().getKnobType(), 0);
    // Black from top to bottom: a brightness of 0 is the colour itself.
    ui.setBackgroundMode(3);
    EXPECT_EQ(topOf(backgroundOf(ui)), juce::Colours::black);
    EXPECT_EQ(bottomOf(backgroundOf(ui)), juce::Colours::black);
}

TEST_F(AppearanceItems, somebodyElsesItemIsNoChange) {
    AppearanceEditor& ui = openEditor();
    AppearanceEditor& other = make(rings());
    other.item("show_rings").setValue(false);
    ui.itemChanged(other.item("show_rings"));
    EXPECT_TRUE(ui.knob().getShowRings());
    EXPECT_EQ(stored("show_rings"), "nothing");
}

} // namespace
