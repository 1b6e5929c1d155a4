// SPDX-License-Identifier: GPL-3.0-or-later
// What faders of either direction have in common: a cap that travels along a track. [message
// thread]
#pragma once

#include "widgets/controls/FaderDrawing.h"
#include "widgets/controls/QMParameterControlWidget.h"

class FaderControl : public QMParameterControlWidget {
public:
    /// Pixels of travel.
    [[nodiscard]] int getTrackLength() const { return drawing.trackLength(); }

    [[nodiscard]] juce::Rectangle<int> getCapArea() const { return drawing.capArea(getValue()); }

    void setAccentColour(juce::Colour colour);
    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void resized() override;

protected:
    explicit FaderControl(FaderDrawing::Direction direction)
        : drawing(direction) {}

    void setCapImage(const juce::Image& image) { drawing.setCapImage(image); }

    /// Puts the track into the fader's area again.
    void arrange();

    /// Of the fader, what track and cap may fill.
    [[nodiscard]] virtual juce::Rectangle<int> travelArea() const { return getLocalBounds(); }

    /// Of the value, for so many pixels in the fader's direction.
    [[nodiscard]] double travelOfPixels(int pixels, bool fine) const;
    void positionChanged(float before) override;

private:
    FaderDrawing drawing;
    juce::Colour accentColour{0, 255, 0};
};
