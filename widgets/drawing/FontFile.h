// SPDX-License-Identifier: GPL-3.0-or-later
// What a font file needs before the toolkit reads it. On Linux the toolkit goes on with the
// typeface that FreeType did not make of a damaged file, and the process ends. On Windows it asks
// the system for the font by a name that the system may not know it by.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Whether this is an OpenType or TrueType font, whole, with the tables a typeface needs, each with
/// the check sum that the file says. [any thread]
[[nodiscard]] bool isWholeFont(std::span<const std::uint8_t> data);

/// Makes the toolkit find the same font, in the same size, on every system. The font must be whole,
/// and stays so.
///
/// Full names for the Macintosh are emptied where there is one for Windows: on Windows the toolkit
/// asks for the first it finds, and the system, which knows the other, would give it another font.
/// The two differ in fonts with PostScript outlines.
///
/// Ascent and descent become those for Windows: a font's height is the two together, and FreeType
/// takes another pair, which would make the text of some fonts a quarter larger. [any thread]
void makeAlikeOnAllSystems(std::span<std::uint8_t> font);
