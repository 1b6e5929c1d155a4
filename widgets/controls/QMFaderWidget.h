// SPDX-License-Identifier: GPL-3.0-or-later
// An upright fader. Its readout, when it has one that overlaps its upper part, has that part to
// itself. [message thread]
#pragma once

#include "widgets/controls/FaderControl.h"

class QMFaderWidget : public FaderControl, private juce::ComponentListener {
public:
    QMFaderWidget();
    ~QMFaderWidget() override;

    void setReadout(QMWidget* newReadout) override;
    void moved() override;

protected:
    [[nodiscard]] juce::Rectangle<int> travelArea() const override;
    [[nodiscard]] double travelOf(juce::Point<int> movement, bool fine) const override;

private:
    void componentMovedOrResized(juce::Component&, bool, bool) override;
    void componentVisibilityChanged(juce::Component&) override;
    [[nodiscard]] int heightOfReadout() const;
};
