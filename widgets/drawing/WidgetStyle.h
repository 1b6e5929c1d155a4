// SPDX-License-Identifier: GPL-3.0-or-later
// What all editors of the process share: colours and fonts. Made before the first editor, it goes
// with the toolkit: fonts must not be there when the library is unloaded.
#pragma once

#include "widgets/drawing/LibraryTypeface.h"
#include "widgets/drawing/WidgetColours.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <array>

class WidgetStyle final : private juce::DeletedAtShutdown {
public:
    static constexpr float fontHeight = 14.0F; ///< pixels, of every font at first

    /// Makes it where there is none. A reference is good as long as the toolkit lives.
    /// [message thread]
    static WidgetStyle& get();

    WidgetStyle(const WidgetStyle&) = delete;
    WidgetStyle& operator=(const WidgetStyle&) = delete;

    /// See WidgetColours for what is where. [message thread]
    [[nodiscard]] juce::Colour colour(WidgetColours::PaletteIndex index) const;
    /// [message thread]
    [[nodiscard]] juce::Colour colour(WidgetColours::DerivedIndex index) const;

    /// [message thread]
    [[nodiscard]] const juce::Font& font(TypefaceStyle style) const;
    /// [message thread]
    [[nodiscard]] juce::Font font(TypefaceStyle style, float height) const;

private:
    WidgetStyle();
    ~WidgetStyle() override;

    static WidgetStyle* instance;
    std::array<juce::Colour, WidgetColours::derivedSize> derived;
    std::array<juce::Font, 3> fonts; ///< by style
};
