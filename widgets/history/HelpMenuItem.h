// SPDX-License-Identifier: GPL-3.0-or-later
// An item of a menu that explains itself, as widgets do, when the mouse rests on it. The toolkit's
// own items have no tooltip. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class HelpMenuItem final : public juce::PopupMenu::CustomComponent,
                           public juce::SettableTooltipClient {
public:
    /// itemHeight: as in the menu's options.
    HelpMenuItem(const juce::String& help, int itemHeight);

    void getIdealSize(int& idealWidth, int& idealHeight) override;
    void paint(juce::Graphics& g) override;

private:
    int standardHeight;
};
