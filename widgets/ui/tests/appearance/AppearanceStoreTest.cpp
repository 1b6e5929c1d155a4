// SPDX-License-Identifier: GPL-3.0-or-later
// Where the looks of editors are kept, and how all open editors follow them.
#include "widgets/ui/tests/appearance/support/AppearanceEditor.h"

#include <cstdlib>

namespace {

using juce::Colour;
using QM::PreferenceColour;

class AppearanceStore : public AppearanceTest {};

TEST_F(AppearanceStore, aChoiceIsKeptWithItsGroupUnderTheProductCode) {
    AppearanceEditor& ui = openEditor();
    ui.choose("text_color", PreferenceColour{0xFF102030});
    EXPECT_EQ(stored("text_color"), "#ff102030");
    EXPECT_EQ(stored("background"), "1");
    EXPECT_EQ(stored("base_color"), "#ff575757");
    EXPECT_EQ(std::strtof(stored("top_brightness").toRawUTF8(), nullptr), 0.164F);
    EXPECT_EQ(std::strtof(stored("bot_brightness").toRawUTF8(), nullptr), -0.91F);
    EXPECT_EQ(stored("show_bevels"), "1");
    EXPECT_EQ(stored("show_rings"), "1");
    EXPECT_EQ(std::strtof(stored("ring_width").toRawUTF8(), nullptr), 4.0F);
    EXPECT_EQ(stored("knob_type"), "nothing");
    EXPECT_EQ(stored("bknd"), "1");
    EXPECT_EQ(preferences.getAllProperties().size(), 9);
}

TEST_F(AppearanceStore, openingKeepsNothingButTheMode) {
    openEditor(everything());
    runPendingMessages();
    EXPECT_EQ(preferences.getAllProperties().size(), 1);
}

TEST_F(AppearanceStore, whatWasKeptIsThereWhenTheEditorOpensAgain) {
    AppearanceEditor& ui = openEditor(everything());
    ui.choose("text_color", PreferenceColour{0xFF102030});
    ui.choose("background", 3);
    ui.choose("base_color", PreferenceColour{0xFF404040});
    ui.choose("top_brightness", 0.0F);
    ui.choose("bot_brightness", -1.0F);
    ui.choose("show_bevels", false);
    ui.choose("knob_type", 8);
    ui.choose("show_rings", false);
    ui.choose("ring_width", 2.5F);
    editors.clear();

    AppearanceEditor& again = openEditor(everything());
    EXPECT_EQ(again.readout().getTextColour(), Colour(0xFF102030));
    EXPECT_EQ(again.getBackgroundMode(), 3);
    EXPECT_EQ(topOf(backgroundOf(again)), Colour(0xFF404040));
    EXPECT_EQ(bottomOf(backgroundOf(again)), juce::Colours::black);
    EXPECT_FALSE(again.bevel().isVisible());
    EXPECT_EQ(again.knob().getKnobType(), 8);
    EXPECT_FALSE(again.knob().getShowRings());
    EXPECT_EQ(again.knob().getRingWidth(), 2.5);
}

TEST_F(AppearanceStore, aTextThatIsNoValueOfAnItemReadsAsNothing) {
    for (const char* key : {"text_color", "base_color", "top_brightness", "bot_brightness",
                            "show_bevels", "knob_type", "show_rings", "ring_width"})
        store(key, "wrong");
    store("bknd", 3);
    AppearanceEditor& ui = openEditor(everything());
    EXPECT_EQ(ui.getTextColour(), Colour(0x00000000));
    EXPECT_EQ(topOf(backgroundOf(ui)), juce::Colours::black);
    EXPECT_EQ(bottomOf(backgroundOf(ui)), juce::Colours::black);
    EXPECT_FALSE(ui.bevel().isVisible());
    EXPECT_EQ(ui.knob().getKnobType(), 0);
    EXPECT_FALSE(ui.knob().getShowRings());
    EXPECT_EQ(ui.knob().getRingWidth(), 0.0);
    (void)pictureOf(ui);
}

TEST_F(AppearanceStore, numbersBeyondAllMeasureAreDrawnAsTheNearestThatCanBe) {
    store("top_brightness", 50.0);
    store("bot_brightness", "nan");
    store("ring_width", "1e300");
    store("bknd", 4);
    AppearanceEditor& ui = openEditor();
    // What is no number is not read: the default.
    EXPECT_EQ(topOf(backgroundOf(ui)), juce::Colours::white);
    EXPECT_LT(bottomOf(backgroundOf(ui)).getRed(), 25);
    EXPECT_EQ(ui.knob().getRingWidth(), 12.0);
    (void)pictureOf(ui);
}

TEST_F(AppearanceStore, everyOpenEditorFollows) {
    AppearanceEditor& one = openEditor(everything());
    AppearanceEditor& other = openEditor(everything());
    runPendingMessages();
    const int looks = other.looksChanged;
    one.choose("text_color", PreferenceColour{0xFF0000FF});
    one.choose("background", 3);
    one.choose("base_color", PreferenceColour{0xFF404040});
    one.choose("top_brightness", 0.0F);
    one.choose("bot_brightness", -1.0F);
    one.choose("show_bevels", false);
    one.choose("knob_type", 2);
    one.choose("show_rings", false);
    one.choose("ring_width", 8.0F);
    EXPECT_EQ(other.looksChanged, looks) << "not from within somebody else's change";
    runPendingMessages();
    EXPECT_GT(other.looksChanged, looks);
    EXPECT_EQ(other.readout().getTextColour(), Colour(0xFF0000FF));
    EXPECT_EQ(other.getBackgroundMode(), 3);
    EXPECT_EQ(topOf(backgroundOf(other)), Colour(0xFF404040));
    EXPECT_EQ(bottomOf(backgroundOf(other)), juce::Colours::black);
    EXPECT_FALSE(other.bevel().isVisible());
    EXPECT_EQ(other.knob().getKnobType(), 2);
    EXPECT_FALSE(other.knob().getShowRings());
    EXPECT_EQ(other.knob().getRingWidth(), 8.0);
    EXPECT_EQ(other.item("ring_width").floatValue(), 8.0F) << "its panel shows it, too";
}

TEST_F(AppearanceStore, everyOpenEditorFollowsAModeThatIsNoItemsDoing) {
    AppearanceEditor& one = openEditor();
    AppearanceEditor& other = openEditor();
    one.setBackgroundMode(4);
    runPendingMessages();
    EXPECT_EQ(other.getBackgroundMode(), 4);
    EXPECT_EQ(other.item("background").integerValue(), 4);
    // The mode's own key alone.
    store("bknd", 0);
    runPendingMessages();
    EXPECT_EQ(one.getBackgroundMode(), 0);
    EXPECT_EQ(other.getBackgroundMode(), 0);
    EXPECT_EQ(stored("background"), "0");
    // The item alone.
    store("background", 2);
    runPendingMessages();
    EXPECT_EQ(one.getBackgroundMode(), 2);
    EXPECT_EQ(other.getBackgroundMode(), 2);
    EXPECT_EQ(stored("bknd"), "2");
}

TEST_F(AppearanceStore, changesOfTwoEditorsInOneTurnOfTheLoopAreBothKept) {
    AppearanceEditor& one = openEditor();
    AppearanceEditor& other = openEditor();
    runPendingMessages();
    one.choose("show_rings", false);
    other.choose("ring_width", 8.0F);
    runPendingMessages();
    for (AppearanceEditor* const ui : {&one, &other}) {
        EXPECT_FALSE(ui->knob().getShowRings());
        EXPECT_EQ(ui->knob().getRingWidth(), 8.0);
    }
    EXPECT_EQ(stored("show_rings"), "0");
}

TEST_F(AppearanceStore, aModeSetInTheSameTurnTakesNobodysChangeBack) {
    AppearanceEditor& one = openEditor();
    AppearanceEditor& other = openEditor();
    runPendingMessages();
    one.choose("show_rings", false);
    other.setBackgroundMode(3);
    runPendingMessages();
    EXPECT_FALSE(other.knob().getShowRings());
    EXPECT_EQ(one.getBackgroundMode(), 3);
}

TEST_F(AppearanceStore, changesThereAndBackEndWhereTheLastOneSays) {
    AppearanceEditor& one = openEditor();
    AppearanceEditor& other = openEditor();
    runPendingMessages();
    one.setBackgroundMode(2);
    runPendingMessages();
    one.setBackgroundMode(3);
    other.setBackgroundMode(4);
    runPendingMessages();
    EXPECT_EQ(one.getBackgroundMode(), 4);
    EXPECT_EQ(other.getBackgroundMode(), 4);
}

TEST_F(AppearanceStore, changesOfOtherThingsAreNone) {
    AppearanceEditor& ui = openEditor();
    runPendingMessages();
    const int looks = ui.looksChanged;
    preferences.setValue("OTHER_show_rings", false);
    preferences.setValue("OTHER_bknd", 3);
    runPendingMessages();
    EXPECT_EQ(ui.looksChanged, looks);
    EXPECT_TRUE(ui.knob().getShowRings());
    EXPECT_EQ(ui.getBackgroundMode(), 1);
}

// As in a host that took out the last plug-in right after a change, and loads another.
TEST_F(AppearanceStore, editorsFollowThoughANoticeWasLostWithTheToolkitBefore) {
    store("show_rings", true);
    shutDownToolkit();
    startToolkit();
    AppearanceEditor& one = openEditor();
    AppearanceEditor& other = openEditor();
    one.choose("show_rings", false);
    runPendingMessages();
    EXPECT_FALSE(other.knob().getShowRings());
}

TEST_F(AppearanceStore, anEditorThatHasGoneHearsNothing) {
    AppearanceEditor& one = openEditor();
    openEditor();
    editors.pop_back();
    one.choose("show_rings", false);
    editors.clear();
    store("ring_width", 3.0);
    EXPECT_TRUE(runPendingMessages());
}

TEST_F(AppearanceStore, productsDoNotShareTheirLooks) {
    AppearanceEditor& ui = openEditor();
    AppearanceEditor& other = make(rings(), "OTHER");
    other.setupAfterCreation();
    ui.choose("show_rings", false);
    runPendingMessages();
    EXPECT_TRUE(other.knob().getShowRings());
}

TEST_F(AppearanceStore, withoutAProductCodeNothingIsKept) {
    AppearanceEditor& ui = make(rings(), "");
    ui.setupAfterCreation();
    EXPECT_EQ(ui.getBackgroundMode(), 1);
    ui.choose("show_rings", false);
    EXPECT_FALSE(ui.knob().getShowRings());
    ui.setBackgroundMode(2);
    ui.resetToDefaults();
    EXPECT_TRUE(ui.knob().getShowRings());
    EXPECT_EQ(preferences.getAllProperties().size(), 0);
}

TEST_F(AppearanceStore, aResetShowsAndKeepsWhatAFirstStartShows) {
    AppearanceEditor& first = openEditor(everything());
    const juce::Image atFirst = pictureOf(first);
    AppearanceEditor& ui = openEditor(everything());
    ui.choose("text_color", PreferenceColour{0xFF102030});
    ui.choose("background", 3);
    ui.choose("base_color", PreferenceColour{0xFF404040});
    ui.choose("top_brightness", 0.5F);
    ui.choose("bot_brightness", 0.5F);
    ui.choose("show_bevels", false);
    ui.choose("knob_type", 8);
    ui.choose("show_rings", false);
    ui.choose("ring_width", 2.5F);
    runPendingMessages();
    EXPECT_EQ(first.getBackgroundMode(), 3);
    ui.resetToDefaults();
    runPendingMessages();
    for (AppearanceEditor* const reset : {&ui, &first}) {
        for (const QM::PreferenceItem& item : reset->preferenceGroups().front().items())
            EXPECT_EQ(item.value(), item.defaultValue()) << item.key();
        EXPECT_EQ(reset->getBackgroundMode(), 1);
        const juce::Image shown = pictureOf(*reset);
        for (int y = 0; y < shown.getHeight(); ++y) {
            for (int x = 0; x < shown.getWidth(); ++x)
                ASSERT_EQ(shown.getPixelAt(x, y), atFirst.getPixelAt(x, y)) << x << ", " << y;
        }
    }
    EXPECT_EQ(stored("bknd"), "1");
    EXPECT_EQ(stored("background"), "1");
    EXPECT_EQ(stored("text_color"), "#ff00ff00");
}

TEST_F(AppearanceStore, theProductHearsOfEveryChangeOnce) {
    AppearanceEditor& ui = openEditor();
    EXPECT_EQ(ui.looksChanged, 1);
    ui.choose("show_rings", false);
    EXPECT_EQ(ui.looksChanged, 2);
    ui.choose("show_rings", false);
    EXPECT_EQ(ui.looksChanged, 2);
    ui.choose("background", 3);
    EXPECT_EQ(ui.looksChanged, 3);
    ui.setBackgroundMode(2);
    EXPECT_EQ(ui.looksChanged, 4);
    ui.preferenceChanged("show_rings");
    EXPECT_EQ(ui.looksChanged, 5);
    runPendingMessages();
    EXPECT_EQ(ui.looksChanged, 5) << "its own changes come back from the store";
    ui.resetToDefaults();
    EXPECT_EQ(ui.looksChanged, 6);
}

TEST_F(AppearanceStore, theGroupIsMadeOnce) {
    AppearanceEditor& ui = make(rings());
    const QM::PreferenceGroup* const group = ui.preferenceGroups().data();
    ASSERT_EQ(ui.preferenceGroups().size(), 1U);
    EXPECT_EQ(group->items().size(), 8U);
    EXPECT_EQ(group->find("knob_type"), nullptr);
    ui.setupAfterCreation();
    EXPECT_EQ(ui.preferenceGroups().data(), group);
}

} // namespace
