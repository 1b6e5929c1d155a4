// SPDX-License-Identifier: GPL-3.0-or-later
// A level fader, its maximum at the right. [message thread]
#pragma once

#include "widgets/controls/FaderControl.h"

class QMHorizontalFaderWidget : public FaderControl {
public:
    QMHorizontalFaderWidget();

protected:
    [[nodiscard]] double travelOf(juce::Point<int> movement, bool fine) const override;
};
