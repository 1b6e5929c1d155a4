// SPDX-License-Identifier: GPL-3.0-or-later
// The library's typeface.
#pragma once

#include <juce_graphics/juce_graphics.h>

enum class TypefaceStyle { plain, bold, italic };

namespace LibraryTypeface {
inline constexpr const char* name = "Century Gothic";
} // namespace LibraryTypeface

/// The system's; where it has none, the one of nearly the same measures from the resource folder;
/// where that is missing or damaged, the toolkit's sans serif. Looks anew each time it is called:
/// WidgetStyle keeps what it found. [message thread]
[[nodiscard]] juce::Typeface::Ptr libraryTypeface(TypefaceStyle style);
