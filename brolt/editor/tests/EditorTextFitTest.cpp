// SPDX-License-Identifier: GPL-3.0-or-later
// No text of the product's editor is cut off, squeezed or broken at any size it is offered in.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/DrawnText.h"
#include "brolt/editor/tests/support/EditorDesign.h"
#include "widgets/buttons/QMToggleButton.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/statics/QMLabelWidget.h"
#include "widgets/update/QMUpdateCheckWidget.h"

#include <algorithm>
#include <map>

namespace {

/// A parameter's widest texts are looked for among this many values, its ends and those below.
constexpr int samples = 2000;
constexpr float halfPixel = 0.5F;
constexpr double awkward[] = {439.99, 199.99, 399.99, -59.99, -23.99, 99.99, 999.99, 499.99};

class EditorTextFit : public BroltEditorTest {
protected:
    static void expectWhole(QMWidget& drawn, const juce::String& text, juce::Rectangle<int> bounds,
                            std::int32_t percent) {
        EXPECT_EQ(flawsOf(glyphsDrawnBy(drawn), text, bounds), "")
            << fourCharText(drawn.getWidgetID()) << " \"" << text << "\" at " << percent
            << " percent";
    }

    static void expectWhole(QMWidget& drawn, const juce::String& text, std::int32_t percent) {
        expectWhole(drawn, text, drawn.getLocalBounds(), percent);
    }

    template <typename Widget>
    void expectNamesWhole(std::int32_t channels) {
        open(channels);
        for (const std::int32_t percent : steps()) {
            editor->setScalePercent(percent);
            for (QMWidget* const drawn : widgets()) {
                if (dynamic_cast<Widget*>(drawn) != nullptr)
                    expectWhole(*drawn, drawn->getName(), percent);
            }
        }
    }

    [[nodiscard]] std::vector<QMWidget*> scales() const {
        std::vector<QMWidget*> found = widgets();
        std::erase_if(found, [](const QMWidget* widget) {
            return dynamic_cast<const QMMeterCalibrationWidget*>(widget) == nullptr;
        });
        return found;
    }

    /// Pixels, of the breadth of a scale's labels.
    static float coveredBy(const QMWidget& meter, QMWidget& scale) {
        float covered = 0.0F;
        for (const DrawnGlyph& glyph : glyphsDrawnBy(scale)) {
            const auto ink = glyph.ink + scale.getPosition().toFloat();
            covered =
                std::max(covered, ink.getIntersection(meter.getBounds().toFloat()).getWidth());
        }
        return covered;
    }

    /// Of what a readout may have to show, what is to be looked at: the ends, the default, and the
    /// values with the widest texts.
    [[nodiscard]] std::vector<double> valuesToShow(QMParameterReadoutWidget& readout) {
        const INoxPlugIn& plugIn = instance->get();
        const std::int32_t index = instance->index(readout.getParameterID(0));
        const double low = plugIn.minimum(index);
        const double high = plugIn.maximum(index);
        std::vector<double> candidates{low, high, plugIn.defaultValue(index)};
        for (int i = 0; i <= samples; ++i)
            candidates.push_back(low + (high - low) * i / samples);
        for (const double value : awkward) {
            if (value > low && value < high)
                candidates.push_back(value);
        }
        std::map<float, double> byWidth;
        const juce::Font font = WidgetStyle::get().font(TypefaceStyle::plain, 14.0F);
        for (const double value : candidates) {
            readout.setParameterValue(0, value, false);
            byWidth[font.getStringWidthFloat(readout.getDisplayText())] = value;
        }
        candidates.resize(3);
        auto widest = byWidth.rbegin();
        for (int i = 0; i < 3 && widest != byWidth.rend(); ++i, ++widest)
            candidates.push_back(widest->second);
        return candidates;
    }
};

TEST_F(EditorTextFit, ofLabels) {
    expectNamesWhole<QMLabelWidget>(mono);
}

TEST_F(EditorTextFit, ofKnobs) {
    expectNamesWhole<QMKnobStripWidget>(mono);
}

TEST_F(EditorTextFit, ofButtonsOnAndOff) {
    expectNamesWhole<QMToggleButton>(mono);
    instance->set(fourCharCode("osc1"), 0.0);
    instance->set(fourCharCode("osc2"), 0.0);
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        expectWhole(widget("osc1"), "Ena", percent);
        expectWhole(widget("osc2"), "Ena", percent);
    }
}

TEST_F(EditorTextFit, ofReadoutsWhateverTheyShow) {
    open();
    std::map<QMParameterReadoutWidget*, std::vector<double>> valuesOf;
    for (const EditorDesign::Widget& control : EditorDesign::widgets()) {
        if (control.hasReadout)
            valuesOf[&readoutOf(control.id)] = valuesToShow(readoutOf(control.id));
    }
    ASSERT_EQ(valuesOf.size(), 12U);
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        for (const auto& [readout, values] : valuesOf) {
            for (const double value : values) {
                readout->setParameterValue(0, value, false);
                expectWhole(*readout, readout->getDisplayText(), readout->getFrameArea(), percent);
            }
        }
    }
}

TEST_F(EditorTextFit, ofTheUpdateLine) {
    UpdateChecks::setFetch([](const QM::UpdateParameters&, const std::stop_token&) {
        return R"({"updateAvailable": true, "updateVersion": "10.20.30", "isbeta": true,)"
               R"( "updateURL": "https://quolm.example/brolt"})";
    });
    open();
    auto& line = widget<QMUpdateCheckWidget>("UPDT");
    ASSERT_TRUE(runLoopUntil([&] { return line.getNotice().isNotEmpty(); }));
    for (const std::int32_t percent : steps()) {
        editor->setScalePercent(percent);
        expectWhole(line, line.getNotice(), percent);
    }
}

TEST_F(EditorTextFit, ofScales) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        for (const std::int32_t percent : steps()) {
            editor->setScalePercent(percent);
            for (QMWidget* const scale : scales()) {
                const juce::Rectangle<float> ink = inkOf(glyphsDrawnBy(*scale));
                const auto room = scale->getLocalBounds().toFloat().expanded(halfPixel);
                EXPECT_FALSE(ink.isEmpty()) << percent;
                EXPECT_TRUE(room.contains(ink)) << ink.toString() << " in " << room.toString()
                                                << " at " << percent << " percent";
            }
        }
    }
}

TEST_F(EditorTextFit, ofScalesIsNotCoveredByMeters) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        for (const std::int32_t percent : steps()) {
            editor->setScalePercent(percent);
            for (QMWidget* const scale : scales()) {
                for (const char* const id : {"metr", "mtr2"}) {
                    const QMWidget* const meter = editor->widgetOfID(codeOf(id));
                    if (meter == nullptr)
                        continue;
                    EXPECT_LE(coveredBy(*meter, *scale), halfPixel)
                        << id << " at " << percent << " percent, " << channels << " channels";
                }
            }
        }
    }
}

TEST_F(EditorTextFit, isMeasuredInTheTypefaceThatComesWithTheEditor) {
    open();
    const std::vector<DrawnGlyph> drawn = glyphsDrawnBy(widget("outl"));
    ASSERT_EQ(drawn.size(), 6U);
    const juce::Font library = WidgetStyle::get().font(TypefaceStyle::plain, 14.0F);
    EXPECT_EQ(drawn.front().font.getTypefacePtr(), library.getTypefacePtr());
    const juce::String name = library.getTypefacePtr()->getName();
    // Windows tells the file's own name.
    EXPECT_TRUE(name == "URW Gothic" || name == "URWGothic-Book" || name == LibraryTypeface::name)
        << name;
}

} // namespace
