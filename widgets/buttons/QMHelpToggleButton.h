// SPDX-License-Identifier: GPL-3.0-or-later
// Switches help (tooltips) on and off. [message thread]
#pragma once

#include "widgets/buttons/ButtonPicture.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

class QMHelpToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    QMHelpToggleButton();

    void paint(juce::Graphics& g) override;

private:
    void drawQuestionMark(juce::Graphics& g) const;

    ButtonPicture off;
    ButtonPicture on;
};
