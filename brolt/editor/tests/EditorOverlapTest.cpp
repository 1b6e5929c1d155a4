// SPDX-License-Identifier: GPL-3.0-or-later
// No two widgets of the product's editor lie on each other, but for those that are meant to.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/EditorDesign.h"
#include "widgets/statics/QMBevelWidget.h"

#include <algorithm>
#include <set>

namespace {

using Pair = std::pair<std::string, std::string>;

class EditorOverlap : public BroltEditorTest {
protected:
    /// The first lies on the second, or the other way round.
    static const std::set<Pair>& meant() {
        static const std::set<Pair> pairs{
            // Captions of the faders stand between the fader's upper edge and its readout.
            {"mg1L", "mgan"},
            {"mg2L", "dmgn"},
            // The faders' readouts are a part of the faders.
            {"mgan", "Mgan"},
            {"dmgn", "Dmgn"},
            // Four units: the lower end of the knob's caption, the free edge around the lamp.
            {"sfre", "osc1"},
            {"dsfr", "osc2"},
            // Four units where one upright caption's free end meets the other's.
            {"envl", "pitl"},
            // Three units of the scale's free edge lie below a meter.
            {"mtcb", "metr"},
            {"mtcb", "mtr2"},
        };
        return pairs;
    }

    static bool isMeant(const QMWidget& one, const QMWidget& other) {
        const std::string first = fourCharText(one.getWidgetID());
        const std::string second = fourCharText(other.getWidgetID());
        return meant().contains({first, second}) || meant().contains({second, first});
    }

    static bool isBevel(const QMWidget* widget) {
        return dynamic_cast<const QMBevelWidget*>(widget) != nullptr;
    }

    static juce::Rectangle<int> drawnPart(const QMWidget& widget) {
        const auto* const readout = dynamic_cast<const QMParameterReadoutWidget*>(&widget);
        return readout == nullptr ? widget.getBounds()
                                  : readout->getFrameArea() + readout->getPosition();
    }
};

TEST_F(EditorOverlap, isMeantWhereverThereIsAny) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        for (const std::int32_t percent : steps()) {
            editor->setScalePercent(percent);
            std::vector<QMWidget*> all = widgets();
            std::erase_if(all, isBevel);
            for (std::size_t i = 0; i < all.size(); ++i) {
                for (std::size_t k = 0; k < i; ++k) {
                    EXPECT_TRUE(!drawnPart(*all[i]).intersects(drawnPart(*all[k])) ||
                                isMeant(*all[i], *all[k]))
                        << fourCharText(all[i]->getWidgetID()) << " and "
                        << fourCharText(all[k]->getWidgetID()) << " at " << percent << " percent, "
                        << channels << " channels";
                }
            }
        }
    }
}

TEST_F(EditorOverlap, ofBevelsIsNoneAmongThemselves) {
    open();
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        std::vector<QMWidget*> bevels = widgets();
        std::erase_if(bevels, [](const QMWidget* widget) { return !isBevel(widget); });
        ASSERT_EQ(bevels.size(), 5U);
        int area = 0;
        for (std::size_t i = 0; i < bevels.size(); ++i) {
            area += bevels[i]->getWidth() * bevels[i]->getHeight();
            for (std::size_t k = 0; k < i; ++k)
                EXPECT_FALSE(bevels[i]->getBounds().intersects(bevels[k]->getBounds())) << percent;
        }
        EXPECT_EQ(area, editor->getWidth() * editor->getHeight()) << "they fill the editor";
    }
}

TEST_F(EditorOverlap, ofBevelsWithWidgetsIsThatOfPanelsAndWhatStandsInThem) {
    open();
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        for (const QMWidget* const widget : widgets()) {
            const auto panels = widgets();
            const auto holds = [&](const QMWidget* panel) {
                return isBevel(panel) && panel->getBounds().contains(drawnPart(*widget));
            };
            EXPECT_EQ(std::count_if(panels.begin(), panels.end(), holds), 1)
                << fourCharText(widget->getWidgetID()) << " at " << percent;
        }
    }
}

TEST_F(EditorOverlap, leavesWhatIsBelowToTheMouse) {
    open();
    const TestWindow window(*editor);
    const auto widgetAt = [this](const QMWidget& aimed, juce::Point<float> place) {
        const auto area = aimed.getBounds().toFloat();
        juce::Component* const hit =
            editor->getComponentAt(area.getRelativePoint(place.x, place.y).toInt());
        return dynamic_cast<QMWidget*>(hit);
    };
    // The captions over the faders, and the place between their upper edges and their readouts.
    EXPECT_EQ(widgetAt(widget("mg1L"), {0.5F, 0.5F}), &widget("mgan"));
    EXPECT_EQ(widgetAt(widget("mg2L"), {0.5F, 0.5F}), &widget("dmgn"));
    for (const char* const id : {"afre", "dsfr", "gain", "osc1", "osc2", "wind"})
        EXPECT_EQ(widgetAt(widget(std::string(id)), {0.5F, 0.5F}), &widget(std::string(id))) << id;
}

} // namespace
