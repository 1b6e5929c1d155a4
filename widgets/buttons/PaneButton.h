// SPDX-License-Identifier: GPL-3.0-or-later
// A button whose states are panes side by side, the present one lit. A click anywhere on it goes on
// to the next pane. [message thread]
#pragma once

#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

class PaneButton : public QMTrackedMultistateButtonWidget {
public:
    void paint(juce::Graphics& g) override;

    [[nodiscard]] int getIdealWidth() const override;

protected:
    enum class Texts { whole, initials };

    /// As many panes as states. initials: there is room for one letter on each.
    PaneButton(int panes, Texts texts);

    [[nodiscard]] juce::Font textFont() const override;

private:
    /// The item's text, or the pane's number.
    [[nodiscard]] juce::String paneText(int pane) const;

    Texts texts;
};
