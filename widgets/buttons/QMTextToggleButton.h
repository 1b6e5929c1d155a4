// SPDX-License-Identifier: GPL-3.0-or-later
// A toggle that is all text: the state's, or its name; its face shines when it is on.
// [message thread]
#pragma once

#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

struct QMWidgetStyleRecord;

class QMTextToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    /// style: a ToggleStyleRecord; orange without one.
    explicit QMTextToggleButton(const QMWidgetStyleRecord* style = nullptr);

    void paint(juce::Graphics& g) override;

private:
    juce::Colour litColour;
};
