// SPDX-License-Identifier: GPL-3.0-or-later
// The whole content: complete, in order, nothing cut off or on top of one another, at all sizes.
#include "widgets/generic/GenericEditorContent.h"

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/generic/tests/support/ExamplePlugIn.h"
#include "widgets/ui/WidgetPlacement.h"

#include <set>

namespace {

class GenericEditorContentTest : public ToolkitTest {
protected:
    /// As an editor does: so wide, and as high as that takes.
    static void show(GenericEditorContent& content, float magnification, int width) {
        content.setMagnification(magnification);
        content.setSize(width, content.heightFor(width));
    }

    static void showPreferred(GenericEditorContent& content, float magnification) {
        content.setMagnification(magnification);
        const auto width = static_cast<float>(content.preferredSize().getWidth());
        show(content, magnification, juce::roundToInt(width * magnification));
    }

    static std::vector<juce::Rectangle<int>> widgetAreas(GenericEditorContent& content) {
        std::vector<juce::Rectangle<int>> areas;
        for (auto* const widget : content.parameterWidgets())
            areas.push_back(content.getLocalArea(widget, widget->getLocalBounds()));
        for (auto* const widget : content.displayWidgets())
            areas.push_back(content.getLocalArea(widget, widget->getLocalBounds()));
        for (const auto& cell : content.getCells()) {
            areas.push_back(cell->getNameArea() + cell->getPosition());
            if (!cell->getUnitArea().isEmpty())
                areas.push_back(cell->getUnitArea() + cell->getPosition());
        }
        return areas;
    }

    static void expectNothingCutOff(GenericEditorContent& content) {
        const auto areas = widgetAreas(content);
        for (std::size_t i = 0; i < areas.size(); ++i) {
            EXPECT_FALSE(areas[i].isEmpty());
            EXPECT_TRUE(content.getLocalBounds().contains(areas[i])) << areas[i].toString();
            for (std::size_t k = 0; k < i; ++k)
                ASSERT_FALSE(areas[i].intersects(areas[k]))
                    << areas[i].toString() << " and " << areas[k].toString();
        }
    }

    /// Whether all of a text is there, without dots at its end, and inside its area.
    static bool isWhole(const juce::GlyphArrangement& glyphs, const juce::String& text,
                        juce::Rectangle<int> area) {
        juce::String drawn;
        for (const juce::PositionedGlyph& glyph : glyphs)
            drawn << juce::String::charToString(glyph.getCharacter());
        const juce::Rectangle<float> box = glyphs.getBoundingBox(0, -1, false);
        return drawn.removeCharacters(" \n") == text.removeCharacters(" ") &&
               area.toFloat().expanded(1.0f).contains(box);
    }
};

} // namespace

TEST_F(GenericEditorContentTest, HasAControlForEachParameterAndADisplayForEachMeter) {
    GenericEditorContent content(ExamplePlugIn::description());
    std::set<FourCharCode> shown;
    for (auto* const widget : content.parameterWidgets())
        shown.insert(widget->getParameterID(0));
    EXPECT_EQ(shown.size(), 15u);
    for (const GenericParameter& parameter : ExamplePlugIn::parameters())
        EXPECT_EQ(shown.count(parameter.id), 1u) << parameter.name;
    // Twelve of them are knobs with readouts.
    EXPECT_EQ(content.parameterWidgets().size(), 27u);
    EXPECT_EQ(content.displayWidgets().size(), 3u);
    for (auto* const widget : content.displayWidgets())
        EXPECT_NE(dynamic_cast<IQMDisplayWidget*>(widget), nullptr);
    EXPECT_EQ(content.parameterWidgets(), content.parameterWidgets());
}

TEST_F(GenericEditorContentTest, PrefersASizeThatHoldsFifteenParameters) {
    GenericEditorContent content(ExamplePlugIn::description());
    EXPECT_EQ(content.preferredSize(), juce::Rectangle<int>(0, 0, 768, 518));
    // So that no scroll bar appears for the sake of a rounded pixel.
    for (int percent = 40; percent <= 250; ++percent) {
        const float factor = static_cast<float>(percent) / 100.0f;
        content.setMagnification(factor);
        const juce::Rectangle<int> scaled =
            WidgetPlacement::scaled(content.preferredSize(), factor);
        EXPECT_EQ(content.heightFor(scaled.getWidth()), scaled.getHeight()) << percent;
    }
}

TEST_F(GenericEditorContentTest, NothingIsCutOffAtAnyMagnification) {
    GenericEditorContent content(ExamplePlugIn::description());
    for (const float magnification : {0.4f, 0.6f, 0.72f, 1.0f, 1.2f, 1.5f, 2.0f, 2.5f}) {
        showPreferred(content, magnification);
        expectNothingCutOff(content);
    }
}

