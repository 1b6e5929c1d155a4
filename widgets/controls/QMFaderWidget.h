// SPDX-License-Identifier: GPL-3.0-or-later
// An upright fader. Its readout, when it has one that overlaps its upper part, has that part to
// itself. [message thread]
#pragma once

#include "widgets/controls/FaderDrawing.h"
#include "widgets/controls/QMParameterControlWidget.h"

class QMFaderWidget : public QMParameterControlWidget, private juce::ComponentListener {
public:
    QMFaderWidget();
    ~QMFaderWidget() override;

    /// Pixels of travel.
    [[nodiscard]] int getTrackLength() const { return drawing.trackLength(); }

    [[nodiscard]] juce::Rectangle<int> getCapArea() const { return drawing.capArea(getValue()); }

    void setAccentColour(juce::Colour colour);
    void setReadout(QMWidget* newReadout) override;
    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void resized() override;
    void moved() override;

protected:
    [[nodiscard]] double travelOf(juce::Point<int> movement, bool fine) const override;
    void positionChanged(float before) override;

private:
    void componentMovedOrResized(juce::Component&, bool, bool) override;
    void componentVisibilityChanged(juce::Component&) override;
    void arrange();
    [[nodiscard]] int heightOfReadout() const;

    FaderDrawing drawing{FaderDrawing::Direction::upwards};
    juce::Colour accentColour{0, 255, 0};
};
