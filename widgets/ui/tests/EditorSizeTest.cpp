// SPDX-License-Identifier: GPL-3.0-or-later
// Magnification, the user's size of an editor, its size selector and help button.
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

using Area = juce::Rectangle<int>;

constexpr const char* sizeKey = "TEST_SML";

class EditorSize : public EditorTest {
protected:
    EditorSize() {
        describe("bkgd", ProbeTypes::label, {});
        place("bkgd", {0, 0, 775, 679});
        addControl("gain", {7, 3, 4, 9});
    }

    TableEditor& createWithKey() {
        create().setSizeKey(sizeKey);
        editor->setInitialMagnification(1.2F);
        return *editor;
    }

    TableEditor& openWithKey() {
        createWithKey().setupAfterCreation();
        return *editor;
    }

    void store(int percent) { preferences.setValue(sizeKey, percent); }

    [[nodiscard]] int stored() const { return preferences.getIntValue(sizeKey, -1); }

    juce::PropertiesFile& preferences = emptyShellStore();
};

TEST_F(EditorSize, opensAtAHundredAndTwentyPercent) {
    const TableEditor& ui = openWithKey();
    EXPECT_EQ(ui.getScalePercent(), 120);
    EXPECT_EQ(ui.getMagnification(), 1.2F);
    EXPECT_EQ(ui.getDesignSize(), Area(0, 0, 775, 679));
    EXPECT_EQ(ui.getScaledSize(), Area(0, 0, 930, 815));
    EXPECT_EQ(ui.getLocalBounds(), Area(0, 0, 930, 815));
    EXPECT_EQ(host.areas, std::vector<Area>{Area(0, 0, 930, 815)});
}

TEST_F(EditorSize, opensAtTheStoredPercentage) {
    store(250);
    EXPECT_EQ(openWithKey().getMagnification(), 2.5F);
    EXPECT_EQ(stored(), 250);
}

TEST_F(EditorSize, takesASmallStoredNumberForAnItem) {
    store(1);
    EXPECT_EQ(openWithKey().getScalePercent(), 84);
    EXPECT_EQ(editor->getMagnification(), 0.84F);
}

TEST_F(EditorSize, keepsAPercentageAndAsksForTheWindow) {
    openWithKey();
    host.areas.clear();
    editor->setScalePercent(100);
    EXPECT_EQ(editor->getMagnification(), 1.0F);
    EXPECT_EQ(host.areas, std::vector<Area>{Area(0, 0, 775, 679)});
    EXPECT_EQ(editor->getLocalBounds(), Area(0, 0, 775, 679));
    EXPECT_EQ(stored(), 100);
    EXPECT_FALSE(preferences.needsToBeSaved());
}

TEST_F(EditorSize, hasNothingToDoForThePercentageItHas) {
    openWithKey();
    host.areas.clear();
    editor->setScalePercent(120);
    editor->setScalePercent(0);
    editor->setScalePercent(-5);
    EXPECT_TRUE(host.areas.empty());
    EXPECT_EQ(editor->getScalePercent(), 120);
}

TEST_F(EditorSize, placesWidgetsEdgeByEdge) {
    open().setMagnification(1.2F);
    // See the placement's own test.
    EXPECT_EQ(editor->control("gain").getBounds(), Area(8, 4, 5, 10));
    EXPECT_EQ(editor->control("gain").getMagnification(), 1.2F);
    EXPECT_EQ(editor->control("gain").getDesignArea(), Area(7, 3, 4, 9));
    editor->setMagnification(1.0F);
    EXPECT_EQ(editor->control("gain").getBounds(), Area(7, 3, 4, 9));
}

TEST_F(EditorSize, cutsAMagnificationToTheScreen) {
    host.available = {0, 0, 1550, 1000};
    open().setMagnification(2.5F);
    EXPECT_FLOAT_EQ(editor->getMagnification(), 1000.0F / 679.0F);
    EXPECT_EQ(editor->getHeight(), 1000);
    host.available = {0, 0, 1550, 5000};
    editor->setMagnification(2.5F);
    EXPECT_EQ(editor->getMagnification(), 2.0F);
}

TEST_F(EditorSize, cutsItWhenItOpensToo) {
    host.available = {0, 0, 775, 679};
    EXPECT_EQ(openWithKey().getMagnification(), 1.0F);
    EXPECT_EQ(editor->getScalePercent(), 120) << "the user's choice, for a larger screen";
    EXPECT_EQ(host.areas.back(), Area(0, 0, 775, 679));
}

TEST_F(EditorSize, hasNoLimitWhereNobodyKnowsTheScreen) {
    open().setMagnification(30.0F);
    EXPECT_EQ(editor->getMagnification(), 30.0F);
    editor->setMagnification(2000.0F);
    EXPECT_EQ(editor->getMagnification(), 1000.0F);
}

TEST_F(EditorSize, takesNoMagnificationThatIsNone) {
    open();
    editor->setMagnification(0.0F);
    editor->setMagnification(-1.0F);
    editor->setMagnification(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(editor->getMagnification(), 1.2F);
}

TEST_F(EditorSize, givesTheSelectorItsItemsAndLetsItWrapAStoredPercentage) {
    addButton("smlB");
    const std::vector<std::pair<int, int>> storedAndOpened{{100, 84}, {84, 72}, {72, 72},
                                                           {120, 72}, {2, 100}, {0, 72}};
    for (const auto& [before, opened] : storedAndOpened) {
        store(before);
        EXPECT_EQ(openWithKey().getScalePercent(), opened) << before;
        EXPECT_EQ(stored(), opened);
    }
    EXPECT_EQ(editor->widget<ProbeStates>("smlB").items,
              juce::StringArray("Small UI (82 ppi)", "Medium UI (97 ppi)", "Large UI (115 ppi)"));
}

TEST_F(EditorSize, takesTheSizeThatTheUserPicks) {
    addButton("smlB");
    openWithKey();
    TestWindow window(*editor);
    const auto& selector = editor->widget<ProbeStates>("smlB");
    ASSERT_EQ(selector.state, 0);
    window.click(selector);
    EXPECT_EQ(stored(), 84);
    EXPECT_EQ(editor->getMagnification(), 0.84F);
    window.click(selector);
    EXPECT_EQ(stored(), 100);
    EXPECT_EQ(editor->getScalePercent(), 100);
    EXPECT_EQ(host.areas.back(), Area(0, 0, 775, 679));
}

TEST_F(EditorSize, passesTheHelpButtonOn) {
    addButton("help");
    open();
    TestWindow window(*editor);
    window.click(*editor->widgetOfID(fourCharCode("help")));
    window.click(*editor->widgetOfID(fourCharCode("help")));
    EXPECT_EQ(host.helpSettings, (std::vector<bool>{true, false}));
}

TEST_F(EditorSize, keepsNothingWithoutAKey) {
    open().setScalePercent(100);
    EXPECT_EQ(preferences.getAllProperties().size(), 0);
}

TEST_F(EditorSize, remeasuresWhenAWidgetIsMoved) {
    open().setMagnification(1.0F);
    editor->placeWidget(editor->control("gain"), {770, 0, 30, 10});
    EXPECT_EQ(editor->getDesignSize(), Area(0, 0, 800, 679));
    EXPECT_EQ(editor->getScaledSize(), Area(0, 0, 800, 679));
}

} // namespace
