// SPDX-License-Identifier: GPL-3.0-or-later
// A line between parts of a panel, along the longer side of its bounds: a groove whose near edge
// lies in the shade and whose far one catches the light, as the edges of a bevel do.
// [message thread]
#pragma once

#include "widgets/base/QMWidget.h"

class QMDividerWidget final : public QMWidget {
public:
    QMDividerWidget();

    void paint(juce::Graphics& g) override;
};