TEST_F(GenericEditorContentTest, NothingIsCutOffAtAnyWidth) {
    GenericEditorContent content(ExamplePlugIn::description());
    for (const int width : {200, 300, 361, 500, 640, 800, 1200, 1900}) {
        show(content, 1.0f, width);
        expectNothingCutOff(content);
    }
}

TEST_F(GenericEditorContentTest, NamesAndUnitsCanBeReadWhole) {
    GenericEditorContent content(ExamplePlugIn::description());
    const auto parameters = ExamplePlugIn::parameters();
    for (const float magnification : {0.6f, 1.0f, 1.2f, 2.0f}) {
        showPreferred(content, magnification);
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const GenericParameterCell& cell = *content.getCells()[i];
            EXPECT_TRUE(isWhole(cell.getNameGlyphs(), parameters[i].name, cell.getNameArea()))
                << parameters[i].name << " at " << magnification;
            EXPECT_TRUE(isWhole(cell.getUnitGlyphs(), parameters[i].unit, cell.getUnitArea()))
                << parameters[i].unit << " at " << magnification;
        }
    }
}

TEST_F(GenericEditorContentTest, ANameThatIsTooLongForOneLineIsBrokenBeforeItIsSqueezed) {
    GenericEditorDescription description = ExamplePlugIn::description();
    description.parameters[1].name = "Oscillator Attack Frequency";
    GenericEditorContent content(description);
    showPreferred(content, 1.0f);
    juce::GlyphArrangement glyphs = content.getCells()[1]->getNameGlyphs();
    // As wide as in a text of any length.
    const juce::Font font = WidgetStyle::get().font(TypefaceStyle::plain, 13.0f);
    const juce::PositionedGlyph& first = glyphs.getGlyph(0);
    EXPECT_NEAR(first.getRight() - first.getLeft(), font.getStringWidthFloat("O"), 0.01f);
    EXPECT_GT(glyphs.getGlyph(glyphs.getNumGlyphs() - 1).getBaselineY(), first.getBaselineY());
}

TEST_F(GenericEditorContentTest, LongNamesAndUnitsStayInTheirCells) {
    GenericEditorDescription description;
    description.parameters.push_back(ExamplePlugIn::parameter(
        fourCharCode("long"), "Maximum Permissible Intermodulation Compensation Threshold Offset",
        "semitones per fortnight", -1e6, 1e6, 123456.789));
    GenericEditorContent content(description);
    show(content, 1.0f, 140);
    const GenericParameterCell& cell = *content.getCells().front();
    EXPECT_TRUE(cell.getNameArea().toFloat().expanded(1.0f).contains(
        cell.getNameGlyphs().getBoundingBox(0, -1, false)));
    EXPECT_TRUE(cell.getUnitArea().toFloat().expanded(1.0f).contains(
        cell.getUnitGlyphs().getBoundingBox(0, -1, false)));
    EXPECT_TRUE(cell.getReadout()->getWidth() > 30);
    expectNothingCutOff(content);
}

TEST_F(GenericEditorContentTest, WithoutParametersItSaysSo) {
    GenericEditorContent content(GenericEditorDescription{"Empty", {}, {}});
    EXPECT_TRUE(content.parameterWidgets().empty());
    EXPECT_TRUE(content.displayWidgets().empty());
    showPreferred(content, 1.0f);
    TestWindow window(content);
    const juce::Image picture = window.picture();
    const juce::Colour ground = picture.getPixelAt(3, 60);
    int inked = 0;
    for (int x = 0; x < picture.getWidth(); ++x) {
        for (int y = 60; y < picture.getHeight(); ++y)
            inked += picture.getPixelAt(x, y) != ground;
    }
    EXPECT_GT(inked, 200);
}

TEST_F(GenericEditorContentTest, OneParameterIsEnough) {
    GenericEditorContent content(ExamplePlugIn::descriptionWith(1));
    showPreferred(content, 1.0f);
    expectNothingCutOff(content);
    EXPECT_EQ(content.getHeight(), 40 + 12 + 146 + 12);
}

TEST_F(GenericEditorContentTest, TwoHundredParametersAreScrolled) {
    GenericEditorContent content(ExamplePlugIn::descriptionWith(200));
    EXPECT_EQ(content.getCells().size(), 200u);
    const juce::Rectangle<int> preferred = content.preferredSize();
    EXPECT_EQ(preferred.getHeight(), 720);
    showPreferred(content, 1.0f);
    EXPECT_EQ(content.getWidth(), 912);
    // 29 rows of seven
    EXPECT_EQ(content.getHeight(), 52 + 29 * 154 - 8 + 12);
    expectNothingCutOff(content);
}

