// SPDX-License-Identifier: GPL-3.0-or-later
// What users can restyle of the product's editor, and what each of their choices changes.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/PictureDifference.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"

namespace {

class EditorAppearance : public BroltEditorTest {
protected:
    EditorAppearance() { openAt(100); }

    /// As the preferences panel does.
    void choose(const std::string& key, QM::PreferenceValue value) {
        QM::PreferenceItem* const item = editor->preferenceGroups().front().find(key);
        ASSERT_NE(item, nullptr) << key;
        ASSERT_TRUE(item->setValue(std::move(value))) << key;
        editor->itemChanged(*item);
    }

    void chooseColour(const std::string& key, std::uint32_t argb) {
        choose(key, QM::PreferenceColour{argb});
    }

    template <typename Widget>
    [[nodiscard]] juce::RectangleList<int> placesOf() const {
        juce::RectangleList<int> places;
        for (const QMWidget* const widget : widgets()) {
            if (dynamic_cast<const Widget*>(widget) != nullptr)
                places.add(widget->getBounds());
        }
        return places;
    }

    [[nodiscard]] juce::RectangleList<int> knobs() const {
        juce::RectangleList<int> places;
        for (const QMWidget* const widget : widgets()) {
            if (const auto* const knob = dynamic_cast<const QMKnobStripWidget*>(widget))
                places.add(knob->getKnobArea() + knob->getPosition());
        }
        return places;
    }

    [[nodiscard]] juce::RectangleList<int> edgesOfBevels() const {
        juce::RectangleList<int> places = placesOf<QMBevelWidget>();
        for (const QMWidget* const widget : widgets()) {
            if (dynamic_cast<const QMBevelWidget*>(widget) != nullptr)
                places.subtract(widget->getBounds().reduced(3));
        }
        return places;
    }

    /// What nobody sees through: readouts and the history.
    [[nodiscard]] juce::RectangleList<int> windows() const {
        juce::RectangleList<int> places(widget("wind").getBounds().reduced(12));
        for (const QMWidget* const widget : widgets()) {
            if (const auto* const readout = dynamic_cast<const QMParameterReadoutWidget*>(widget))
                places.add((readout->getFrameArea() + readout->getPosition()).reduced(6));
        }
        return places;
    }

    /// A choice is seen in these places and nowhere else.
    template <typename Choice>
    void expectChangeIn(const juce::RectangleList<int>& places, const Choice& makeChoice) {
        const juce::Image before = picture();
        makeChoice();
        const PictureDifference seen = differenceOf(before, picture(), places);
        EXPECT_GT(seen.inside, 200);
        EXPECT_EQ(seen.outside, 0) << seen.strays.toString();
    }

    template <typename Choice>
    void expectNoChange(const Choice& makeChoice) {
        const juce::Image before = picture();
        makeChoice();
        const PictureDifference seen = differenceOf(before, picture(), {});
        EXPECT_EQ(seen.outside, 0) << seen.strays.toString();
    }

