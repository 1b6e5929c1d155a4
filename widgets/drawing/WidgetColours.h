// SPDX-License-Identifier: GPL-3.0-or-later
// The widgets' colours.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <array>
#include <cstddef>

namespace WidgetColours {

inline constexpr std::size_t paletteSize = 9;
inline constexpr std::size_t derivedSize = 4;

/// Text and frames of an editor where nothing else is said, as descriptions of widgets write it.
inline constexpr const char* editorDefault = "333333";
/// Segments of a text in the style of a lamp display.
inline constexpr const char* ledLit = "ff959a00";
inline constexpr const char* ledUnlit = "ff404B00";

/// What is behind a name of the palette, in its order.
enum PaletteIndex : std::size_t {
    panel,       ///< blue-grey
    depth,       ///< the dark blue of displays
    neutral,     ///< dark grey
    frame,       ///< light blue-grey
    highlight,   ///< the same again, for what the mouse is over
    menu,        ///< darker blue-grey
    strongText,  ///< white
    text,        ///< light grey
    invertedText ///< dark blue, on what is bright
};

/// What is made of the palette, in its order.
enum DerivedIndex : std::size_t {
    raisedPanel, ///< the panel in the light
    sunkenPanel, ///< the panel in the shade
    selection,   ///< behind selected text; lets what is below through
    subduedText  ///< text that cannot be used now
};

/// [any thread]
[[nodiscard]] const std::array<juce::Colour, paletteSize>& palette();

/// [any thread]
[[nodiscard]] std::array<juce::Colour, derivedSize> derivedColours();

/// Six hexadecimal digits (red, green, blue; opaque) or eight (alpha before them). The toolkit's
/// own reading takes six for a colour that cannot be seen. [any thread]
[[nodiscard]] juce::Colour fromHexText(const juce::String& hex);

} // namespace WidgetColours
