// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericPitchDisplay.h"

#include "widgets/drawing/WidgetStyle.h"

#include <cmath>

namespace {

// Frequencies are told as they are set, which is at this rate whatever the host's is.
constexpr double nominalRate = 44100.0;

// Design units.
constexpr float fontHeight = 12.0f;
constexpr float sideRoom = 6.0f;

juce::String dash() {
    return juce::String::charToString(0x2013);
}

} // namespace

GenericPitchDisplay::GenericPitchDisplay()
    : QMWidget(0) {
    texts.fill(dash());
}

void GenericPitchDisplay::bindMeterRecord(std::uint32_t slot, FourCharCode, std::uint32_t,
                                          const NoxMeterRecord* newRecord) {
    if (slot == 0)
        record = newRecord;
}

juce::String GenericPitchDisplay::textOf(std::size_t oscillator) const {
    if (record == nullptr)
        return dash();
    const double cosine = static_cast<double>(record->values[2 * oscillator]);
    const float level = record->values[2 * oscillator + 1];
    // Not so for a NaN either.
    if (!(level > 0.0f) || !(std::abs(cosine) <= 1.0))
        return dash();
    const double hertz = std::acos(cosine) / juce::MathConstants<double>::twoPi * nominalRate;
    return juce::String(hertz, 1) + " Hz";
}

void GenericPitchDisplay::tick() {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const juce::String text = textOf(i);
        if (text == texts[i])
            continue;
        texts[i] = text;
        repaint();
    }
}

juce::String GenericPitchDisplay::getDisplayText() const {
    return texts[0] + ", " + texts[1];
}

void GenericPitchDisplay::paint(juce::Graphics& g) {
    juce::Rectangle<float> rows = getLocalBounds().toFloat();
    g.setColour(juce::Colour(14, 15, 16));
    g.fillRoundedRectangle(rows, 3.0f * getMagnification());
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, fontHeight * getMagnification()));
    rows.reduce(sideRoom * getMagnification(), 0.0f);
    const float height = rows.getHeight() / static_cast<float>(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const juce::Rectangle<float> row = rows.removeFromTop(height);
        g.setColour(juce::Colours::white.withAlpha(0.6f));
        g.drawText(juce::String(i + 1), row, juce::Justification::centredLeft, false);
        g.setColour(juce::Colour(0, 255, 0));
        g.drawText(texts[i], row, juce::Justification::centredRight, false);
    }
}
