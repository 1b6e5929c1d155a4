// SPDX-License-Identifier: GPL-3.0-or-later
// How the widgets of the product's editor are set up.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/EditorDesign.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/meters/QMMeterWidget.h"
#include "widgets/statics/QMLabelWidget.h"

namespace {

const juce::Colour green(juce::uint8{0}, juce::uint8{255}, juce::uint8{0}, juce::uint8{176});
const juce::Colour orange(juce::uint8{255}, juce::uint8{160}, juce::uint8{0}, juce::uint8{224});

class EditorStyle : public BroltEditorTest {
protected:
    EditorStyle() { open(); }

    void expectKnobs(const std::vector<std::string>& ids, juce::Colour accent,
                     std::uint32_t taper) {
        for (const std::string& id : ids) {
            const auto& knob = widget<QMKnobStripWidget>(id);
            EXPECT_EQ(knob.getKnobType(), 8) << id;
            EXPECT_FALSE(knob.isBlackKnob()) << id;
            EXPECT_EQ(knob.getFrames().getFrameCount(), 271) << id;
            EXPECT_EQ(knob.getAccentColour(), accent) << id;
            EXPECT_EQ(knob.getTaperMode(), taper) << id;
            EXPECT_EQ(knob.getRingMode(), 2) << id << ": from the minimum";
            EXPECT_EQ(knob.getLabelPosition(), QMKnobStripWidget::labelBelow) << id;
        }
    }
};

TEST_F(EditorStyle, hasGreenLogarithmicKnobsForTheFirstOscillatorAndTheDetectors) {
    expectKnobs({"afre", "sfre", "attk", "rlse", "patt", "prls"}, green, 1);
}

TEST_F(EditorStyle, hasOrangeLogarithmicKnobsForTheSecondOscillator) {
    expectKnobs({"dafr", "dsfr"}, orange, 1);
}

TEST_F(EditorStyle, hasGreenLinearKnobsForTheOutput) {
    expectKnobs({"gain", "wetd"}, green, 0);
}

TEST_F(EditorStyle, hasLinearFaders) {
    EXPECT_EQ(widget<QMFaderWidget>("mgan").getTaperMode(), 0U);
    EXPECT_EQ(widget<QMFaderWidget>("dmgn").getTaperMode(), 0U);
}

TEST_F(EditorStyle, hasTwoUprightCaptions) {
    for (const EditorDesign::Widget& label : EditorDesign::widgets()) {
        if (label.type != std::type_index(typeid(QMLabelWidget)))
            continue;
        EXPECT_EQ(widget<QMLabelWidget>(label.id).isVertical(),
                  label.id == "envl" || label.id == "pitl")
            << label.id;
    }
}

TEST_F(EditorStyle, hasMetersThatHoldPeaksForTwoSeconds) {
    for (const char* const id : {"metr", "mtr2"}) {
        auto& meter = widget<QMMeterWidget>(std::string(id));
        EXPECT_EQ(meter.getSlotValue(QMMeterWidget::modeSlot), 0.0) << id;
        EXPECT_EQ(meter.getRenderer().getPreset().holdSeconds, 2.0) << id;
        EXPECT_FALSE(meter.getRenderer().getPreset().withoutHoldMarks) << id;
    }
}

TEST_F(EditorStyle, hasAHistoryOfThreeSecondsBeforeItsPicture) {
    const auto& history = widget<QMPitchHistory>("wind");
    EXPECT_EQ(history.getHistoryLength(), 3.0);
    EXPECT_TRUE(history.usesStyleImage());
    EXPECT_FALSE(history.usesWindowImage());
}

TEST_F(EditorStyle, writesInGreen) {
    EXPECT_EQ(editor->getTextColour(), juce::Colour(0, 255, 0));
    EXPECT_EQ(readoutOf("afre").getTextColour(), juce::Colour(0, 255, 0));
    EXPECT_EQ(readoutOf("mgan").getTextColour(), juce::Colour(0, 255, 0));
}

TEST_F(EditorStyle, lightsItsEnableButtonsInYellow) {
    for (const char* const id : {"osc1", "osc2"}) {
        auto& button = widget(std::string(id));
        button.setParameterValue(0, 0.0, false);
        const juce::Image dark = pictureOf(button);
        button.setParameterValue(0, 1.0, false);
        const juce::Image lit = pictureOf(button);
        // Beside the name, well inside the lamp.
        const int x = lit.getWidth() / 2;
        const int y = lit.getHeight() / 4;
        const juce::Colour lamp = lit.getPixelAt(x, y);
        EXPECT_GT(lamp.getBrightness(), dark.getPixelAt(x, y).getBrightness() + 0.3F) << id;
        EXPECT_NEAR(lamp.getHue(), juce::Colour(255, 192, 64).getHue(), 0.04F) << id;
        EXPECT_GT(lamp.getSaturation(), 0.4F) << id;
    }
}

// The faders' readouts.

TEST_F(EditorStyle, putsTheFadersReadoutsIntoTheirUpperPart) {
    for (const std::string id : {"mgan", "dmgn"}) {
        const QMParameterReadoutWidget& readout = readoutOf(id);
        const juce::Rectangle<int> fader = widget(id).getDesignArea();
        const juce::Rectangle<int> wanted(fader.getX() + 20, 372, 45, 304);
        EXPECT_EQ(readout.getDesignArea(), wanted) << id;
        EXPECT_TRUE(readout.isVisible()) << id;
        EXPECT_EQ(widget<QMFaderWidget>(id).readout(), &readout) << id;
    }
}

TEST_F(EditorStyle, keepsTheReadoutsFramesClearOfTheCaptionsAtEveryStep) {
    const std::vector<std::pair<std::string, std::string>> captions{{"mgan", "mg1L"},
                                                                    {"dmgn", "mg2L"}};
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        for (const auto& [fader, caption] : captions) {
            const QMParameterReadoutWidget& readout = readoutOf(fader);
            const juce::Rectangle<int> frame = readout.getFrameArea() + readout.getPosition();
            EXPECT_FALSE(frame.isEmpty()) << fader << " at " << percent;
            EXPECT_FALSE(frame.intersects(widget(caption).getBounds()))
                << fader << " at " << percent;
            EXPECT_TRUE(widget(fader).getBounds().contains(frame)) << fader << " at " << percent;
        }
    }
}

TEST_F(EditorStyle, letsAFaderBeDraggedThroughItsReadoutsLowerPart) {
    for (const std::int32_t percent : {40, 120, 250}) {
        editor->setScalePercent(percent);
        TestWindow window(*editor);
        for (const std::string id : {"mgan", "dmgn"}) {
            instance->set(codeOf(id), -27.0);
            auto& fader = widget<QMFaderWidget>(id);
            const juce::Point<int> cap = fader.getCapArea().getCentre() + fader.getPosition();
            ASSERT_TRUE(readoutOf(id).getBounds().contains(cap)) << id << " at " << percent;
            window.press(cap.toFloat());
            window.dragBy(0.0F, -10.0F);
            window.release();
            const double units = 66.0 * 10.0 / fader.getTrackLength();
            EXPECT_NEAR(instance->value(codeOf(id)), -27.0 + units, 0.001) << percent;
            EXPECT_FALSE(readoutOf(id).isEditing()) << id;
        }
    }
}

} // namespace
