// SPDX-License-Identifier: GPL-3.0-or-later
// A level fader, its maximum at the right. [message thread]
#pragma once

#include "widgets/controls/FaderDrawing.h"
#include "widgets/controls/QMParameterControlWidget.h"

class QMHorizontalFaderWidget : public QMParameterControlWidget {
public:
    QMHorizontalFaderWidget();

    /// Pixels of travel.
    [[nodiscard]] int getTrackLength() const { return drawing.trackLength(); }

    [[nodiscard]] juce::Rectangle<int> getCapArea() const { return drawing.capArea(getValue()); }

    void setAccentColour(juce::Colour colour);
    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void resized() override;

protected:
    [[nodiscard]] double travelOf(juce::Point<int> movement, bool fine) const override;
    void positionChanged(float before) override;

private:
    FaderDrawing drawing{FaderDrawing::Direction::rightwards};
    juce::Colour accentColour{0, 255, 0};
};
