// SPDX-License-Identifier: GPL-3.0-or-later
// Which widgets the product's editor has and where they are.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/EditorDesign.h"
#include "plugin-model/FourCharCode.h"

#include <typeinfo>

namespace {

using Area = juce::Rectangle<int>;
using EditorDesign::isNearest;

class EditorLayout : public BroltEditorTest {
protected:
    struct Expected {
        FourCharCode id;
        Area place;
    };

    /// Controls are followed by their readouts.
    static std::vector<Expected> expected(std::int32_t channels) {
        std::vector<Expected> all;
        for (const EditorDesign::Area& area : EditorDesign::areas(channels)) {
            const EditorDesign::Widget* const widget = EditorDesign::widgetOf(area.id);
            if (widget == nullptr)
                continue;
            all.push_back({codeOf(area.id), area.place});
            if (widget->hasReadout)
                all.push_back(
                    {QMBroltUI::readoutID(codeOf(area.id)), EditorDesign::readoutPlace(area)});
        }
        return all;
    }

    [[nodiscard]] int countOf(const std::string& id) const {
        int count = 0;
        for (const QMWidget* const widget : widgets())
            count += widget->getWidgetID() == codeOf(id) ? 1 : 0;
        return count;
    }
};

TEST_F(EditorLayout, makesItsWidgetsInTheOrderOfTheirAreas) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        std::string made;
        std::string wanted;
        for (const QMWidget* const widget : widgets())
            made += fourCharText(widget->getWidgetID()) + " ";
        for (const Expected& widget : expected(channels))
            wanted += fourCharText(widget.id) + " ";
        EXPECT_EQ(made, wanted) << channels << " channels";
    }
}

TEST_F(EditorLayout, isItsDesignPixelByPixelAtAHundredPercent) {
    for (const std::int32_t channels : {mono, stereo}) {
        openAt(100, channels);
        const std::vector<Expected> all = expected(channels);
        ASSERT_EQ(widgets().size(), all.size());
        for (std::size_t i = 0; i < all.size(); ++i) {
            EXPECT_EQ(widgets()[i]->getBounds().toString(), all[i].place.toString())
                << fourCharText(all[i].id) << ", " << channels << " channels";
        }
    }
}

TEST_F(EditorLayout, putsEveryEdgeOnTheNearestPixelAtEveryStep) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        const std::vector<Expected> all = expected(channels);
        ASSERT_EQ(widgets().size(), all.size());
        for (const std::int32_t percent : steps()) {
            editor->setScalePercent(percent);
            for (std::size_t i = 0; i < all.size(); ++i) {
                const Area bounds = widgets()[i]->getBounds();
                EXPECT_TRUE(isNearest(bounds, all[i].place, percent))
                    << fourCharText(all[i].id) << " is at " << bounds.toString() << " at "
                    << percent << " percent, " << channels << " channels";
            }
        }
    }
}

TEST_F(EditorLayout, hasOneMeterBetweenTwoScalesForOneChannel) {
    open(mono);
    EXPECT_EQ(countOf("metr"), 1);
    EXPECT_EQ(countOf("mtr2"), 0);
    EXPECT_EQ(countOf("mtcb"), 2);
    EXPECT_EQ(editor->widgetOfID(fourCharCode("mtr2")), nullptr);
}

TEST_F(EditorLayout, hasOneScaleBetweenTwoMetersForTwoChannels) {
    open(stereo);
    EXPECT_EQ(countOf("metr"), 1);
    EXPECT_EQ(countOf("mtr2"), 1);
    EXPECT_EQ(countOf("mtcb"), 1);
}

TEST_F(EditorLayout, leavesThePlacesOfHelpButtonAndSizeSelectorFree) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        EXPECT_EQ(editor->widgetOfID(fourCharCode("help")), nullptr);
        EXPECT_EQ(editor->widgetOfID(fourCharCode("smlB")), nullptr);
        EXPECT_EQ(countOf("bkgd"), 5);
    }
}

TEST_F(EditorLayout, makesEachWidgetOfItsClassUnderItsLabel) {
    open(stereo);
    for (const EditorDesign::Widget& wanted : EditorDesign::widgets()) {
        const QMWidget* const made = editor->widgetOfID(codeOf(wanted.id));
        ASSERT_NE(made, nullptr) << wanted.id;
        EXPECT_EQ(std::type_index(typeid(*made)), wanted.type) << wanted.id;
        EXPECT_EQ(made->getName().toStdString(), wanted.label) << wanted.id;
    }
}

TEST_F(EditorLayout, bindsEachControlAndItsReadoutToTheParameterOfItsName) {
    open(stereo);
    for (const EditorDesign::Widget& control : EditorDesign::widgets()) {
        const FourCharCode id = codeOf(control.id);
        const bool isControl = control.hasReadout || control.id == "osc1" || control.id == "osc2";
        EXPECT_EQ(widget(id).getParameterID(0), isControl ? id : QMWidget::noParameter)
            << control.id;
        if (control.hasReadout) {
            EXPECT_EQ(readoutOf(control.id).getParameterID(0), id) << control.id;
            EXPECT_EQ(readoutOf(control.id).getOwner(), &widget(id)) << control.id;
        }
    }
}

// Size.

TEST_F(EditorLayout, isAsLargeAsItsDesignAtEveryStep) {
    open();
    EXPECT_EQ(editor->getDesignSize(), Area(0, 0, 775, 679));
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        EXPECT_TRUE(isNearest(editor->getLocalBounds(), {0, 0, 775, 679}, percent))
            << editor->getLocalBounds().toString() << " at " << percent;
        EXPECT_EQ(host.areas.back(), editor->getLocalBounds()) << percent;
    }
    EXPECT_EQ(editor->getLocalBounds(), Area(0, 0, 1938, 1698));
    editor->setScalePercent(40);
    EXPECT_EQ(editor->getLocalBounds(), Area(0, 0, 310, 272));
}

TEST_F(EditorLayout, offersTwentyTwoSteps) {
    EXPECT_EQ(open().getMagnificationSteps(),
              (std::vector<std::int32_t>{40,  50,  60,  70,  80,  90,  100, 110, 120, 130, 140,
                                         150, 160, 170, 180, 190, 200, 210, 220, 230, 240, 250}));
}

TEST_F(EditorLayout, opensAtAHundredAndTwentyPercentUntilSomebodyChangesIt) {
    open();
    EXPECT_EQ(editor->getMagnification(), 1.2F);
    EXPECT_EQ(editor->getLocalBounds(), Area(0, 0, 930, 815));
}

TEST_F(EditorLayout, opensAtTheStoredSize) {
    // A number below three is one of the sizes of older editors.
    const std::vector<std::pair<int, int>> storedAndOpened{
        {0, 72}, {1, 84}, {2, 100}, {40, 40}, {100, 100}, {120, 120}, {200, 200}, {250, 250}};
    for (const auto& [stored, opened] : storedAndOpened) {
        preferences.setValue("BROLT_SML", stored);
        EXPECT_EQ(open().getScalePercent(), opened) << stored;
        EXPECT_FLOAT_EQ(editor->getMagnification(), static_cast<float>(opened) / 100.0F);
        EXPECT_TRUE(isNearest(editor->getLocalBounds(), {0, 0, 775, 679}, opened)) << stored;
    }
}

TEST_F(EditorLayout, keepsTheSizeForTheNextEditor) {
    open().setScalePercent(180);
    EXPECT_EQ(preferences.getIntValue("BROLT_SML"), 180);
    EXPECT_EQ(open().getScalePercent(), 180);
}

} // namespace
