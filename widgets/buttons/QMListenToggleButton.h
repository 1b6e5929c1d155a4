// SPDX-License-Identifier: GPL-3.0-or-later
// Listens to one part of the sound alone: a loudspeaker, with sound coming out of it when it is on.
// [message thread]
#pragma once

#include "widgets/buttons/ButtonPicture.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

struct QMWidgetStyleRecord;

class QMListenToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    /// style: a ToggleStyleRecord; orange without one. Its colour is that of the sound.
    explicit QMListenToggleButton(const QMWidgetStyleRecord* style = nullptr);

    void paint(juce::Graphics& g) override;

private:
    void drawSpeaker(juce::Graphics& g) const;

    juce::Colour litColour;
    ButtonPicture off;
    ButtonPicture on;
    /// For panels that are dark.
    ButtonPicture lightOff;
    ButtonPicture lightOn;
};
