// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericParameterCell.h"

#include "widgets/base/QMColorSource.h"
#include "widgets/base/QMWidget.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/generic/GenericControls.h"
#include "widgets/generic/GenericDrawing.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

// Design units.
constexpr int sideRoom = 8;
constexpr int nameTop = 6;
constexpr int nameHeight = 32;
constexpr int knobSize = 66;
constexpr int readoutWidth = 62;
constexpr int readoutHeight = 20;
constexpr int readoutRoom = 10; ///< below it
constexpr int unitGap = 4;
constexpr int buttonHeight = 26;
constexpr int widestButton = 132;
constexpr float nameFont = 13.0f;
constexpr float unitFont = 12.0f;

juce::Font fontOf(float designHeight, float magnification) {
    return WidgetStyle::get().font(TypefaceStyle::plain, designHeight * magnification);
}

} // namespace

GenericParameterCell::GenericParameterCell(const GenericParameter& parameter)
    : name(parameter.name)
    , unit(parameter.unit)
    , control(makeGenericControl(parameter))
    , readout(makeGenericReadout(parameter, *control)) {
    addAndMakeVisible(*control);
    if (readout != nullptr)
        addAndMakeVisible(*readout);
}

GenericParameterCell::~GenericParameterCell() = default;

juce::Rectangle<int> GenericParameterCell::toPixels(juce::Rectangle<int> design) const {
    return WidgetPlacement::scaled(design, factor) - getPosition();
}

void GenericParameterCell::place(juce::Rectangle<int> design, float magnification) {
    factor = magnification;
    setBounds(WidgetPlacement::scaled(design, factor));
    control->setMagnification(factor);
    nameArea = toPixels(design.withTrimmedTop(nameTop).withHeight(nameHeight).reduced(sideRoom, 0));
    readout != nullptr ? placeKnob(design) : placeButton(design);
    arrangeTexts();
    repaint();
}

void GenericParameterCell::placeKnob(juce::Rectangle<int> design) {
    const int unitWidth =
        unit.isEmpty()
            ? 0
            : static_cast<int>(std::ceil(fontOf(unitFont, 1.0f).getStringWidthFloat(unit)));
    const int inner = design.getWidth() - 2 * sideRoom;
    const int gap = unitWidth > 0 ? unitGap : 0;
    // A unit that is a sentence takes half of the cell.
    const int unitRoom = std::min(unitWidth, (inner - gap) / 2);
    const int readoutRoomAcross = std::min(readoutWidth, inner - gap - unitRoom);
    juce::Rectangle<int> row(readoutRoomAcross + gap + unitRoom, readoutHeight);
    row.setCentre(design.getCentre());
    row.setY(design.getBottom() - readoutRoom - readoutHeight);
    // Among readouts the numbers line up, with units or without.
    row.setX(design.getX() + (design.getWidth() - row.getWidth()) / 2);

    readout->setMagnification(factor);
    readout->setDesignArea(row.withWidth(readoutRoomAcross));
    readout->setBounds(toPixels(row.withWidth(readoutRoomAcross)));
    unitArea = unitRoom > 0 ? toPixels(row.withTrimmedLeft(readoutRoomAcross + gap))
                            : juce::Rectangle<int>();

    const juce::Rectangle<int> room = juce::Rectangle<int>::leftTopRightBottom(
        design.getX() + sideRoom, design.getY() + nameTop + nameHeight,
        design.getRight() - sideRoom, row.getY());
    const juce::Rectangle<int> knob =
        room.withSizeKeepingCentre(std::min(knobSize, room.getWidth()), knobSize);
    control->setDesignArea(knob);
    control->setBounds(toPixels(knob));
}

void GenericParameterCell::placeButton(juce::Rectangle<int> design) {
    juce::Rectangle<int> room = design.reduced(sideRoom, 0).withTrimmedTop(nameTop + nameHeight);
    room.removeFromBottom(readoutRoom);
    const juce::Rectangle<int> button =
        room.withSizeKeepingCentre(std::min(widestButton, room.getWidth()), buttonHeight);
    control->setDesignArea(button);
    control->setBounds(toPixels(button));
    unitArea = {};
}

void GenericParameterCell::arrangeTexts() {
    nameGlyphs = GenericDrawing::fittedText(name, fontOf(nameFont, factor), nameArea.toFloat(), 2);
    unitGlyphs = GenericDrawing::fittedText(unitArea.isEmpty() ? juce::String() : unit,
                                            fontOf(unitFont, factor), unitArea.toFloat(), 1);
}

void GenericParameterCell::paint(juce::Graphics& g) {
    GenericDrawing::drawPlate(g, getLocalBounds().toFloat(), factor);
    g.setColour(GenericDrawing::coloursOf(*this).getContrastColourStrong());
    nameGlyphs.draw(g);
    g.setColour(GenericDrawing::coloursOf(*this).getContrastColour());
    unitGlyphs.draw(g);
}
