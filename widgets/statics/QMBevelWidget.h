// SPDX-License-Identifier: GPL-3.0-or-later
// A panel that stands out of the editor's surface, or is sunk into it: nothing but its edges, three
// pixels wide at every magnification. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"

class QMBevelWidget final : public QMWidget {
public:
    QMBevelWidget();

    [[nodiscard]] bool isInverted() const { return inverted; }

    /// Sunken instead of raised.
    void setInverted(bool flag);

    void paint(juce::Graphics& g) override;

private:
    bool inverted = false;
};
