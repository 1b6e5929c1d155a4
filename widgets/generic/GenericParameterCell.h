// SPDX-License-Identifier: GPL-3.0-or-later
// One parameter of the generic editor: its name, its control and, with a knob, its readout and the
// unit beside it, on a plate. [message thread]
#pragma once

#include "widgets/ui/IGenericEditorContent.h"

#include <memory>

class GenericParameterCell final : public juce::Component {
public:
    explicit GenericParameterCell(const GenericParameter& parameter);
    ~GenericParameterCell() override;

    [[nodiscard]] QMWidget& getControl() const { return *control; }

    /// Null for controls that show their value themselves.
    [[nodiscard]] QMWidget* getReadout() const { return readout.get(); }

    /// The area in design units; everything in the cell comes to whole pixels with its neighbours.
    void place(juce::Rectangle<int> design, float magnification);

    /// The texts as they are drawn, for their areas.
    [[nodiscard]] const juce::GlyphArrangement& getNameGlyphs() const { return nameGlyphs; }

    [[nodiscard]] const juce::GlyphArrangement& getUnitGlyphs() const { return unitGlyphs; }

    [[nodiscard]] juce::Rectangle<int> getNameArea() const { return nameArea; }

    [[nodiscard]] juce::Rectangle<int> getUnitArea() const { return unitArea; }

    void paint(juce::Graphics& g) override;

private:
    void placeKnob(juce::Rectangle<int> design);
    void placeButton(juce::Rectangle<int> design);
    void arrangeTexts();
    [[nodiscard]] juce::Rectangle<int> toPixels(juce::Rectangle<int> design) const;

    juce::String name;
    juce::String unit;
    std::unique_ptr<QMWidget> control;
    std::unique_ptr<QMWidget> readout;
    float factor = 1.0f;
    juce::Rectangle<int> nameArea;
    juce::Rectangle<int> unitArea;
    juce::GlyphArrangement nameGlyphs;
    juce::GlyphArrangement unitGlyphs;
};