    [[nodiscard]] bool hasLogo(const char* fileName) const {
        const juce::Image logo = loadResourceImage(fileName);
        return logo.isValid() && widget<QMImageWidget>("logo").getImage() == logo;
    }
};

TEST_F(EditorAppearance, offersEightItems) {
    ASSERT_EQ(editor->preferenceGroups().size(), 1U);
    const QM::PreferenceGroup& group = editor->preferenceGroups().front();
    EXPECT_EQ(group.name(), "UI Preferences");
    std::string keys;
    for (const QM::PreferenceItem& item : group.items())
        keys += item.key() + " ";
    EXPECT_EQ(keys, "text_color background base_color top_brightness bot_brightness show_bevels "
                    "show_rings ring_width ");
}

TEST_F(EditorAppearance, isDarkMetalWithBevelsAndRingsAtFirst) {
    EXPECT_EQ(editor->getBackgroundMode(), 1);
    EXPECT_TRUE(widget("bkgd").isVisible());
    EXPECT_TRUE(widget<QMKnobStripWidget>("afre").getShowRings());
    EXPECT_EQ(widget<QMKnobStripWidget>("afre").getRingWidth(), 4.0);
    EXPECT_TRUE(hasLogo("BroltLogoForDark.png"));
}

TEST_F(EditorAppearance, changesReadoutsAndLabelsWithTheTextColour) {
    juce::RectangleList<int> texts = placesOf<QMLabelWidget>();
    texts.add(placesOf<QMParameterReadoutWidget>());
    for (const QMWidget* const widget : widgets()) {
        if (const auto* const knob = dynamic_cast<const QMKnobStripWidget*>(widget))
            texts.add(knob->getLabelArea() + knob->getPosition());
    }
    expectChangeIn(texts, [this] { chooseColour("text_color", 0xFFFF4040); });
    EXPECT_EQ(readoutOf("gain").getTextColour(), juce::Colour(0xFFFF4040));
    EXPECT_EQ(readoutOf("mgan").getTextColour(), juce::Colour(0xFFFF4040));
}

TEST_F(EditorAppearance, changesKnobsAloneWithTheRings) {
    expectChangeIn(knobs(), [this] { choose("show_rings", false); });
    EXPECT_FALSE(widget<QMKnobStripWidget>("gain").getShowRings());
    expectNoChange([this] { choose("ring_width", 8.0F); });
    expectChangeIn(knobs(), [this] { choose("show_rings", true); });
}

TEST_F(EditorAppearance, changesKnobsAloneWithTheWidthOfTheRings) {
    expectChangeIn(knobs(), [this] { choose("ring_width", 8.0F); });
    EXPECT_EQ(widget<QMKnobStripWidget>("prls").getRingWidth(), 8.0);
}

TEST_F(EditorAppearance, changesTheEdgesOfThePanelsWithTheBevels) {
    const juce::RectangleList<int> edges = edgesOfBevels();
    expectChangeIn(edges, [this] { choose("show_bevels", false); });
    for (const QMWidget* const made : widgets())
        EXPECT_EQ(made->isVisible(), dynamic_cast<const QMBevelWidget*>(made) == nullptr);
    expectChangeIn(edges, [this] { choose("show_bevels", true); });
}

TEST_F(EditorAppearance, changesWhatIsBehindTheWidgetsWithTheBackground) {
    const juce::RectangleList<int> behind = windows();
    juce::Image before = picture();
    for (const std::int32_t mode : {0, 2, 3, 4, 1}) {
        choose("background", mode);
        EXPECT_EQ(editor->getBackgroundMode(), mode);
        EXPECT_EQ(preferences.getIntValue("QMBLT_bknd"), mode);
        const juce::Image now = picture();
        const PictureDifference seen = differenceOf(before, now, behind);
        EXPECT_EQ(seen.inside, 0) << "windows are not changed by mode " << mode;
        EXPECT_GT(seen.outside, 20000) << mode;
        before = now;
    }
}

TEST_F(EditorAppearance, keepsItsColoursForTheBackgroundsMadeOfThem) {
    expectNoChange([this] {
        chooseColour("base_color", 0xFF204060);
        choose("top_brightness", 0.5F);
        choose("bot_brightness", -0.5F);
    });
    choose("background", 2);
    const juce::Point<int> bare(230, 285); // no widget but a panel is there
    EXPECT_EQ(picture().getPixelAt(bare.x, bare.y), juce::Colour(0xFF204060));
    expectNoChange([this] { choose("top_brightness", 0.1F); });
    choose("background", 3);
    const juce::Image gradient = picture();
    EXPECT_GT(gradient.getPixelAt(230, 5).getBrightness(),
              gradient.getPixelAt(230, 520).getBrightness());
    const juce::Image before = picture();
    choose("bot_brightness", 0.9F);
    EXPECT_GT(differenceOf(before, picture(), {}).outside, 20000);
}

TEST_F(EditorAppearance, choosesTheLogoByTheBrightnessOfItsBase) {
    choose("background", 0);
    EXPECT_TRUE(hasLogo("BroltLogoForLight.png")) << "grey at 0.51";
    choose("background", 1);
    EXPECT_TRUE(hasLogo("BroltLogoForDark.png")) << "grey at 0.3";
    choose("background", 2);
    EXPECT_TRUE(hasLogo("BroltLogoForDark.png")) << "grey at 0.34";
    chooseColour("base_color", 0xFF808080);
    EXPECT_TRUE(hasLogo("BroltLogoForLight.png")) << "128 of 255";
    chooseColour("base_color", 0xFF7F7F7F);
    EXPECT_TRUE(hasLogo("BroltLogoForDark.png")) << "127 of 255";
}

TEST_F(EditorAppearance, knowsNoOtherKnobs) {
    expectNoChange([this] {
        preferences.setValue("QMBLT_knob_type", 6);
        editor->preferenceChanged("knob_type");
    });
    EXPECT_EQ(widget<QMKnobStripWidget>("afre").getKnobType(), 8);
}

TEST_F(EditorAppearance, isThatOfTheLastEditorWhenTheNextOpens) {
    chooseColour("text_color", 0xFF4080FF);
    choose("background", 4);
    choose("show_bevels", false);
    choose("ring_width", 2.0F);
    const juce::Image before = picture();
    openAt(100);
    EXPECT_EQ(editor->getBackgroundMode(), 4);
    const PictureDifference seen = differenceOf(before, picture(), {});
    EXPECT_EQ(seen.outside, 0);
}

TEST_F(EditorAppearance, goesBackToTheDefaults) {
    const juce::Image before = picture();
    chooseColour("text_color", 0xFF4080FF);
    choose("background", 0);
    choose("show_bevels", false);
    choose("show_rings", false);
    editor->resetToDefaults();
    const PictureDifference seen = differenceOf(before, picture(), {});
    EXPECT_EQ(seen.outside, 0);
    EXPECT_TRUE(hasLogo("BroltLogoForDark.png"));
}

} // namespace
