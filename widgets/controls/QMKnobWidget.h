// SPDX-License-Identifier: GPL-3.0-or-later
// A plain knob, drawn, that fills its area. [message thread]
#pragma once

#include "widgets/controls/DrawnKnob.h"
#include "widgets/controls/QMParameterControlWidget.h"

class QMKnobWidget : public QMParameterControlWidget {
public:
    QMKnobWidget();

    void paint(juce::Graphics& g) override;

private:
    DrawnKnob knob;
};
