// SPDX-License-Identifier: GPL-3.0-or-later
// The files that come with the library, for editors that are no part of it: the project's pictures,
// and the typefaces for systems without the one that the editor is drawn for.
#pragma once

#include <juce_core/juce_core.h>

/// The project's own.
[[nodiscard]] juce::File projectPictures();

/// A copy of them and of the typefaces, as the bundle has them, for the length of the program.
[[nodiscard]] juce::File bundledFiles();

/// Every file of a folder into another one.
void copyFiles(const juce::File& from, const juce::File& to);