TEST_F(GenericEditorContentTest, TheKeyboardGoesFromControlToControlRowByRow) {
    GenericEditorContent content(ExamplePlugIn::description());
    showPreferred(content, 1.0f);
    TestWindow window(content);
    content.getCells().front()->getControl().grabKeyboardFocus();
    for (std::size_t i = 0; i < content.getCells().size(); ++i) {
        EXPECT_TRUE(content.getCells()[i]->getControl().hasKeyboardFocus(true)) << i;
        window.key(juce::KeyPress(juce::KeyPress::tabKey));
    }
    EXPECT_TRUE(content.getCells().front()->getControl().hasKeyboardFocus(true));
    window.key(juce::KeyPress(juce::KeyPress::tabKey, juce::ModifierKeys::shiftModifier, 0));
    EXPECT_TRUE(content.getCells().back()->getControl().hasKeyboardFocus(true));
}

TEST_F(GenericEditorContentTest, TheKeyboardScrollsToWhereItGoes) {
    GenericEditorContent content(ExamplePlugIn::descriptionWith(60));
    showPreferred(content, 1.0f);
    juce::Viewport viewport;
    viewport.setViewedComponent(&content, false);
    viewport.setSize(content.getWidth() + 20, 300);
    TestWindow window(viewport);
    content.getCells().back()->getControl().takeFocus();
    const QMWidget& last = content.getCells().back()->getControl();
    EXPECT_TRUE(
        viewport.getViewArea().contains(content.getLocalArea(&last, last.getLocalBounds())));
    viewport.setViewedComponent(nullptr, false);
}

TEST_F(GenericEditorContentTest, GroupsComeTogetherInTheOrderOfTheirFirstParameters) {
    GenericEditorDescription description = ExamplePlugIn::descriptionWith(6);
    for (std::size_t i = 0; i < 6; ++i)
        description.parameters[i].group = i % 2 == 0 ? "Filter" : "Amplifier";
    GenericEditorContent content(description);
    show(content, 1.0f, 500);
    EXPECT_EQ(content.getLayout().headings.size(), 2u);
    juce::StringArray names;
    for (const auto& cell : content.getCells())
        names.add(cell->getControl().getName().getLastCharacters(1));
    EXPECT_EQ(names.joinIntoString(""), "135246");
    expectNothingCutOff(content);
}

TEST_F(GenericEditorContentTest, MetersFollowTheirRecords) {
    GenericEditorContent content(ExamplePlugIn::description());
    for (auto* const widget : content.displayWidgets())
        dynamic_cast<IQMDisplayWidget&>(*widget).tick();
    // 10 log10(0.5) and 10 log10(0.3)
    EXPECT_EQ(content.displayWidgets()[0]->getDisplayText(), "-3.0 dB");
    EXPECT_EQ(content.displayWidgets()[1]->getDisplayText(), "-5.2 dB");
    EXPECT_EQ(
        content.displayWidgets()[2]->getDisplayText().upToFirstOccurrenceOf(",", false, false),
        "100.0 Hz");
}

TEST_F(GenericEditorContentTest, ManyMetersFindTheirPlace) {
    for (const int count : {1, 3, 8, 16}) {
        GenericEditorDescription description = ExamplePlugIn::descriptionWith(9);
        for (int i = 0; i < count; ++i)
            description.meters.push_back({"Out" + juce::String(i + 1), 0, 1, nullptr});
        // Nobody knows what this one is.
        description.meters.push_back({"Riddle", 0, 99, nullptr});
        GenericEditorContent content(description);
        showPreferred(content, 1.0f);
        EXPECT_EQ(content.displayWidgets().size(), static_cast<std::size_t>(count));
        expectNothingCutOff(content);
    }
}

TEST_F(GenericEditorContentTest, MagnificationStaysWithinItsLimits) {
    GenericEditorContent content(ExamplePlugIn::description());
    content.setMagnification(0.1f);
    EXPECT_FLOAT_EQ(content.getMagnification(), 0.4f);
    content.setMagnification(9.0f);
    EXPECT_FLOAT_EQ(content.getMagnification(), 2.5f);
    EXPECT_FLOAT_EQ(content.getCells()[1]->getControl().getMagnification(), 2.5f);
    EXPECT_FLOAT_EQ(content.getCells()[1]->getReadout()->getMagnification(), 2.5f);
}

TEST_F(GenericEditorContentTest, ADragOnAKnobIsAGestureOnItsParameter) {
    GenericEditorContent content(ExamplePlugIn::description());
    showPreferred(content, 1.0f);
    TestWindow window(content);
    QMWidget& knob = content.getCells()[1]->getControl();
    int began = 0;
    int ended = 0;
    knob.setGestureListener([&](std::uint32_t, QMWidget::GesturePhase phase, QMWidget&) {
        ++(phase == QMWidget::GesturePhase::begin ? began : ended);
    });
    const juce::String before = content.getCells()[1]->getReadout()->getDisplayText();
    window.press(knob);
    window.dragBy(0.0f, -30.0f);
    window.release();
    EXPECT_EQ(began, 1);
    EXPECT_EQ(ended, 1);
    EXPECT_GT(knob.getSlotValue(0), 100.0);
    EXPECT_NE(content.getCells()[1]->getReadout()->getDisplayText(), before);
}
